// The module and its schemas in Node.js.
import { readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { basename, join } from 'node:path';
import { buildFolder, root } from './paths.js';

const require = createRequire(import.meta.url);

export function openNodeReader() {
  const { openReader } = require(join(root, 'web/reader.js'));
  const makeReader = require(join(buildFolder, 'web/vif_reader.js'));
  const compiled = new WebAssembly.Module(readFileSync(join(buildFolder, 'web/vif_reader.wasm')));
  const schemaFiles = ['VendorInfoFile.xsd', 'VendorInfoFileOptionalContent.xsd'].map((name) => join(buildFolder, 'schemas', name));
  const schemas = Object.fromEntries(schemaFiles.map((file) => [basename(file), readFileSync(file, 'utf8')]));
  return openReader(makeReader, { compiled, schemas });
}
