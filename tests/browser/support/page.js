// Opens a page as its reader does, from a file.
import { pathToFileURL } from 'node:url';
import { recordEvents } from './recorder.js';

// Time for what a page does after it has loaded.
export const settle = () => new Promise((resolve) => setTimeout(resolve, 100));

// In one step, because puppeteer's own functions for the two undo each other's work.
async function emulateMedia(page, media, scheme) {
  const session = await page.createCDPSession();
  await session.send('Emulation.setEmulatedMedia', { media, features: [{ name: 'prefers-color-scheme', value: scheme }] });
}

const defaults = { width: 1024, height: 768, scale: 1, scheme: 'light', media: 'screen', javaScript: true, patience: 30_000 };

// Opens the file, calls `use(page, events)`, and closes the page.
export async function withPage(browser, file, options, use) {
  const { width, height, scale, scheme, media, javaScript, patience } = { ...defaults, ...options };
  const page = await browser.newPage();
  page.setDefaultTimeout(patience);
  try {
    const url = pathToFileURL(file).href;
    const events = await recordEvents(page, url);
    await page.setViewport({ width, height, deviceScaleFactor: scale });
    await page.setJavaScriptEnabled(javaScript);
    await emulateMedia(page, media, scheme);
    await page.goto(url, { waitUntil: 'load', timeout: patience });
    await settle();
    return await use(page, events);
  } finally {
    await page.close();
  }
}

// What `check` finds wrong with the page.
export const faultsOf = (browser, file, check, options = {}) => withPage(browser, file, options, check);

export const openAll = (page) =>
  page.evaluate(() => {
    for (const details of document.querySelectorAll('details')) details.open = true;
  });

