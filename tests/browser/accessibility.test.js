import * as accessibility from './checks/accessibility.js';
import * as keyboard from './checks/keyboard.js';
import { writeReports } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

describeInBrowser('A report is for everybody', (browser) => {
  const reports = writeReports();

  for (const scheme of ['light', 'dark']) {
    itHolds(`satisfies axe-core, ${scheme}`, browser, reports, accessibility.satisfiesAxe, { scheme });
    itHolds(`satisfies axe-core when all is opened, ${scheme}`, browser, reports, accessibility.satisfiesAxeWhenOpened, { scheme });
    itHolds(`has pictures whose text stands out, ${scheme}`, browser, reports, accessibility.hasReadablePictures, { scheme });
  }
  itHolds('satisfies axe-core at 360 pixels', browser, reports, accessibility.satisfiesAxe, { width: 360 });
  itHolds('has pictures whose text is large enough', browser, reports, accessibility.hasPictureTextOfReadableSize);
  itHolds('has pictures whose text is large enough at 360 pixels', browser, reports, accessibility.hasPictureTextOfReadableSize, { width: 360 });

  itHolds('is reached by Tab, all of it', browser, reports, keyboard.reachesEverythingByTab);
  itHolds('shows where the focus is', browser, reports, keyboard.showsTheFocus);
  itHolds('shows where the focus is in the dark', browser, reports, keyboard.showsTheFocus, { scheme: 'dark' });
  itHolds('opens explanations by Enter', browser, reports, keyboard.opensSummariesByEnter);
  itHolds('leads from findings to fields', browser, reports, keyboard.landsOnFields);
  itHolds('leads from findings to fields without scripts', browser, reports, keyboard.landsOnFields, { javaScript: false });
  itHolds('leads from findings to fields that the filter hides', browser, reports, keyboard.landsOnFilteredFields);
});
