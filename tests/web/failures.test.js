// What the page says when something goes wrong besides a file that is not a VIF, and that it goes on afterwards.
import assert from 'node:assert/strict';
import { mkdirSync } from 'node:fs';
import { join } from 'node:path';
import { it } from 'node:test';
import { gzipSync } from 'node:zlib';
import { satisfiesAxeBesideItsFrames } from '../browser/checks/accessibility.js';
import { makeFolder } from '../browser/support/folder.js';
import { describeInBrowser } from '../browser/support/suite.js';
import { addressOf, changeAssets, insertIntoWorker, makeHoldingPage, release } from './support/changedPage.js';
import { choose, dragFrom, drop, press, shownNotice, shownRefusal, shownReport, withVifPage } from './support/pageDriver.js';
import { example } from './support/paths.js';
import { unusableModule } from './support/unusableModule.js';

const charger = example('gan-charger-65w.txt');
const middle = { x: 500, y: 300 };

function makeFolderNamed(name) {
  const folder = join(makeFolder(), name);
  mkdirSync(folder);
  return folder;
}

const unreadableSchema = makeFolderNamed('VendorInfoFile.xsd');
const notUsed = /^VendorInfoFile\.xsd is not used\. The browser cannot read it/;

describeInBrowser('The page says so', (browser) => {
  const onPage = (what, use, options = {}) =>
    it(what, { timeout: 120_000 }, () =>
      withVifPage(browser(), options, async (page, events) => {
        page.setDefaultTimeout(20_000);
        await use(page);
        assert.deepEqual(events(), []);
      }));

  onPage('when a schema cannot be read, and takes the files that come afterwards', async (page) => {
    await dragFrom(page, middle, unreadableSchema);
    assert.match(await shownNotice(page), notUsed);
    assert.deepEqual(await satisfiesAxeBesideItsFrames(page), []);
    await press(page, 'Dismiss');
    assert.equal(await page.$('#notice:not([hidden])'), null);
    await choose(page, charger);
    await shownReport(page, 'gan-charger');
  });

  onPage('when a schema cannot be read, and takes the files that come with it', async (page) => {
    await dragFrom(page, middle, unreadableSchema, charger);
    await shownReport(page, 'gan-charger');
    assert.match(await page.$eval('#notice:not([hidden])', (notice) => notice.innerText), notUsed);
  });

  onPage('when a schema has another name', async (page) => {
    await drop(page, { name: 'Other.xsd', text: '<a/>' });
    assert.match(await shownNotice(page), /^Other\.xsd is not used: schemas must be named VendorInfoFile\.xsd or /);
    await choose(page, charger);
    await shownReport(page, 'gan-charger');
    assert.equal(await page.$('#notice:not([hidden])'), null);
  });

  onPage('when a file cannot be saved', async (page) => {
    await choose(page, charger);
    await shownReport(page, 'gan-charger');
    await press(page, 'Fields (CSV)');
    assert.equal(await shownNotice(page), 'gan-charger-65w.csv was not saved: there is no place for it');
    assert.deepEqual(await satisfiesAxeBesideItsFrames(page), []);
    await shownReport(page, 'gan-charger');
  }, { address: addressOf(insertIntoWorker('require(module._reader_fields_csv());', "throw new ReaderError(1, 'there is no place for it');")) });

  onPage('when its module cannot be used', async (page) => {
    await choose(page, charger);
    assert.match(await shownRefusal(page), /is not an object|nowhere/);
  }, { address: addressOf(changeAssets((assets) => { assets.module = gzipSync(unusableModule).toString('base64'); })) });

  onPage('when a file was not read, and tries again', async (page) => {
    await page.evaluate(() => {
      const read = File.prototype.arrayBuffer;
      File.prototype.arrayBuffer = () => {
        File.prototype.arrayBuffer = read;
        return Promise.reject(new DOMException('It is gone', 'NotFoundError'));
      };
    });
    await choose(page, charger);
    const text = await shownRefusal(page);
    assert.match(text, /This file was not read\s+The browser cannot read it/);
    assert.doesNotMatch(text, /cannot be read as a VIF/);
    assert.equal(await page.$eval('#tabs button', (tab) => tab.className), 'unread');
    assert.equal(await page.$eval('#status', (status) => status.textContent), 'gan-charger-65w.txt was not read');
    assert.deepEqual(await satisfiesAxeBesideItsFrames(page), []);
    await press(page, 'Try again');
    await shownReport(page, 'gan-charger');
    assert.equal(await page.$eval('#tabs button', (tab) => tab.className), '');
  });

  onPage('when a file is a folder', async (page) => {
    await dragFrom(page, middle, makeFolderNamed('folder.txt'));
    assert.match(await shownRefusal(page), /This file was not read\s+The browser cannot read it\. Is it a folder/);
  });

  onPage('when reading was cancelled, and tries again', async (page) => {
    await drop(page, { name: 'held.txt', text: 'PID: 1\n' });
    await page.waitForSelector('#busy:not([hidden])');
    await press(page, 'Cancel');
    assert.match(await shownRefusal(page), /This file was not read\s+It was cancelled\./);
    await press(page, 'Try again');
    assert.equal(await page.evaluate(() => document.activeElement.textContent), 'held.txt');
    await release(page);
    await shownReport(page, 'held.txt');
  }, { address: addressOf(makeHoldingPage()) });
});
