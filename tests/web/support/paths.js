// Where what is tested is.
import { readdirSync } from 'node:fs';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';

export const root = fileURLToPath(new URL('../../../', import.meta.url));
export const command = process.env.VIF ?? join(root, 'build/release/cli/vif');
export const buildFolder = process.env.VIF_WEB_BUILD ?? join(root, 'build/web');
export const page = join(buildFolder, 'vif.html');
export const examplesFolder = join(root, 'examples/vif');
export const example = (name) => join(examplesFolder, name);
export const examples = readdirSync(examplesFolder)
  .filter((name) => /\.(txt|xml)$/.test(name))
  .map(example);
