// The page in a browser, from a file and from a server that is gone once the page is there.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { readFileSync, writeFileSync } from 'node:fs';
import { basename, dirname, join } from 'node:path';
import { it } from 'node:test';
import { satisfiesAxeBesideItsFrames } from '../browser/checks/accessibility.js';
import { fitsItsWidth, scrollsByKeyboard } from '../browser/checks/layout.js';
import { stopsWhatIsInjected } from '../browser/checks/policy.js';
import { makeFolder } from '../browser/support/folder.js';
import { writeHostileNames, writeHostileText, writeHostileXml } from '../browser/support/hostileFiles.js';
import { settle } from '../browser/support/page.js';
import { describeInBrowser } from '../browser/support/suite.js';
import { deepXml, refusedXml, writeLargeText, writeLargeXml, xmlWithMistakes } from './support/files.js';
import { choose, drop, openTab, press, save, shownNotice, shownRefusal, shownReport, tabNames, withVifPage } from './support/pageDriver.js';
import { buildFolder, command, example, page as pageFile } from './support/paths.js';
import { servePage } from './support/server.js';

const folder = makeFolder();
const charger = example('gan-charger-65w.txt');
const dock = example('usb4-dock.xml');
const tablet = example('dual-role-tablet.txt');

function write(name, content) {
  const file = join(folder, name);
  writeFileSync(file, content);
  return file;
}

const refused = write('refused.xml', refusedXml);
const write65W = (name) => write(name, readFileSync(charger, 'latin1').replaceAll('65000', '45000'));

// What the command prints, run in the folder of the files. It fails for what it finds, too.
function vif(args, ...files) {
  const cwd = dirname(files[0]);
  try {
    return execFileSync(command, [...args.split(' '), ...files.map((file) => basename(file))], { cwd, maxBuffer: 2 ** 30 });
  } catch (error) {
    if (error.status !== 1) throw error;
    return error.stdout;
  }
}

const rowsOf = (report) => report.$$eval('#fields tr.field', (rows) => rows.filter((row) => row.checkVisibility()).length);

