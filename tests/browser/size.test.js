import assert from 'node:assert/strict';
import { statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { it } from 'node:test';
import * as content from './checks/content.js';
import * as policy from './checks/policy.js';
import { makeFolder } from './support/folder.js';
import { withPage } from './support/page.js';
import { examples, fieldsOf, writeReport } from './support/reports.js';
import { describeInBrowser, itHolds } from './support/suite.js';

const folder = makeFolder();

// Components of seven PDOs each.
function writeManyPdos(count) {
  const lines = ['$VIF_Specification: "3.26"', '$Vendor_Name: "Many"', 'VIF_Product_Type: 0'];
  for (let pdo = 0; pdo < count; ++pdo) {
    const n = (pdo % 7) + 1;
    if (n === 1) lines.push(`$Port_Label: "${pdo}"`, 'Connector_Type: 2', 'USB_PD_Support: YES', 'PD_Port_Type: 3', 'Num_Src_PDOs: 7');
    lines.push(`Src_PDO_Supply_Type${n}: 0`, `Src_PDO_Voltage${n}: ${100 + n}`, `Src_PDO_Max_Current${n}: 300`);
  }
  const file = join(folder, `${count}-pdos.txt`);
  writeFileSync(file, `${lines.join('\n')}\n`);
  return file;
}

describeInBrowser('The size of a report', (browser) => {
  it('is at most 300 kB for a VIF of 30 kB', () => {
    const sizes = examples
      .filter((file) => statSync(file).size > 20_000)
      .map((file) => [file, statSync(file).size, statSync(writeReport(join(folder, 'size.html'), file)).size]);
    assert.ok(sizes.length > 0);
    const faults = sizes.filter(([, vif, page]) => page > 300_000 * Math.max(1, vif / 30_000));
    assert.deepEqual(faults, []);
  });
});

// The bounds are generous: they tell a page that opens from one that hangs, on any machine.
describeInBrowser('A report of 10,000 PDOs', (browser) => {
  const file = writeManyPdos(10_000);
  const report = { name: '10,000 PDOs', page: writeReport(join(folder, 'many.html'), file) };
  const slow = { timeout: 180_000 };
  const patient = { patience: 60_000 };

  it('opens, and paints', slow, async () => {
    await withPage(browser(), report.page, patient, async (page) => {
      const paint = await page.evaluate(() => performance.getEntriesByName('first-contentful-paint')[0]?.startTime);
      assert.ok(paint < 20_000, `first paint after ${paint} ms`);
    });
  });

  it('filters within seconds', slow, async () => {
    await withPage(browser(), report.page, patient, async (page) => {
      const begin = Date.now();
      await page.type('#filter', 'Src_PDO_Voltage7');
      await page.waitForFunction(() => document.querySelector('#filter-count').textContent !== '', patient);
      const shown = await page.$$eval('tr.field', (rows) => rows.filter((row) => row.checkVisibility()).length);
      assert.equal(shown, Math.floor(10_000 / 7));
      assert.ok(Date.now() - begin < 30_000, `took ${Date.now() - begin} ms`);
    });
  });

  itHolds('does nothing', browser, [report], policy.doesNothingOnItsOwn, patient);
  itHolds('shows all fields', browser, [report], content.showsAllFields(fieldsOf(file)), patient);
});
