import * as layout from './checks/layout.js';
import { writeReports } from './support/reports.js';
import { describeInBrowser, itHoldsAll } from './support/suite.js';

describeInBrowser('A report fits its window', (browser) => {
  const reports = writeReports();

  for (const width of [360, 768, 1280]) {
    itHoldsAll(browser, reports, { width }, [
      [`fits ${width} pixels`, layout.fitsItsWidth],
      [`scrolls by keyboard at ${width} pixels`, layout.scrollsByKeyboard],
      [`cuts nothing off at ${width} pixels`, layout.cutsNothingOff],
      [`fits ${width} pixels when all is opened`, layout.fitsItsWidthWhenOpened],
    ]);
  }
});
