// The checks of the page find the faults that they are for, in pages that were spoiled in one way each.
import assert from 'node:assert/strict';
import { it } from 'node:test';
import { satisfiesAxeBesideItsFrames } from '../browser/checks/accessibility.js';
import { fitsItsWidth } from '../browser/checks/layout.js';
import { stopsWhatIsInjected } from '../browser/checks/policy.js';
import { settle } from '../browser/support/page.js';
import { describeInBrowser } from '../browser/support/suite.js';
import { addressOf, append, insertIntoWorker, sound } from './support/changedPage.js';
import { choose, drop, openTab, shownRefusal, shownReport, withVifPage } from './support/pageDriver.js';
import { example } from './support/paths.js';

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
    const html = insertIntoWorker(
      'require(module._reader_report(files.length));',
      "if (files[0].name === 'trap.txt') throw new WebAssembly.RuntimeError('unreachable');",
    );
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
