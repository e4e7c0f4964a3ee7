// Folders that go when the tests end.
import { mkdtempSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

export function makeFolder() {
  const folder = mkdtempSync(join(tmpdir(), 'vif-browser-'));
  process.on('exit', () => rmSync(folder, { recursive: true, force: true }));
  return folder;
}
