// What the module answers in Node.js equals what the native command prints, to the byte. VIF_WEB_FILES names a folder
// of further files; scripts/web.sh generates a thousand.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { copyFileSync, readdirSync, readFileSync } from 'node:fs';
import { basename, dirname, join } from 'node:path';
import { availableParallelism } from 'node:os';
import { it } from 'node:test';
import { makeFolder } from '../browser/support/folder.js';
import { command, example, examples, root } from './support/paths.js';
import { openNodeReader } from './support/nodeReader.js';

const listFiles = (folder) =>
  readdirSync(folder)
    .filter((name) => /\.(txt|xml)$/.test(name))
    .sort((a, b) => a.localeCompare(b, 'en', { numeric: true }))
    .map((name) => join(folder, name));

const misnamedFolder = makeFolder();
const documents = listFiles(join(root, 'docs'));
const generated = process.env.VIF_WEB_FILES ? listFiles(process.env.VIF_WEB_FILES) : [];

// Text that is named as XML, and the reverse.
const misnamed = [['gan-charger-65w.txt', 'text.xml'], ['usb4-dock.xml', 'xml.txt']].map(([from, name]) => {
  const file = join(misnamedFolder, name);
  copyFileSync(example(from), file);
  return file;
});

const files = [...examples, ...documents, ...misnamed, ...generated];

// The command runs in the file's folder, so that the name is the same for both.
const runVif = (folder, args) =>
  new Promise((resolve, reject) => {
    const child = spawn(command, args, { cwd: folder });
    const output = [];
    const errors = [];
    child.stdout.on('data', (part) => output.push(part));
    child.stderr.on('data', (part) => errors.push(part));
    child.on('error', reject);
    child.on('close', (status) => resolve({ status, output: Buffer.concat(output), error: Buffer.concat(errors).toString() }));
  });

const given = (file) => ({ name: basename(file), bytes: readFileSync(file) });

// The answer, or the message of the failure.
function ask(reader, call, ...parameters) {
  try {
    return { output: Buffer.from(reader[call](...parameters)) };
  } catch (error) {
    if (error.status === undefined) throw error;
    return { error: error.message };
  }
}

function faultOf(what, native, here) {
  if (native.status === 2) {
    if (!here.error) return `${what}: the command fails, and the module does not: ${native.error.trim()}`;
    return native.error.includes(here.error) ? null : `${what}: "${here.error}" is not in "${native.error.trim()}"`;
  }
  if (here.error) return `${what}: the module fails: ${here.error}`;
  return native.output.equals(here.output) ? null : `${what}: ${native.output.length} and ${here.output.length} bytes differ`;
}

// Runs `compare` for each item, several at a time, and returns the faults.
async function faultsOf(items, compare) {
  const waiting = [...items];
  const faults = [];
  const work = async () => {
    for (let item = waiting.shift(); item; item = waiting.shift()) faults.push(...(await compare(item)).filter(Boolean));
  };
  await Promise.all(Array.from({ length: availableParallelism() }, work));
  return faults;
}

const reader = await openNodeReader();

const single = [
  ['list --format json', 'fieldsJson'],
  ['list --format csv', 'fieldsCsv'],
  ['check --format json', 'findingsJson', false],
  ['check --notes --format json', 'findingsJson', true],
  ['report', 'report'],
];
for (const [line, call, ...options] of single) {
  it(`gives what 'vif ${line}' prints for ${files.length} files`, async () => {
    const compare = async (file) => {
      const native = await runVif(dirname(file), [...line.split(' '), basename(file)]);
      return [faultOf(basename(file), native, ask(reader, call, given(file), ...options))];
    };
    assert.deepEqual(await faultsOf(files, compare), []);
  });
}

// Each file with the next one of its folder.
const pairs = files.slice(1).map((file, i) => [files[i], file]).filter(([a, b]) => dirname(a) === dirname(b));
for (const [line, call] of [['diff --format json', 'differencesJson'], ['report', 'report']]) {
  it(`gives what 'vif ${line}' prints for ${pairs.length} pairs`, async () => {
    const compare = async ([a, b]) => {
      const native = await runVif(dirname(a), [...line.split(' '), basename(a), basename(b)]);
      return [faultOf(`${basename(a)} and ${basename(b)}`, native, ask(reader, call, given(a), given(b)))];
    };
    assert.deepEqual(await faultsOf(pairs, compare), []);
  });
}

it('is compared with care: one byte more is a difference', async () => {
  const [file] = examples;
  const native = await runVif(dirname(file), ['list', '--format', 'csv', basename(file)]);
  const here = ask(reader, 'fieldsCsv', given(file));
  assert.equal(faultOf('', native, here), null);
  assert.match(faultOf('', native, { output: Buffer.concat([here.output, Buffer.from(' ')]) }), /bytes differ/);
  assert.match(faultOf('', native, { error: 'no' }), /the module fails/);
  assert.match(faultOf('', { status: 2, error: 'vif: no' }, here), /the command fails/);
  assert.match(faultOf('', { status: 2, error: 'vif: no' }, { error: 'yes' }), /"yes" is not in "vif: no"/);
});
