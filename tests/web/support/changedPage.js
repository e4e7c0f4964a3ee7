// The page, changed in one way each, to see what it or its tests do then.
import assert from 'node:assert/strict';
import { createHash } from 'node:crypto';
import { readFileSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { makeFolder } from '../../browser/support/folder.js';
import { page as pageFile } from './paths.js';

const folder = makeFolder();
export const sound = readFileSync(pageFile, 'utf8');
const hash = (text) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`;

let number = 0;
export const addressOf = (html) => {
  const file = join(folder, `${++number}.html`);
  writeFileSync(file, html);
  return pathToFileURL(file).href;
};

// The page with something put after its own style or script, which its policy then names instead.
export function append(kind, text) {
  const pattern = kind === 'style' ? /<style>([^]*?)<\/style>/ : /<script>([^]*?)<\/script>/;
  const [, own] = sound.match(pattern);
  return sound.replace(pattern, () => `<${kind}>${own}${text}</${kind}>`).replace(hash(own), () => hash(`${own}${text}`));
}

// The page after `change` changed what it contains: { module, schemas, worker }.
export function changeAssets(change) {
  const [, text] = sound.match(/<script type="application\/json" id="assets">([^]*?)<\/script>/);
  const assets = JSON.parse(text);
  change(assets);
  return sound.replace(text, () => JSON.stringify(assets).replaceAll('<', '\\u003c'));
}

// The page with something put before a statement of its worker.
export const insertIntoWorker = (statement, text) =>
  changeAssets((assets) => {
    assert.ok(assets.worker.includes(statement), statement);
    assets.worker = assets.worker.replace(statement, () => `${text}${statement}`);
  });

// The page with a worker that keeps calls about files named held* waiting, each until `release`.
export const makeHoldingPage = () =>
  insertIntoWorker(
    'const value = (await reader)[name](...parameters);',
    `if (parameters.some(({ name: file }) => file?.startsWith('held'))) await new Promise((go) => { self.release = go; });`,
  );

// Waits until a call is held.
export async function waitForHeld(page) {
  const isHeld = async () => {
    const workers = page.workers();
    return workers.length > 0 && workers.at(-1).evaluate(() => Boolean(self.release)).catch(() => false);
  };
  for (const end = Date.now() + 20_000; !(await isHeld()); await new Promise((resolve) => setTimeout(resolve, 50))) {
    assert.ok(Date.now() < end, 'no call is held');
  }
}

export async function release(page) {
  await waitForHeld(page);
  await page.workers().at(-1).evaluate(() => {
    const go = self.release;
    self.release = null;
    go();
  });
}
