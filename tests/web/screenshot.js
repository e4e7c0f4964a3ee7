// Makes a picture of the page with the report on a dock, in the file that the argument names.
import { execFileSync } from 'node:child_process';
import { statSync } from 'node:fs';
import { launchBrowser } from '../browser/support/browser.js';
import { settle } from '../browser/support/page.js';
import { choose, shownReport, withVifPage } from './support/pageDriver.js';
import { example } from './support/paths.js';

const largest = 250_000; // bytes
const picture = process.argv[2];
const browser = await launchBrowser();
try {
  await withVifPage(browser, { width: 960, height: 760, scale: 1.5 }, async (page) => {
    await choose(page, example('usb4-dock.xml'));
    await shownReport(page, 'usb4-dock.xml');
    await settle();
    await page.screenshot({ path: picture });
  });
} finally {
  await browser.close();
}
execFileSync('pngquant', ['--force', '--strip', '--speed', '1', '--output', picture, picture]);
const bytes = statSync(picture).size;
console.log(`${picture}: ${bytes} bytes`);
if (bytes > largest) throw new Error(`${picture} has more than ${largest} bytes`);
