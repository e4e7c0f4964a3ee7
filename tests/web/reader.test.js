// What the module answers in Node.js, besides what equals the command's.
import assert from 'node:assert/strict';
import { createRequire } from 'node:module';
import { readFileSync } from 'node:fs';
import { join } from 'node:path';
import { it } from 'node:test';
import { xmlWithMistakes } from './support/files.js';
import { openNodeReader } from './support/nodeReader.js';
import { buildFolder, example, root } from './support/paths.js';
import { unusableModule } from './support/unusableModule.js';

const require = createRequire(import.meta.url);
const reader = await openNodeReader();

it('says that a module cannot be instantiated', { timeout: 10_000 }, async () => {
  const { openReader } = require(join(root, 'web/reader.js'));
  const makeReader = require(join(buildFolder, 'web/vif_reader.js'));
  const compiled = new WebAssembly.Module(unusableModule);
  await assert.rejects(openReader(makeReader, { compiled, schemas: {} }), /nowhere/);
});

it('gives every reason its message and place, and the first hundred the text of their line', () => {
  const count = 300;
  const text = xmlWithMistakes(count);
  const lines = text.split('\n');
  const reasons = reader.reasons({ name: 'a.xml', bytes: Buffer.from(text) });
  assert.equal(reasons.length, count);
  for (const [i, { line, message, before, after }] of reasons.entries()) {
    assert.ok(line > 0 && message, `reason ${i}`);
    if (i < 100) assert.equal(`${before}${after}`, lines[line - 1]);
    else assert.deepEqual([before, after], [undefined, undefined]);
  }
});

for (const [from, name, advice] of [
  ['gan-charger-65w.txt', 'text.xml', 'this is a text VIF, not XML; the name of a text VIF ends in .txt'],
  ['usb4-dock.xml', 'xml.txt', 'this is XML, not a text VIF; the name of an XML VIF ends in .xml'],
]) {
  it(`refuses ${name}, which is of the other form, and has the reason`, () => {
    const file = { name, bytes: readFileSync(example(from)) };
    assert.throws(() => reader.report(file), { message: advice });
    assert.throws(() => reader.fieldsJson(file), { message: advice });
    assert.deepEqual(reader.reasons(file).map(({ message }) => message), [advice]);
    assert.match(Buffer.from(reader.findingsJson(file, true)).toString(), /wrong-extension/);
  });
}

it('forgets the advice on one file when it reads the next', () => {
  assert.throws(() => reader.report({ name: 'xml.txt', bytes: readFileSync(example('usb4-dock.xml')) }), /this is XML/);
  assert.throws(() => reader.report({ name: 'a.xml', bytes: Buffer.from('<a/>') }), (error) => !/this is XML/.test(error.message));
  assert.ok(reader.report({ name: 'empty.txt', bytes: Buffer.alloc(0) }).length > 0);
});
