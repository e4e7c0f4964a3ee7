import * as policy from './checks/policy.js';
import * as structure from './checks/structure.js';
import { writeReports } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

describeInBrowser('A report is inert', (browser) => {
  const reports = writeReports();

  itHolds('prints no message, asks for nothing and violates no policy', browser, reports, policy.doesNothingOnItsOwn);
  itHolds('asks for nothing in the dark', browser, reports, policy.doesNothingOnItsOwn, { scheme: 'dark' });
  itHolds('asks for nothing on paper', browser, reports, policy.doesNothingOnItsOwn, { media: 'print' });
  itHolds('asks for nothing when it is used', browser, reports, policy.doesNothingWhenUsed);
  itHolds('has a policy that allows its own style and script only', browser, reports, policy.hasAStrictPolicy);
  itHolds('has its policy before anything else', browser, reports, policy.hasItsPolicyBeforeAnythingElse);
  itHolds('stops and reports what is injected', browser, reports.slice(0, 1), policy.stopsWhatIsInjected);
  itHolds('has no elements that load or run anything else', browser, reports, structure.hasNoForeignElements);
});
