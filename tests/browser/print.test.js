import * as print from './checks/print.js';
import { writeReports } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

describeInBrowser('A report on paper', (browser) => {
  const reports = writeReports();

  itHolds('has pages', browser, reports, print.givesPages);
  for (const scheme of ['light', 'dark']) {
    itHolds(`is dark on white, ${scheme} preferred`, browser, reports, print.isDarkOnWhite, { scheme, media: 'print' });
  }
  itHolds('has no filter', browser, reports, print.hidesTheFilter, { media: 'print' });
});
