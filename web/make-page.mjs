// Puts the module, its scripts, the schemas, the style and the script of the page into one HTML file.
//
//     node make-page.mjs FOLDER PAGE SCHEMA...     FOLDER has vif_reader.js and vif_reader.wasm
import { createHash } from 'node:crypto';
import { readFileSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { basename, join } from 'node:path';
import { gzipSync } from 'node:zlib';

const largest = 2_000_000; // bytes

const [folder, page, ...schemaFiles] = process.argv.slice(2);
const require = createRequire(import.meta.url);
const here = (name) => readFileSync(new URL(name, import.meta.url), 'utf8');
const hash = (text) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`;

const wasm = readFileSync(join(folder, 'vif_reader.wasm'));
const glueFile = join(folder, 'vif_reader.js');
const schemas = Object.fromEntries(schemaFiles.map((file) => [basename(file), readFileSync(file, 'utf8')]));

// A report within the page needs the permission of both policies, so the page's names the report's style and script.
async function reportHashes() {
  const { openReader } = require('./reader.js');
  const reader = await openReader(require(glueFile), { compiled: new WebAssembly.Module(wasm), schemas });
  const report = Buffer.from(reader.report({ name: 'a.txt', bytes: Buffer.from('PID: 1\n') })).toString();
  const hashOf = (directive) => report.match(new RegExp(`${directive} ('sha256-[^']+')`))[1];
  return { style: hashOf('style-src'), script: hashOf('script-src') };
}

const report = await reportHashes();
const reportStyle = readFileSync(new URL('../analysis/report/assets/report.css', import.meta.url), 'utf8');
const style = `${reportStyle}${here('look.css')}`;
const script = here('page.js');
const assets = JSON.stringify({
  module: gzipSync(wasm, { level: 9 }).toString('base64'),
  schemas,
  worker: [readFileSync(glueFile, 'utf8'), here('reader.js'), here('worker.js')].join('\n'),
}).replaceAll('<', '\\u003c');

const policy = [
  "default-src 'none'",
  `style-src ${hash(style)} ${report.style}`,
  `script-src ${hash(script)} ${report.script} 'wasm-unsafe-eval'`,
  'worker-src blob:',
  "base-uri 'none'",
  "form-action 'none'",
].join('; ');

const parts = { policy, style, script, assets };
const html = here('page.html').replace(/@(\w+)@/g, (all, name) => parts[name] ?? all);
writeFileSync(page, html);
const bytes = Buffer.byteLength(html);
console.log(`${page}: ${bytes} bytes`);
if (bytes > largest) throw new Error(`${page} has more than ${largest} bytes`);