// Everything that it does works alike wherever the page is from.
for (const origin of ['a file', 'a server']) {
  describeInBrowser(`The page, from ${origin}`, (browser) => {
    const onPage = (what, use, options = {}) =>
      it(what, { timeout: 300_000 }, async () => {
        const server = origin === 'a server' ? await servePage(pageFile) : null;
        const given = server ? { ...options, address: server.address } : options;
        await withVifPage(browser(), given, async (page, events, recorded) => {
          server?.stop();
          await use(page, events, recorded);
          await settle();
          assert.deepEqual(events(), []);
          assert.equal(await page.$eval('#notice', (notice) => notice.hidden), true);
          assert.equal(await page.evaluate(() => document.cookie), '');
        });
      });

    onPage('shows the report on an XML file that was chosen, with its pictures and fields', async (page) => {
      await choose(page, dock);
      const report = await shownReport(page, 'usb4-dock.xml');
      assert.match(await report.$eval('h1', (title) => title.textContent), /\w/);
      assert.ok((await report.$$('figure.picture svg')).length > 0);
      assert.equal(await rowsOf(report), JSON.parse(vif('list --format json', dock)).fields.length);
      assert.notEqual(await report.$eval('body', (body) => getComputedStyle(body).fontFamily), 'serif');
    });

    onPage('shows the report on a text file that was dropped', async (page) => {
      await drop(page, { name: 'dropped.txt', text: readFileSync(charger, 'utf8') });
      const report = await shownReport(page, 'dropped.txt');
      assert.ok((await report.$$('figure.picture svg')).length > 0);
    });

    onPage('filters the fields', async (page) => {
      await choose(page, charger);
      const report = await shownReport(page, 'gan-charger');
      const all = await rowsOf(report);
      const expected = await report.$$eval('#fields tr.field', (rows) => rows.filter((row) => row.innerText.includes('Src_PDO_Voltage')).length);
      await report.type('#filter', 'Src_PDO_Voltage');
      await settle();
      assert.ok(expected > 0 && expected < all);
      assert.equal(await rowsOf(report), expected);
    });

    onPage('saves what the command prints', async (page) => {
      await choose(page, charger);
      await shownReport(page, 'gan-charger');
      const expected = {
        'Fields (JSON)': ['gan-charger-65w.json', vif('list --format json', charger)],
        'Fields (CSV)': ['gan-charger-65w.csv', vif('list --format csv', charger)],
        'Findings (JSON)': ['gan-charger-65w-findings.json', vif('check --notes --format json', charger)],
        'Report (HTML)': ['gan-charger-65w.html', vif('report', charger)],
      };
      for (const [entry, [name, content]] of Object.entries(expected)) {
        assert.ok(content.equals(await save(page, entry, name)), entry);
      }
    });

    onPage('compares two files that come together', async (page) => {
      const changed = write65W('changed.txt');
      const original = write('gan-charger-65w.txt', readFileSync(charger));
      await choose(page, original, changed);
      const report = await shownReport(page, 'changed.txt differs from gan-charger-65w.txt');
      assert.ok(await report.$('section#differences'));
      assert.deepEqual(await tabNames(page), ['gan-charger-65w.txt', 'changed.txt', 'Differences']);
      const differences = await save(page, 'Differences (JSON)', 'gan-charger-65w-to-changed.json');
      assert.ok(vif('diff --format json', original, changed).equals(differences));
      assert.ok(vif('report', original, changed).equals(await save(page, 'Report (HTML)', 'gan-charger-65w-to-changed.html')));
    });

    onPage('compares any two of several files, either way round', async (page) => {
      await choose(page, charger, dock, tablet);
      await shownReport(page, 'gan-charger');
      await page.waitForFunction(() => document.querySelectorAll('#tabs button').length === 4);
      await openTab(page, 'Differences');
      await shownReport(page, 'usb4-dock.xml differs from gan-charger');
      await page.select('#compared-0', 'dual-role-tablet.txt');
      await shownReport(page, 'usb4-dock.xml differs from dual-role-tablet.txt');
      await page.select('#compared-1', 'gan-charger-65w.txt');
      await shownReport(page, 'gan-charger-65w.txt differs from dual-role-tablet.txt');
    });

    onPage('says why a file is refused, every reason with its place and its line', async (page) => {
      await choose(page, refused);
      const text = await shownRefusal(page);
      const { findings } = JSON.parse(vif('check --format json', refused)).files[0];
      const reasons = findings.filter(({ severity }) => severity === 'error');
      const lines = refusedXml.split('\n');
      assert.ok(reasons.length >= 3);
      const shown = await page.$$eval('.reasons li', (items) =>
        items.map((item) => [item.textContent, item.querySelector('pre')?.textContent]));
      assert.equal(shown.length, reasons.length);
      for (const [i, { line, column, message }] of reasons.entries()) {
        assert.ok(shown[i][0].includes(message), message);
        assert.ok(shown[i][0].includes(`Line ${line}${column ? `, column ${column}` : ''}`));
        assert.ok(shown[i][1].includes(lines[line - 1].slice(0, 60)), shown[i][1]);
      }
      assert.match(text, /is not a valid Vendor Info File/);
      assert.ok(vif('check --notes --format json', refused).equals(await save(page, 'Findings (JSON)', 'refused-findings.json')));
      assert.equal(await page.$$eval('.menu li', (entries) => entries.length), 1);
    });

    onPage('shows all of many reasons, the first hundred with their line', async (page) => {
      await choose(page, write('many.xml', xmlWithMistakes(300)));
      await shownRefusal(page);
      assert.equal(await page.$$eval('.reasons li', (items) => items.filter((item) => /^Line \d/.test(item.textContent)).length), 300);
      assert.equal(await page.$$eval('.reasons pre', (sources) => sources.length), 100);
    });

    onPage('advises on a file that has the name of the other form', async (page) => {
      await choose(page, write('misnamed.txt', readFileSync(dock)));
      assert.match(await shownRefusal(page), /^[^]*this is XML, not a text VIF; the name of an XML VIF ends in \.xml\s*$/);
      assert.ok(vif('check --notes --format json', join(folder, 'misnamed.txt')).equals(await save(page, 'Findings (JSON)', 'misnamed-findings.json')));
    });

    onPage('refuses what is not a VIF', async (page) => {
      await choose(page, write('picture.png', 'x'));
      assert.match(await shownRefusal(page), /Must be text \(\*\.txt\) or XML/);
    });

    onPage('uses other schemas, until the built-in ones are wanted again', async (page) => {
      const strict = readFileSync(join(buildFolder, 'schemas/VendorInfoFile.xsd'), 'utf8')
        .replace('name="Vendor_Name" type="vif:TextField"', 'name="Vendor_Name" type="xs:integer"');
      await choose(page, dock);
      await shownReport(page, 'usb4-dock.xml');
      await drop(page, { name: 'VendorInfoFile.xsd', text: strict });
      assert.match(await shownRefusal(page), /Vendor_Name/);
      assert.match(await page.$eval('#schemas', (note) => note.textContent), /your VendorInfoFile\.xsd/);
      await press(page, 'Use the built-in ones');
      await shownReport(page, 'usb4-dock.xml');
    });

    onPage('says which schemas it cannot use', async (page) => {
      await drop(page, { name: 'Other.xsd', text: '<a/>' });
      assert.match(await shownNotice(page), /Other\.xsd is not used/);
      await drop(page, { name: 'VendorInfoFile.xsd', text: '<a/>' });
      await choose(page, dock);
      assert.match(await shownRefusal(page), /schema/);
    });

    onPage('survives hostile files', async (page) => {
      const names = writeHostileNames(join(makeFolder(), 'names'), readFileSync(charger));
      const hostile = [
        writeHostileText(folder),
        ...writeHostileXml(folder),
        ...names.slice(0, 4),
        write('deep.xml', deepXml),
        write('empty.xml', ''),
        write('entities.xml', '<!DOCTYPE a [<!ENTITY b "c">]><a>&b;</a>'),
        write('binary.txt', Buffer.from(Array.from({ length: 4096 }, (_, i) => (i * 7919) % 256))),
        write('long-line.xml', `<?xml version="1.0"?><a b="${'x'.repeat(1_000_000)}" c>`),
      ];
      await choose(page, ...hostile);
      await page.waitForFunction((count) => {
        const tabs = [...document.querySelectorAll('#tabs button')].filter((tab) => tab.textContent !== 'Differences');
        return tabs.length === count && !tabs.some((tab) => tab.classList.contains('reading'));
      }, {}, hostile.length);
      for (const name of ['deep.xml', 'entities.xml', 'long-line.xml']) {
        await openTab(page, name);
        assert.match(await shownRefusal(page), /cannot be read as a VIF/);
      }
      assert.equal(await page.evaluate(() => document.querySelectorAll('script, iframe, img, svg').length), 2);
      await choose(page, charger);
      await page.waitForFunction(() => document.querySelector('#tabs').textContent.includes('gan-charger'));
      await openTab(page, 'gan-charger-65w.txt');
      await shownReport(page, 'gan-charger');
    });

    onPage('reads a large file while it stays usable, and stops when asked', async (page) => {
      await page.evaluate(() => {
        window.longest = 0;
        let last = performance.now();
        setInterval(() => {
          const now = performance.now();
          window.longest = Math.max(window.longest, now - last);
          last = now;
        }, 10);
      });
      await choose(page, writeLargeText(folder, 10_000_000));
      await page.waitForSelector('#busy:not([hidden]) progress');
      assert.match(await page.$eval('#doing', (label) => label.textContent), /Reading large\.txt/);
      await press(page, 'Cancel');
      assert.match(await shownRefusal(page), /cancelled/);
      await press(page, 'Remove');
      await choose(page, writeLargeXml(folder, 10_000_000));
      await page.waitForSelector('#busy:not([hidden]) progress');
      page.setDefaultTimeout(200_000);
      assert.match(await shownRefusal(page), /large report/);
      assert.ok((await page.evaluate(() => window.longest)) < 2_000);
    });

    onPage('is used by keyboard', async (page) => {
      await page.keyboard.press('Tab');
      assert.equal(await page.evaluate(() => document.activeElement.id), 'choose');
      const opened = page.waitForFileChooser();
      await settle(); // until the browser hands choosers to the test
      await page.keyboard.press('Enter');
      const chooser = await opened;
      await chooser.accept([charger, tablet]);
      await shownReport(page, 'dual-role-tablet.txt differs');
      const reached = [];
      for (let i = 0; i < 12; ++i) {
        await page.keyboard.press('Tab');
        const found = await page.evaluate(() => {
          const { localName, textContent, id } = document.activeElement;
          const outline = getComputedStyle(document.activeElement).outlineStyle;
          return { name: localName === 'button' || localName === 'summary' ? textContent : id || localName, outline };
        });
        reached.push(found.name);
        // Within the frame, the report shows it.
        if (found.name !== 'iframe') assert.notEqual(found.outline, 'none', `${found.name} does not show the focus`);
      }
      for (const name of ['gan-charger-65w.txt', 'Differences', 'compared-0', 'compared-1', 'Save', 'iframe']) {
        assert.ok(reached.includes(name), `${name} is not among ${reached}`);
      }

      await page.focus('#tabs button');
      await page.keyboard.press('Enter');
      await shownReport(page, 'Report on gan-charger');
      assert.equal(await page.evaluate(() => document.activeElement.textContent), 'gan-charger-65w.txt');
      await page.focus('.menu summary');
      await page.keyboard.press('Enter');
      assert.equal(await page.$eval('.menu', (menu) => menu.open), true);
      await page.keyboard.press('Escape');
      assert.equal(await page.$eval('.menu', (menu) => menu.open), false);
      await page.focus('#tabs button');
      await page.keyboard.down('Shift');
      await page.keyboard.press('Tab');
      await page.keyboard.up('Shift');
      assert.equal(await page.evaluate(() => document.activeElement.id), 'add');
    });

    onPage('stops and reports what is injected', async (page, events, recorded) => {
      assert.deepEqual(events(), []);
      assert.deepEqual(await stopsWhatIsInjected(page, recorded), []);
      recorded.length = 0;
    });

    for (const scheme of ['light', 'dark']) {
      onPage(`satisfies axe-core, ${scheme}`, async (page) => {
        assert.deepEqual(await satisfiesAxeBesideItsFrames(page), []);
        await choose(page, refused);
        await shownRefusal(page);
        assert.deepEqual(await satisfiesAxeBesideItsFrames(page), []);
        await choose(page, charger, tablet);
        await shownReport(page, 'differs from');
        assert.deepEqual(await satisfiesAxeBesideItsFrames(page), []);
      }, { scheme });
    }

    onPage('fits 360 pixels', async (page) => {
      const fits = async () => assert.deepEqual([...(await fitsItsWidth(page)), ...(await scrollsByKeyboard(page))], []);
      await fits();
      await choose(page, refused);
      await shownRefusal(page);
      await fits();
      await choose(page, charger, tablet);
      const report = await shownReport(page, 'differs from');
      await fits();
      assert.deepEqual(await fitsItsWidth(report), []);
    }, { width: 360 });
  });
}

