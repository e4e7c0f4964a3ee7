import { execFileSync } from 'node:child_process';
import { copyFileSync, readFileSync } from 'node:fs';
import { basename, join } from 'node:path';
import * as content from './checks/content.js';
import * as layout from './checks/layout.js';
import * as policy from './checks/policy.js';
import * as structure from './checks/structure.js';
import { makeFolder } from './support/folder.js';
import { payloads, writeHostileNames, writeHostileText, writeHostileXml } from './support/hostileFiles.js';
import { command, examples, writeReport } from './support/reports.js';
import { describeInBrowser, itHolds, itHoldsAll } from './support/suite.js';

const folder = makeFolder();
const charger = examples.find((file) => file.endsWith('.txt') && file.includes('charger'));

let number = 0;
const reportOf = (name, ...files) => ({ name, page: writeReport(join(folder, `${++number}.html`), ...files) });

// Tests that the texts in those reports have remained texts.
function itIsText(what, browser, reports) {
  itHoldsAll(browser, reports, {}, [
    [`${what}: makes no elements`, structure.hasNoForeignElements],
    [`${what}: makes no ids or links`, structure.refersToWhatIsThere],
    [`${what}: leaves the ids unique`, structure.hasUniqueIds],
    [`${what}: keeps the sections`, structure.hasItsSections],
    [`${what}: neither controls nor reorders`, content.hasNoControlCharacters],
    [`${what}: does nothing`, policy.doesNothingOnItsOwn],
    [`${what}: does nothing when it is used`, policy.doesNothingWhenUsed],
  ]);
  itHoldsAll(browser, reports, { width: 360 }, [
    [`${what}: fits 360 pixels`, layout.fitsItsWidth],
    [`${what}: fits 360 pixels when all is opened`, layout.fitsItsWidthWhenOpened],
  ]);
}

describeInBrowser('Hostile text in a text VIF', (browser) => {
  const file = writeHostileText(folder);
  const reports = [reportOf('alone', file), reportOf('compared', file, charger), reportOf('compared with itself', file, file)];

  itIsText('In a text VIF', browser, reports);
  itHolds('is shown as it is', browser, reports.slice(0, 1), content.showsText(...payloads));
});

describeInBrowser('Hostile text in an XML VIF', (browser) => {
  const files = writeHostileXml(folder);
  const reports = files.map((file, i) => reportOf(`file ${i}`, file));
  const pairs = [reportOf('two of them', files[0], files[1]), reportOf('and a harmless one', charger, files[0])];

  itIsText('In an XML VIF', browser, reports);
  itIsText('In two XML VIFs', browser, pairs);
  itHolds('is shown as it is', browser, reports.slice(0, 1), content.showsText(...payloads));
});

describeInBrowser('A hostile file name', (browser) => {
  const files = writeHostileNames(join(folder, 'names'), readFileSync(charger));
  const [first, second] = files;

  itIsText('In a name', browser, files.map((file) => reportOf(basename(file), file)));
  itIsText('In two names', browser, [reportOf('two', first, second)]);
});

// Node.js cannot pass such a name to a program, but a shell can.
describeInBrowser('A file name that is not UTF-8', (browser) => {
  const page = join(folder, 'not-utf8.html');
  copyFileSync(charger, join(folder, 'to-be-renamed.txt'));
  const script = 'cd "$1" && mv to-be-renamed.txt $\'\\xff\\xfe.txt\' && "$2" report -o not-utf8.html $\'\\xff\\xfe.txt\'';
  execFileSync('bash', ['-c', script, 'bash', folder, command]);

  itIsText('In bytes', browser, [{ name: 'bytes', page }]);
});
