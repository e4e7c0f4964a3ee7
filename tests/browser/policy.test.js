import * as policy from './checks/policy.js';
import * as structure from './checks/structure.js';
import { writeReports } from './support/reports.js';
import { describeInBrowser, itHolds, itHoldsAll } from './support/suite.js';

describeInBrowser('A report is inert', (browser) => {
  const reports = writeReports();

  itHoldsAll(browser, reports, {}, [
    ['prints no message, asks for nothing and violates no policy', policy.doesNothingOnItsOwn],
    ['has a policy that allows its own style and script only', policy.hasAStrictPolicy],
    ['has its policy before anything else', policy.hasItsPolicyBeforeAnythingElse],
    ['has no elements that load or run anything else', structure.hasNoForeignElements],
    ['asks for nothing when it is used', policy.doesNothingWhenUsed],
  ]);
  itHolds('asks for nothing in the dark', browser, reports, policy.doesNothingOnItsOwn, { scheme: 'dark' });
  itHolds('asks for nothing on paper', browser, reports, policy.doesNothingOnItsOwn, { media: 'print' });
  itHolds('stops and reports what is injected', browser, reports.slice(0, 1), policy.stopsWhatIsInjected);
});
