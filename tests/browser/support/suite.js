// A group of tests that share a browser.
import assert from 'node:assert/strict';
import { after, before, describe, it } from 'node:test';
import { launchBrowser } from './browser.js';
import { faultsOf } from './page.js';

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

// Defines one test: the check finds nothing wrong with any of the reports.
export function itHolds(behaviour, browser, reports, check, options = {}) {
  it(behaviour, async () => {
    const faults = [];
    for (const { name, page } of reports) {
      const found = await faultsOf(browser(), page, check, options);
      faults.push(...found.map((fault) => `${name}: ${fault}`));
    }
    assert.deepEqual(faults, []);
  });
}
