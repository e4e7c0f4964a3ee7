import * as print from './checks/print.js';
import { writeReports } from './support/reports.js';
import { describeInBrowser, itHoldsAll } from './support/suite.js';

describeInBrowser('A report on paper', (browser) => {
  const reports = writeReports();

  for (const scheme of ['light', 'dark']) {
    itHoldsAll(browser, reports, { scheme, media: 'print' }, [
      [`is dark on white, ${scheme} preferred`, print.isDarkOnWhite],
      [`has no filter, ${scheme} preferred`, print.hidesTheFilter],
    ]);
  }
  itHoldsAll(browser, reports, {}, [['has pages', print.givesPages]]);
});
