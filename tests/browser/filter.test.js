import * as filter from './checks/filter.js';
import { someReports } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

describeInBrowser('The filter of a report', (browser) => {
  const reports = someReports();

  itHolds('is shown', browser, reports, filter.isShownWithScripts);
  itHolds('is hidden without scripts, and nothing else is', browser, reports, filter.isHiddenWithoutScripts, { javaScript: false });
  itHolds('shows the fields that have the text, in any case', browser, reports, filter.filtersWhatIsTyped);
  itHolds('says how many it shows', browser, reports, filter.saysHowManyAreShown);
  itHolds('shows all again when it is cleared', browser, reports, filter.clearingRestores);
  itHolds('says that nothing matches', browser, reports, filter.saysThatNothingMatches);
  itHolds('takes text literally', browser, reports, filter.takesTextLiterally);
});
