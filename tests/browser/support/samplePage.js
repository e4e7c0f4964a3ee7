// A small page that passes every check, and that controls.test.js spoils in one way at a time.
import { createHash } from 'node:crypto';

const hash = (text) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`;

const style = `
  :root { color-scheme: light dark; --ink: #1a1a1a; --paper: #ffffff; }
  @media (prefers-color-scheme: dark) { :root { --ink: #eeeeee; --paper: #121212; } }
  @media print { :root { color-scheme: light; --ink: #000000; --paper: #ffffff; } #filter-box { display: none; } }
  body { color: var(--ink); background: var(--paper); font: 16px sans-serif; margin: 8px; overflow-wrap: anywhere; }
  a, summary { color: inherit; }
  :focus-visible { outline: 2px solid currentColor; }
  .wide { overflow-x: auto; }
  .wide table { min-width: 600px; }
  svg { width: 100%; max-width: 300px; height: auto; }
  svg text { fill: var(--ink); font-size: 12px; }
  [hidden] { display: none !important; }
`;

const script = `
  const box = document.getElementById('filter-box');
  const filter = document.getElementById('filter');
  const rows = [...document.querySelectorAll('tr.field')];
  const apply = () => {
    const wanted = filter.value.toLowerCase();
    for (const row of rows) row.hidden = !row.textContent.toLowerCase().includes(wanted);
    const count = rows.filter((row) => !row.hidden).length;
    document.getElementById('filter-count').textContent = wanted ? count + ' of ' + rows.length + ' fields' : '';
  };
  filter.addEventListener('input', apply);
  addEventListener('hashchange', () => { filter.value = ''; apply(); document.querySelector(':target').scrollIntoView(); });
  box.hidden = false;
`;

const row = (position, name, value) => `
  <tr class="field" id="field-${position}"><th scope="row">${name}</th><td>${value}</td>
  <td><details class="explain"><summary>Explain ${name}</summary>What it means.</details></td></tr>`;

const rows = [
  ['Vendor_Name', 'Quillmere (Power) Works'], ['Model_Part_Number', '$.*[a-z]^'], ['Connector_Type', '2'],
  ['Captive_Cable', '0'], ['Num_Src_PDOs', '1'], ['Src_PDO_Voltage1', '100'], ['Src_PDO_Max_Current1', '300'],
  ['Src_PDO_Voltage2', '180'], ['XID_SOP', 'a|e\\w'],
].map(([name, value], position) => row(position, name, value)).join('');

const body = `<main><h1>Sample</h1>
<section id="summary"><h2>Summary</h2><p>One port.</p><p><a href="#fields">All fields</a></p></section>
<section id="findings"><h2>Findings</h2><ul><li class="finding"><a href="#field-6">Too much current</a></li></ul></section>
<section class="port" id="component-1"><h2>Port 1</h2>
<figure class="picture"><svg role="img" aria-labelledby="picture-1" viewBox="0 0 300 100">
<title id="picture-1">Source PDOs of port 1</title>
<rect x="10" y="10" width="200" height="40" fill="#808080" fill-opacity="0.1"/><text x="20" y="35">5 V 3 A</text></svg>
<table><caption>Source PDOs</caption><tr><th scope="col">PDO</th><th scope="col">V</th></tr><tr><td>1</td><td>5</td></tr></table>
</figure></section>
<section id="differences"><h2>Differences</h2><p>One value differs.</p></section>
<section id="fields"><h2>Fields</h2>
<p id="filter-box" hidden><label for="filter">Filter</label> <input type="search" id="filter" name="filter" autocomplete="off">
<output id="filter-count" for="filter" aria-live="polite"></output></p>
<div class="wide" tabindex="0" role="region" aria-label="Table of fields"><table><caption>All fields</caption>
<thead><tr><th scope="col">Name</th><th scope="col">Value</th><th scope="col">Meaning</th></tr></thead>
<tbody>${rows}</tbody></table></div></section></main>`;

const policyOf = (parts) =>
  `default-src 'none'; style-src ${hash(parts.style)}; script-src ${hash(parts.script)}; base-uri 'none'; form-action 'none'`;

// `spoil` gets the parts of the page, and changes them.
export function samplePage(spoil = () => {}) {
  const parts = { language: 'en', head: '', style, script, body };
  parts.policy = (changed) => policyOf(changed);
  spoil(parts);
  return `<!doctype html><html lang="${parts.language}"><head><meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="${parts.policy(parts)}">
<meta name="viewport" content="width=device-width, initial-scale=1"><title>Sample</title>${parts.head}
<style>${parts.style}</style></head><body>${parts.body}<script>${parts.script}</script></body></html>`;
}
