// Makes screenshots of reports of the examples, in the folder that the argument names.
import { execFileSync } from 'node:child_process';
import { statSync } from 'node:fs';
import { basename, join } from 'node:path';
import { launchBrowser } from './support/browser.js';
import { makeFolder } from './support/folder.js';
import { withPage } from './support/page.js';
import { writeExampleReport } from './support/reports.js';

const size = { width: 960, height: 1000, scale: 1.5 };
const margin = 16;
const largest = 250_000; // bytes

// Each shows its page from the top down to the end of an element.
const subjects = {
  dock: { example: 'usb4-dock.xml', until: 'section.port figure.picture svg' },
  laptop: { example: 'two-port-laptop.xml', until: 'section.port figure.picture svg' },
  charger: { example: 'gan-charger-65w.txt', until: 'section.port figure.picture svg' },
  cable: { example: 'active-cable.txt', until: 'section.port dl' },
};

async function takeScreenshot(page, until, picture) {
  const bottom = await page.$eval(until, (element) => element.getBoundingClientRect().bottom);
  const clip = { x: 0, y: 0, width: size.width, height: Math.ceil(bottom + margin) };
  await page.screenshot({ path: picture, clip, captureBeyondViewport: true });
  execFileSync('pngquant', ['--force', '--strip', '--speed', '1', '--output', picture, picture]);
  const bytes = statSync(picture).size;
  console.log(`${basename(picture)}: ${bytes} bytes`);
  if (bytes > largest) throw new Error(`${picture} has more than ${largest} bytes`);
}

const folder = process.argv[2];
const pages = makeFolder();
const browser = await launchBrowser();
try {
  for (const [subject, { example, until }] of Object.entries(subjects)) {
    const page = writeExampleReport(join(pages, `${subject}.html`), example);
    await withPage(browser, page, size, (opened) => takeScreenshot(opened, until, join(folder, `report-${subject}.png`)));
  }
} finally {
  await browser.close();
}
