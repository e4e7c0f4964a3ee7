import * as accessibility from './checks/accessibility.js';
import { someReports, writeReports } from './support/reports.js';
import { describeInBrowser, itHoldsAll } from './support/suite.js';

describeInBrowser('A report is for everybody', (browser) => {
  const reports = writeReports();

  itHoldsAll(browser, someReports(), {}, [['satisfies axe-core with all closed', accessibility.satisfiesAxe]]);
  for (const scheme of ['light', 'dark']) {
    itHoldsAll(browser, reports, { scheme }, [
      [`has pictures whose text stands out, ${scheme}`, accessibility.hasReadablePictures],
      [`satisfies axe-core when all is opened, ${scheme}`, accessibility.satisfiesAxeWhenOpened],
    ]);
  }
  for (const width of [360, 1024]) {
    itHoldsAll(browser, reports, { width }, [
      [`has pictures whose text is large enough at ${width} pixels`, accessibility.hasPictureTextOfReadableSize],
    ]);
  }
  itHoldsAll(browser, reports.slice(-2), { width: 360 }, [['satisfies axe-core at 360 pixels', accessibility.satisfiesAxe]]);
});
