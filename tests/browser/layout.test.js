import * as layout from './checks/layout.js';
import { writeReports } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

describeInBrowser('A report fits its window', (browser) => {
  const reports = writeReports();

  for (const width of [360, 768, 1280]) {
    itHolds(`fits ${width} pixels`, browser, reports, layout.fitsItsWidth, { width });
    itHolds(`scrolls by keyboard at ${width} pixels`, browser, reports, layout.scrollsByKeyboard, { width });
    itHolds(`cuts nothing off at ${width} pixels`, browser, reports, layout.cutsNothingOff, { width });
  }
  itHolds('fits 360 pixels when all is opened', browser, reports, layout.fitsItsWidthWhenOpened, { width: 360 });
});
