// Uses the page as its reader does.
import { existsSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { makeFolder } from '../../browser/support/folder.js';
import { settle } from '../../browser/support/page.js';
import { recordEvents } from '../../browser/support/recorder.js';
import { page as pageFile } from './paths.js';

const defaults = { address: pathToFileURL(pageFile).href, width: 1024, height: 768, scale: 1, scheme: 'light', prepare: () => {} };

// What the page may do although a report may not: start its worker, show a report in a frame, and save a file.
const isItsOwn = (event) =>
  /^worker blob:/.test(event) || event === 'frame attached' || /^navigation about:(blank|srcdoc)/.test(event) ||
  /^(request|response) blob:/.test(event);

// Opens the page, cuts off the network, calls `use(page, events, recorded)`, and closes the page. `events()` is what the page did
// that it must not do, of all that is in `recorded`. `prepare` runs in the page before its own script.
export async function withVifPage(browser, options, use) {
  const { address, width, height, scale, scheme, prepare } = { ...defaults, ...options };
  const page = await browser.newPage();
  page.setDefaultTimeout(60_000);
  try {
    const events = await recordEvents(page, address);
    await page.setViewport({ width, height, deviceScaleFactor: scale });
    await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
    await page.evaluateOnNewDocument(prepare);
    await page.goto(address, { waitUntil: 'load' });
    await page.setOfflineMode(true);
    return await use(page, () => events.filter((event) => !isItsOwn(event)), events);
  } finally {
    await page.close();
  }
}

export async function choose(page, ...files) {
  const input = await page.$('#files');
  await input.uploadFile(...files);
}

// Drops files with these contents, as { name, text }.
export async function drop(page, ...files) {
  await page.evaluate((given) => {
    const dataTransfer = new DataTransfer();
    for (const { name, text } of given) dataTransfer.items.add(new File([text], name));
    for (const type of ['dragover', 'drop']) {
      document.body.dispatchEvent(new DragEvent(type, { dataTransfer, bubbles: true, cancelable: true }));
    }
  }, files);
}

// Drops these files or folders at a point of the page as a person does, from outside.
export async function dragFrom(page, { x, y }, ...paths) {
  const session = await page.createCDPSession();
  const data = { items: [], files: paths, dragOperationsMask: 1 };
  for (const type of ['dragEnter', 'dragOver', 'drop']) {
    await session.send('Input.dispatchDragEvent', { type, x, y, data });
    await settle();
  }
  await session.detach();
}

// The report with that title, once it is shown.
export async function shownReport(page, title) {
  const frame = await page.waitForSelector(`iframe.report[title*="${title}"]`);
  const content = await frame.contentFrame();
  await content.waitForSelector('main h1');
  return content;
}

// What the page says has gone wrong; those who hear it are told the same.
export async function shownNotice(page) {
  await page.waitForSelector('#notice:not([hidden])');
  return page.evaluate(() => {
    const [notice, status] = ['notice-text', 'status'].map((id) => document.getElementById(id).textContent);
    return notice === status ? notice : `The notice "${notice}" is not the status "${status}"`;
  });
}

// Waits until no file is being read any more.
export const allRead = (page) => page.waitForFunction(() => !document.querySelector('#tabs .reading'));

export const currentTab = (page) => page.$eval('#tabs [aria-current]', (tab) => tab.textContent);

// What the page says of the file that it refuses.
export async function shownRefusal(page) {
  await page.waitForSelector('#view .message');
  return page.$eval('#view', (view) => view.innerText);
}

export const tabNames = (page) => page.$$eval('#tabs button', (tabs) => tabs.map((tab) => tab.textContent));

const clickButton = (page, scope, name) =>
  page.evaluate(
    (where, wanted) => {
      [...document.querySelectorAll(`${where} button`)].find((button) => button.textContent === wanted).click();
    },
    scope,
    name,
  );

export const openTab = (page, name) => clickButton(page, '#tabs', name);
export const press = (page, name) => clickButton(page, 'body', name);

// The file that an entry of the menu saves.
export async function save(page, entry, name) {
  const folder = makeFolder();
  const session = await page.createCDPSession();
  await session.send('Browser.setDownloadBehavior', { behavior: 'allow', downloadPath: folder });
  await press(page, entry);
  const file = join(folder, name);
  for (let waits = 0; waits < 100 && !existsSync(file); ++waits) await settle();
  return readFileSync(file);
}
