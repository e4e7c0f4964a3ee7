// Serves the page on this machine, for a try.
import { page } from './support/paths.js';
import { servePage } from './support/server.js';

const { address } = await servePage(page, Number(process.argv[2]));
console.log(`The page is at ${address} (Ctrl+C ends it), and in ${page}`);
