// Makes screenshots of reports of the examples, and of the site of the documentation.
//
//     screenshots.js FOLDER SITE
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

const telephone = { width: 360, height: 740, scale: 1.5 };
const sitePages = {
  start: { page: 'index.html', size },
  rules: { page: 'rules.html', size },
  telephone: { page: 'fields.html', size: telephone },
};

async function takeClip(page, clip, picture) {
  await page.screenshot({ path: picture, clip, captureBeyondViewport: true });
  execFileSync('pngquant', ['--force', '--strip', '--speed', '1', '--output', picture, picture]);
  const bytes = statSync(picture).size;
  console.log(`${basename(picture)}: ${bytes} bytes`);
  if (bytes > largest) throw new Error(`${picture} has more than ${largest} bytes`);
}

async function takeReport(page, until, picture) {
  const bottom = await page.$eval(until, (element) => element.getBoundingClientRect().bottom);
  await takeClip(page, { x: 0, y: 0, width: size.width, height: Math.ceil(bottom + margin) }, picture);
}

const [folder, site] = process.argv.slice(2);
const pages = makeFolder();
const browser = await launchBrowser();
try {
  for (const [subject, { example, until }] of Object.entries(subjects)) {
    const page = writeExampleReport(join(pages, `${subject}.html`), example);
    await withPage(browser, page, size, (opened) => takeReport(opened, until, join(folder, `report-${subject}.png`)));
  }
  for (const [name, { page, size: shown }] of Object.entries(sitePages)) {
    const clip = { x: 0, y: 0, width: shown.width, height: shown.height };
    await withPage(browser, join(site, page), shown, (opened) => takeClip(opened, clip, join(folder, `site-${name}.png`)));
  }
} finally {
  await browser.close();
}
