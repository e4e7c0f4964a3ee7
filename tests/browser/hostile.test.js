import { execFileSync } from 'node:child_process';
import { copyFileSync, readFileSync } from 'node:fs';
import { join } from 'node:path';
import * as content from './checks/content.js';
import * as layout from './checks/layout.js';
import * as policy from './checks/policy.js';
import * as structure from './checks/structure.js';
import { makeFolder } from './support/folder.js';
import { payloads, writeHostileNames, writeHostileText, writeHostileXml } from './support/hostileFiles.js';
import { command, examples, writeReport } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

const folder = makeFolder();
const narrow = { width: 360 };
const charger = examples.find((file) => file.endsWith('.txt') && file.includes('charger'));

let number = 0;
const reportOf = (name, ...files) => ({ name, page: writeReport(join(folder, `${++number}.html`), ...files) });

function itIsText(what, browser, reports) {
  itHolds(`${what}: does nothing`, browser, reports, policy.doesNothingOnItsOwn);
  itHolds(`${what}: does nothing when it is used`, browser, reports, policy.doesNothingWhenUsed);
  itHolds(`${what}: makes no elements`, browser, reports, structure.hasNoForeignElements);
  itHolds(`${what}: makes no ids or links`, browser, reports, structure.refersToWhatIsThere);
  itHolds(`${what}: leaves the ids unique`, browser, reports, structure.hasUniqueIds);
  itHolds(`${what}: keeps the sections`, browser, reports, structure.hasItsSections);
  itHolds(`${what}: neither controls nor reorders`, browser, reports, content.hasNoControlCharacters);
  itHolds(`${what}: fits 360 pixels`, browser, reports, layout.fitsItsWidth, narrow);
  itHolds(`${what}: fits 360 pixels when all is opened`, browser, reports, layout.fitsItsWidthWhenOpened, narrow);
}

describeInBrowser('Hostile text in a text VIF', (browser) => {
  const file = writeHostileText(folder);
  const reports = [reportOf('alone', file), reportOf('compared', file, charger), reportOf('compared with itself', file, file)];

  itIsText('In a text VIF', browser, reports);
  itHolds('is shown as it is', browser, reports.slice(0, 1), content.showsText(...payloads));
});

describeInBrowser('Hostile text in an XML VIF', (browser) => {
  const files = writeHostileXml(folder);
  const reports = files.map(({ text, file }) => ({ ...reportOf(text.slice(0, 60), file), text }));
  const [{ file }, { file: other }] = files;

  itIsText('In an XML VIF', browser, reports);
  itIsText('In two XML VIFs', browser, [reportOf('compared', file, other)]);
  for (const report of reports) {
    itHolds(`${report.name} is shown as it is`, browser, [report], content.showsText(report.text));
  }
});

describeInBrowser('A hostile file name', (browser) => {
  const files = writeHostileNames(join(folder, 'names'), readFileSync(charger));
  const reports = files.flatMap(({ text, file }) => [reportOf(text, file), reportOf(`${text} and another`, file, charger)]);

  itIsText('In a name', browser, reports);
});

// Node.js cannot pass such a name to a program, but a shell can.
describeInBrowser('A file name that is not UTF-8', (browser) => {
  const page = join(folder, 'not-utf8.html');
  copyFileSync(charger, join(folder, 'to-be-renamed.txt'));
  const script = 'cd "$1" && mv to-be-renamed.txt $\'\\xff\\xfe.txt\' && "$2" report -o not-utf8.html $\'\\xff\\xfe.txt\'';
  execFileSync('bash', ['-c', script, 'bash', folder, command]);

  itIsText('In bytes', browser, [{ name: 'bytes', page }]);
});
