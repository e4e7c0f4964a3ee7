// The checks of the page find the faults that they are for, in pages that were spoiled in one way each.
import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { createHash } from 'node:crypto';
import { join } from 'node:path';
import { it } from 'node:test';
import { pathToFileURL } from 'node:url';
import { satisfiesAxeBesideItsFrames } from '../browser/checks/accessibility.js';
import { fitsItsWidth } from '../browser/checks/layout.js';
import { stopsWhatIsInjected } from '../browser/checks/policy.js';
import { makeFolder } from '../browser/support/folder.js';
import { settle } from '../browser/support/page.js';
import { describeInBrowser } from '../browser/support/suite.js';
import { choose, drop, openTab, shownRefusal, shownReport, withVifPage } from './support/pageDriver.js';
import { example, page as pageFile } from './support/paths.js';

const folder = makeFolder();
const sound = readFileSync(pageFile, 'utf8');
const hash = (text) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`;

let number = 0;
const addressOf = (html) => {
  const file = join(folder, `${++number}.html`);
  writeFileSync(file, html);
  return pathToFileURL(file).href;
};

// The page with something put after its own style or script, which its policy then names instead.
function append(kind, text) {
  const pattern = kind === 'style' ? /<style>([^]*?)<\/style>/ : /<script>([^]*?)<\/script>/;
  const [, own] = sound.match(pattern);
  return sound.replace(pattern, () => `<${kind}>${own}${text}</${kind}>`).replace(hash(own), () => hash(`${own}${text}`));
}

describeInBrowser('The checks of the page notice', (browser) => {
  const notices = (what, html, expected, find = async () => {}) =>
    it(what, { timeout: 120_000 }, () =>
      withVifPage(browser(), { address: addressOf(html), width: 360 }, async (page, events, recorded) => {
        const faults = (await find(page, recorded)) ?? [];
        await settle();
        const found = [...events(), ...faults];
        assert.ok(found.some((fault) => expected.test(fault)), `${expected} is not among ${found.join('\n')}`);
      }));

  notices('a request', append('script', "fetch('https://example.invalid/').catch(() => {});"), /^violation connect-src/);
  notices('a request that the policy lets through',
    append('script', "fetch('https://example.invalid/').catch(() => {});").replace("default-src 'none'", "default-src 'none'; connect-src https:"),
    /^request https:\/\/example\.invalid/);
  notices('a message', append('script', "console.log('here');"), /^console log: here/);
  notices('an exception', append('script', 'missing();'), /^error missing is not defined/);
  notices('a script that the policy does not name', sound.replace('<script>', '<script>;'), /^violation script-src-elem/);
  notices('a policy that allows inline styles', sound.replace(/style-src [^;]*/, "style-src 'unsafe-inline'"), /not reported: violation style-src-attr/,
    stopsWhatIsInjected);
  notices('too little contrast', append('style', '.promises { color: #ccc; }'), /color-contrast/, satisfiesAxeBesideItsFrames);
  notices('a page that is too wide', append('style', '.drop { width: 500px; }'), /pixels wide on 360/, fitsItsWidth);

  // No file is known that makes the library trap, so the module's script is made to do so for one name.
  it('nothing of a library that trapped: the page starts it afresh', { timeout: 120_000 }, () => {
    const call = 'require(module._reader_report(files.length));';
    const trap = "if (files[0].name === 'trap.txt') throw new WebAssembly.RuntimeError('unreachable');";
    const html = sound.replace(call, () => JSON.stringify(`${trap}${call}`).slice(1, -1));
    assert.notEqual(html, sound);
    return withVifPage(browser(), { address: addressOf(html) }, async (page, events, recorded) => {
      await drop(page, { name: 'trap.txt', text: 'PID: 1\n' }, { name: 'sound.txt', text: 'PID: 1\n' });
      assert.match(await shownRefusal(page), /unreachable/);
      await page.waitForFunction(() => document.querySelectorAll('#tabs .reading').length === 0);
      await openTab(page, 'sound.txt');
      await shownReport(page, 'sound.txt');
      assert.equal(recorded.filter((event) => event.startsWith('worker')).length, 2);
      assert.deepEqual(events(), []);
    });
  });

  it('a report whose style the policy does not name', { timeout: 120_000 }, () => {
    const html = sound.replace(/(style-src '[^']*') '[^']*'/, '$1');
    return withVifPage(browser(), { address: addressOf(html) }, async (page) => {
      await choose(page, example('gan-charger-65w.txt'));
      const report = await shownReport(page, 'gan-charger');
      assert.equal(await report.$eval('main', (main) => getComputedStyle(main).maxWidth), 'none');
    });
  });
});
