// A group of tests that share a browser.
import assert from 'node:assert/strict';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from './browser.js';
import { withPage } from './page.js';

// Calls `define(browser)` to define the tests, which call `browser()` for the browser.
export function describeInBrowser(subject, define) {
  describe(subject, () => {
    let browser;
    before(async () => {
      browser = await launchBrowser();
    });
    after(() => browser?.close());
    define(() => browser);
  });
}

// What the checks find wrong with each of the reports, by the names of the checks. Each report is opened once.
async function collectFaults(browser, reports, checks, options) {
  const faults = new Map(checks.map(([behaviour]) => [behaviour, []]));
  for (const { name, page: file } of reports) {
    await withPage(browser, file, options, async (page, events) => {
      for (const [behaviour, check] of checks) {
        const found = await check(page, events);
        faults.get(behaviour).push(...found.map((fault) => `${name}: ${fault}`));
      }
    });
  }
  return faults;
}

// Defines a test for each of the checks, which finds nothing wrong with any of the reports. The checks run in order on
// the same visit, so one that changes the page goes last.
export function itHoldsAll(browser, reports, options, checks) {
  let faults;
  for (const [behaviour] of checks) {
    it(behaviour, async () => {
      faults ??= collectFaults(browser(), reports, checks, options);
      assert.deepEqual((await faults).get(behaviour), []);
    });
  }
}

export const itHolds = (behaviour, browser, reports, check, options = {}) =>
  itHoldsAll(browser, reports, options, [[behaviour, check]]);
