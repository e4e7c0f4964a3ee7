import * as content from './checks/content.js';
import * as pictures from './checks/pictures.js';
import * as structure from './checks/structure.js';
import { fieldsOf, someReports, writeReports } from './support/reports.js';
import { describeInBrowser, itHolds, itHoldsAll } from './support/suite.js';

describeInBrowser('A report says what the file says', (browser) => {
  const reports = writeReports();
  const singles = reports.filter(({ files }) => files.length === 1);
  const pairs = reports.filter(({ files }) => files.length === 2);
  const powered = singles.filter(({ name }) => !name.includes('cable'));

  itHoldsAll(browser, reports, {}, [
    ['has its sections', structure.hasItsSections],
    ['names its language', structure.namesItsLanguage],
    ['has unique ids', structure.hasUniqueIds],
    ['refers only to what is there', structure.refersToWhatIsThere],
    ['has a name for every picture', pictures.hasNamedPictures],
    ['has a table after every picture', pictures.hasATableForEveryPicture],
  ]);
  itHolds('has a section for the differences of two files', browser, pairs, structure.hasDifferences);
  itHolds('has pictures of the power of ports', browser, powered, pictures.hasPictures);
  itHolds('refers only to what is there, with findings', browser, someReports(), structure.refersToWhatIsThere);
  for (const report of singles) {
    itHolds(`shows all fields of ${report.name}`, browser, [report], content.showsAllFields(fieldsOf(report.files[0])));
  }
});
