// How long a page that is open takes from the choice of a file to the report on it, beside the native command.
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { launchBrowser } from '../tests/browser/support/browser.js';
import { choose, withVifPage } from '../tests/web/support/pageDriver.js';
import { command, example } from '../tests/web/support/paths.js';

const runs = 9;
const file = process.argv[2] ?? example('usb4-dock.xml');

const median = (times) => [...times].sort((a, b) => a - b)[Math.floor(times.length / 2)];
const inWords = (times) => `median ${median(times).toFixed(0)} ms, ${Math.min(...times).toFixed(0)} to ${Math.max(...times).toFixed(0)} ms`;

// From the change of the input until the frame has loaded the report.
async function timeInPage(browser) {
  return withVifPage(browser, {}, async (page) => {
    await new Promise((resolve) => setTimeout(resolve, 500)); // the page is open, and its worker ready
    await page.evaluate(() => {
      window.shown = new Promise((resolve) => {
        document.getElementById('files').addEventListener('change', () => {
          const begin = performance.now();
          new MutationObserver((changes, observer) => {
            const frame = document.querySelector('iframe.report');
            if (!frame) return;
            observer.disconnect();
            frame.addEventListener('load', () => resolve(performance.now() - begin));
          }).observe(document.body, { childList: true, subtree: true });
        }, { capture: true });
      });
    });
    await choose(page, file);
    return page.evaluate(() => window.shown);
  });
}

function timeOfCommand() {
  const begin = performance.now();
  execFileSync(command, ['report', file], { maxBuffer: 2 ** 30 });
  return performance.now() - begin;
}

const browser = await launchBrowser();
try {
  const inPage = [];
  for (let i = 0; i < runs; ++i) inPage.push(await timeInPage(browser));
  console.log(`${file}, ${readFileSync(file).length} bytes`);
  console.log(`page:    ${inWords(inPage)}`);
  console.log(`command: ${inWords(Array.from({ length: runs }, timeOfCommand))}`);
} finally {
  await browser.close();
}
