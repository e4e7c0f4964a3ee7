// What the reader of the page does while it reads files. Calls about files named held* last until `release`.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { it } from 'node:test';
import { settle } from '../browser/support/page.js';
import { describeInBrowser } from '../browser/support/suite.js';
import { addressOf, makeHoldingPage, release, waitForHeld } from './support/changedPage.js';
import { allRead, choose, currentTab, drop, openTab, press, save, shownRefusal, shownReport, withVifPage } from './support/pageDriver.js';
import { buildFolder, example } from './support/paths.js';

const charger = example('gan-charger-65w.txt');
const dock = example('usb4-dock.xml');
const schema = 'VendorInfoFile.xsd';
const builtIn = readFileSync(join(buildFolder, 'schemas', schema), 'utf8');
const strict = builtIn.replace('name="Vendor_Name" type="vif:TextField"', 'name="Vendor_Name" type="xs:integer"');

const heldXml = { name: 'held.xml', text: readFileSync(dock, 'utf8') };
const heldText = { name: 'held.txt', text: readFileSync(charger, 'utf8') };
const address = addressOf(makeHoldingPage());

describeInBrowser('While files are read, the page', (browser) => {
  const onPage = (what, use, options = {}) =>
    it(what, { timeout: 120_000 }, () =>
      withVifPage(browser(), { address, ...options }, async (page, events) => {
        page.setDefaultTimeout(20_000);
        await use(page);
        assert.deepEqual(events(), []);
        assert.equal(await page.$eval('#notice', (notice) => notice.hidden), true);
      }));

  onPage('shows a file whose tab is opened before it is read', async (page) => {
    await drop(page, { name: 'first.txt', text: 'PID: 1\n' }, heldText);
    await shownReport(page, 'first.txt');
    await openTab(page, 'held.txt');
    await release(page);
    await shownReport(page, 'Report on held.txt');
  });

  onPage('stays at the file that its reader opened', async (page) => {
    await choose(page, charger);
    await shownReport(page, 'gan-charger');
    await drop(page, heldText, { name: 'other.txt', text: 'PID: 1\n' });
    await openTab(page, 'gan-charger-65w.txt');
    await release(page);
    await allRead(page);
    await settle();
    assert.equal(await currentTab(page), 'gan-charger-65w.txt');
    await shownReport(page, 'Report on gan-charger');
  });

  onPage('stays visible when another file takes long', async (page) => {
    await choose(page, charger);
    await shownReport(page, 'gan-charger');
    await drop(page, heldText);
    await openTab(page, 'gan-charger-65w.txt');
    await page.waitForSelector('#busy:not([hidden])');
    assert.ok(await page.$eval('iframe.report', (frame) => frame.checkVisibility()));
    await release(page);
    await page.waitForSelector('#busy[hidden]');
  });

  onPage('offers a comparison with what is read so far', async (page) => {
    await drop(page, { name: 'a.txt', text: 'PID: 1\n' }, { name: 'b.txt', text: 'PID: 2\n' }, heldText);
    await waitForHeld(page);
    await openTab(page, 'Differences');
    await release(page);
    await shownReport(page, 'b.txt differs from a.txt');
  });

  onPage('does not show a file again that is removed while it is read again', async (page) => {
    await choose(page, charger);
    await drop(page, heldXml);
    await release(page);
    await shownReport(page, 'held.xml');
    await drop(page, { name: schema, text: builtIn });
    await waitForHeld(page);
    await press(page, 'Remove');
    await release(page);
    await allRead(page);
    await settle();
    assert.equal(await currentTab(page), 'gan-charger-65w.txt');
    assert.equal(await page.$eval('#view h2', (title) => title.textContent), 'gan-charger-65w.txt');
  });

  onPage('lets a call end before it uses other schemas', async (page) => {
    await drop(page, heldXml);
    await release(page);
    await shownReport(page, 'held.xml');
    const saved = save(page, 'Fields (CSV)', 'held.csv');
    await waitForHeld(page);
    await drop(page, { name: schema, text: strict });
    await settle();
    await release(page);
    assert.match((await saved).toString(), /Vendor_Name/);
    await release(page);
    await release(page);
    assert.match(await shownRefusal(page), /Vendor_Name/);
  });

  onPage('does not compare with a file that was removed meanwhile', async (page) => {
    await drop(page, heldText, { name: 'held-too.txt', text: 'PID: 1\n' });
    await release(page);
    await waitForHeld(page);
    await shownReport(page, 'Report on held.txt');
    await press(page, 'Remove');
    await release(page);
    await allRead(page);
    await shownReport(page, 'Report on held-too.txt');
  });

  onPage('compares files that can be read again, whatever was removed', async (page) => {
    await choose(page, charger);
    await shownReport(page, 'gan-charger');
    await drop(page, { name: 'a.xml', text: heldXml.text }, { name: 'b.xml', text: heldXml.text });
    await shownReport(page, 'b.xml differs from a.xml');
    await drop(page, { name: schema, text: strict });
    await shownRefusal(page);
    await allRead(page);
    await press(page, 'Remove');
    await press(page, 'Use the built-in ones');
    await page.waitForFunction(() => document.querySelectorAll('#tabs button:not(.reading, .refused)').length === 3);
    await openTab(page, 'Differences');
    await shownReport(page, 'differs from gan-charger');
  });

  onPage('compares again when schemas change, and says what they refuse', async (page) => {
    const text = readFileSync(dock, 'utf8');
    await drop(page, { name: 'a.xml', text }, { name: 'b.xml', text });
    await shownReport(page, 'b.xml differs from a.xml');
    await page.$eval('iframe.report', (frame) => frame.setAttribute('data-old', ''));
    await drop(page, { name: schema, text: builtIn });
    await page.waitForSelector('iframe.report[title*="b.xml differs from a.xml"]:not([data-old])');
    await drop(page, { name: schema, text: strict });
    assert.match(await shownRefusal(page), /Vendor_Name/);
  });

  onPage('keeps the files that are compared when schemas change', async (page) => {
    await choose(page, charger, dock, example('dual-role-tablet.txt'));
    await page.waitForFunction(() => document.querySelectorAll('#tabs button:not(.reading)').length === 4);
    await openTab(page, 'Differences');
    await page.select('#compared-0', 'dual-role-tablet.txt');
    await shownReport(page, 'usb4-dock.xml differs from dual-role-tablet.txt');
    await page.$eval('iframe.report', (frame) => frame.setAttribute('data-old', ''));
    await drop(page, { name: schema, text: builtIn });
    await page.waitForSelector('iframe.report:not([data-old])');
    await shownReport(page, 'usb4-dock.xml differs from dual-role-tablet.txt');
  });

  onPage('is cancelled at once, even if its worker has not started', async (page) => {
    await choose(page, charger);
    await page.waitForSelector('#busy:not([hidden])');
    await press(page, 'Cancel');
    assert.match(await shownRefusal(page), /cancelled/);
    await page.evaluate(() => window.startWorker());
    await press(page, 'Try again');
    await shownReport(page, 'gan-charger');
  }, {
    prepare: () => {
      const compile = WebAssembly.compile;
      const start = new Promise((resolve) => {
        window.startWorker = resolve;
      });
      WebAssembly.compile = (bytes) => start.then(() => compile(bytes));
    },
  });
});
