import * as content from './checks/content.js';
import * as pictures from './checks/pictures.js';
import * as structure from './checks/structure.js';
import { fieldsOf, writeReports } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

describeInBrowser('A report says what the file says', (browser) => {
  const reports = writeReports();
  const singles = reports.filter(({ files }) => files.length === 1);
  const pairs = reports.filter(({ files }) => files.length === 2);
  const powered = singles.filter(({ name }) => !name.includes('cable'));

  itHolds('has its sections', browser, reports, structure.hasItsSections);
  itHolds('has a section for the differences of two files', browser, pairs, structure.hasDifferences);
  itHolds('names its language', browser, reports, structure.namesItsLanguage);
  itHolds('has unique ids', browser, reports, structure.hasUniqueIds);
  itHolds('refers only to what is there', browser, reports, structure.refersToWhatIsThere);
  itHolds('has pictures of the power of ports', browser, powered, pictures.hasPictures);
  itHolds('has a name for every picture', browser, reports, pictures.hasNamedPictures);
  itHolds('has a table after every picture', browser, reports, pictures.hasATableForEveryPicture);
  for (const report of singles) {
    itHolds(`shows all fields of ${report.name}`, browser, [report], content.showsAllFields(fieldsOf(report.files[0])));
  }
});
