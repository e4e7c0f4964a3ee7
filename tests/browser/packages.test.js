import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { it } from 'node:test';

const lock = JSON.parse(readFileSync(new URL('package-lock.json', import.meta.url), 'utf8'));
const packages = Object.entries(lock.packages).filter(([name]) => name !== '');

it('The lock file leaves open where packages come from', () => {
  const resolved = packages.filter(([, { resolved: source }]) => source).map(([name]) => name);
  assert.deepEqual(resolved, []);
});

it('The lock file pins the content of every package', () => {
  assert.ok(packages.length > 0);
  const loose = packages.filter(([, { integrity }]) => !/^sha512-/.test(integrity ?? '')).map(([name]) => name);
  assert.deepEqual(loose, []);
});

it('No package runs a script when it is installed', () => {
  const scripts = packages.filter(([, { hasInstallScript }]) => hasInstallScript).map(([name]) => name);
  assert.deepEqual(scripts, []);
});
