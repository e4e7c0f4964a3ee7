// The pages that are tested: reports of the examples, written by the command.
import { spawnSync } from 'node:child_process';
import { readdirSync, readFileSync, writeFileSync } from 'node:fs';
import { basename, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { makeFolder } from './folder.js';

const root = fileURLToPath(new URL('../../../', import.meta.url));
export const command = process.env.VIF ?? join(root, 'build/release/cli/vif');
export const examplesFolder = join(root, 'examples/vif');

const runIn = (cwd, args) => {
  const { status, stdout, stderr, error } = spawnSync(command, args, { cwd, encoding: 'utf8', maxBuffer: 2 ** 28 });
  if (error) throw error;
  if (status !== 0) throw new Error(`vif ${args.join(' ')}: ${stderr || status}`);
  return stdout;
};

export const runVif = (...args) => runIn(root, args);

// A report of an example that names the file without its folder.
export function writeExampleReport(page, name) {
  runIn(examplesFolder, ['report', '-o', page, name]);
  return page;
}

export function writeReport(page, ...files) {
  runVif('report', '-o', page, ...files);
  return page;
}

export const fieldsOf = (file) => JSON.parse(runVif('list', '--format', 'json', file)).fields;

export const examples = readdirSync(examplesFolder)
  .filter((name) => /\.(txt|xml)$/.test(name))
  .map((name) => join(examplesFolder, name));

// Another revision of the charger, with less power, other names and one PDO fewer.
function writeChangedCharger(folder) {
  const file = join(folder, 'changed-charger.txt');
  const text = readFileSync(join(examplesFolder, 'gan-charger-65w.txt'), 'latin1');
  const changed = text
    .replace('"QPW-G65-1C"', '"QPW-G45-1C"')
    .replaceAll('65000', '45000')
    .replace('Src_PDO_Max_Current4: 325 ; 3250 mA', 'Src_PDO_Max_Current4: 225 ; 2250 mA')
    .replace('Num_Src_PDOs: 6', 'Num_Src_PDOs: 5')
    .replace(/; Source PDO 6[^;]*(;[^;\n]*\n[^;]*)*?;;;/, ';;;');
  writeFileSync(file, changed, 'latin1');
  return file;
}

function writeAll(folder, reports) {
  return reports.map((files, i) => {
    const name = files.map((file) => basename(file)).join(' and ');
    return { name, files, page: writeReport(join(folder, `${i}.html`), ...files) };
  });
}

// All reports as { name, files, page }. Those of two files compare them.
export function writeReports() {
  const folder = makeFolder();
  const charger = join(examplesFolder, 'gan-charger-65w.txt');
  const pairs = [
    [charger, join(examplesFolder, 'gan-charger-65w.xml')],
    [charger, writeChangedCharger(folder)],
    [join(examplesFolder, 'two-port-laptop.xml'), join(examplesFolder, 'usb4-dock.xml')],
  ];
  return writeAll(folder, [...examples.map((file) => [file]), ...pairs]);
}

// A few of them, for what takes long: the smallest, the largest, one with findings, and comparisons.
export function someReports() {
  const folder = makeFolder();
  const charger = join(examplesFolder, 'gan-charger-65w.txt');
  const flawed = join(root, 'docs/flawed-charger.txt');
  return writeAll(folder, [[charger], [join(examplesFolder, 'usb4-dock.xml')], [flawed], [charger, flawed], [flawed, charger]]);
}
