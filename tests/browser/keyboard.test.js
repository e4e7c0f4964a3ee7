import * as keyboard from './checks/keyboard.js';
import { someReports } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

describeInBrowser('A report without a mouse', (browser) => {
  const reports = someReports();
  const flawed = reports.filter(({ files }) => files.at(-1).includes('flawed'));

  itHolds('is reached by Tab, all of it', browser, reports, keyboard.reachesEverythingByTab);
  itHolds('shows where the focus is', browser, reports, keyboard.showsTheFocus);
  itHolds('shows where the focus is in the dark', browser, reports, keyboard.showsTheFocus, { scheme: 'dark' });
  itHolds('opens explanations by Enter', browser, reports, keyboard.opensSummariesByEnter);
  itHolds('leads from findings to fields', browser, reports, keyboard.landsOnFields);
  itHolds('leads from findings to fields without scripts', browser, reports, keyboard.landsOnFields, { javaScript: false });
  itHolds('leads to all its other parts', browser, reports, keyboard.landsOnOtherParts);
  itHolds('leads from findings to fields that the filter hides', browser, flawed, keyboard.landsOnFilteredFields);
});
