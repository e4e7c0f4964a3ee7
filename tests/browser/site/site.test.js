// Whether the site of the documentation can be read anywhere: without a network, on a telephone, in the dark; and
// whether its search finds what it should. SITE names its folder; scripts/test-docs.sh sets it.
import assert from 'node:assert/strict';
import { existsSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { pathToFileURL } from 'node:url';
import { launchBrowser } from '../support/browser.js';

const site = process.env.SITE;
const address = (page) => pathToFileURL(join(site, page)).href;

// Lists of members, sources, fields and rules look alike, so a few of them will do.
const samples = [
  'classCVendorInfoFile-members.html',
  'file-examples-programs-source_pdos-cpp.html',
  'field-src_pdo_supply_type.html',
  'field-port_source_power_gang_max_power.html',
  'rule-pdo-above-rating.html',
  'rule-unanswered.html',
  'python-class-finding.html',
];
const pages = readdirSync(site).filter(
  (name) => name.endsWith('.html') && !/^(file|field|rule|python-class)-|-members\.html$/.test(name) || samples.includes(name),
);

let browser;
before(async () => {
  browser = await launchBrowser(['--host-resolver-rules=MAP * ~NOTFOUND']);
});
after(() => browser?.close());

// A tab that notes every request that leaves the site, and every error.
async function openTab(width, scheme) {
  const tab = await browser.newPage();
  await tab.setOfflineMode(true);
  await tab.setViewport({ width, height: 800 });
  await tab.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
  tab.problems = [];
  const root = pathToFileURL(site).href;
  tab.on('request', (request) => {
    const isOurs = request.url().startsWith(root) || request.url().startsWith('data:');
    if (!isOurs) tab.problems.push(`asks for ${request.url()}`);
  });
  tab.on('requestfailed', (request) => tab.problems.push(`does not get ${request.url()}`));
  tab.on('pageerror', (error) => tab.problems.push(error.message));
  return tab;
}

// Whether a reader sees markup where there should be text.
const showsMarkup = () => /&(#x?[0-9a-f]+|lt|gt|amp|quot);|<\/?(a|code|em|img)\b/i.test(
  [...document.querySelectorAll('.contents, .headertitle')]
    .flatMap((part) => [...part.querySelectorAll('p, li, td, th, h1, h2, h3, code, .title')])
    .filter((element) => !element.closest('pre, .fragment'))
    .map((element) => [...element.childNodes].filter((node) => node.nodeType === Node.TEXT_NODE))
    .flat()
    .map((node) => node.data)
    .join(' '),
);

const isTooWide = () => document.documentElement.scrollWidth > window.innerWidth;

// The contrast of the running text with the page, as WCAG defines it.
function contrast() {
  const luminance = (color) => {
    const parts = color.match(/[\d.]+/g).slice(0, 3).map((part) => Number(part) / 255);
    const [r, g, b] = parts.map((part) => (part <= 0.03928 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4));
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
  };
  const text = luminance(getComputedStyle(document.querySelector('.contents')).color);
  const page = luminance(getComputedStyle(document.body).backgroundColor);
  return { ratio: (Math.max(text, page) + 0.05) / (Math.min(text, page) + 0.05), isDark: page < text };
}

test('there are pages of every kind', () => {
  const expected = ['index', 'tutorial', 'command', 'interface', 'python-interface', 'rules', 'fields', 'architecture'];
  const kinds = [...expected, 'classCVendorInfoFile', 'vif_8h', 'Check_8h', 'field-src_pdo_voltage', 'rule-pdo-above-rating'];
  assert.deepEqual(kinds.filter((name) => !existsSync(join(site, `${name}.html`))), []);
});

test('the pages that stand for others are there', () => {
  assert.deepEqual(samples.filter((name) => !existsSync(join(site, name))), []);
});

test('every page needs no network, fits on a telephone and shows no markup', async () => {
  const wrong = [];
  const rest = [...pages];
  const visitRest = async () => {
    const tab = await openTab(360, 'light');
    while (rest.length > 0) {
      const page = rest.pop();
      await tab.goto(address(page), { waitUntil: 'load' });
      if (await tab.evaluate(isTooWide)) wrong.push(`${page} is too wide`);
      if (await tab.evaluate(showsMarkup)) wrong.push(`${page} shows markup`);
      wrong.push(...tab.problems.splice(0).map((problem) => `${page} ${problem}`));
    }
    await tab.close();
  };
  await Promise.all([visitRest(), visitRest()]);
  assert.deepEqual(wrong, []);
});

test('the checks of the pages can fail', async () => {
  const tab = await openTab(360, 'light');
  await tab.goto(address('index.html'), { waitUntil: 'load' });
  await tab.evaluate(() => {
    document.body.insertAdjacentHTML('beforeend', '<div style="width: 400px">wide</div>');
  });
  assert.equal(await tab.evaluate(isTooWide), true);
  await tab.evaluate(() => {
    document.querySelector('.contents').insertAdjacentHTML('beforeend', '<p>&amp;quot;</p>');
  });
  assert.equal(await tab.evaluate(showsMarkup), true);
  await tab.evaluate(() => fetch('https://example.invalid/').catch(() => {}));
  assert.ok(tab.problems.some((problem) => problem.includes('asks for https://example.invalid/')), tab.problems.join());
  await tab.close();
});

for (const scheme of ['light', 'dark']) {
  test(`text can be read in the ${scheme}`, async () => {
    const tab = await openTab(1200, scheme);
    await tab.goto(address('rules.html'), { waitUntil: 'load' });
    const { ratio, isDark } = await tab.evaluate(contrast);
    assert.ok(ratio >= 7, `the contrast is ${ratio}`);
    assert.equal(isDark, scheme === 'dark');
    await tab.close();
  });
}

// Waits until the results of the search, which appear in a frame of the page, have what begins with a text.
async function search(tab, text, timeout = 20000) {
  await tab.goto(address('index.html'), { waitUntil: 'load' });
  await tab.waitForSelector('#MSearchField');
  await tab.type('#MSearchField', text, { delay: 5 });
  const frame = await (await tab.waitForSelector('#MSearchResults')).contentFrame();
  await (frame ?? tab).waitForFunction(
    (wanted) => {
      const links = [...document.querySelectorAll('a.SRSymbol')].filter((link) => link.checkVisibility());
      const names = links.map((link) => link.textContent.toLowerCase());
      return names.some((name) => name.startsWith(wanted.toLowerCase()));
    },
    { timeout },
    text,
  );
}

test('the search finds classes, functions, documents, fields, rules and Python', async () => {
  const tab = await openTab(1200, 'light');
  for (const text of ['CVendorInfoFile', 'vif_check_file', 'Architecture', 'Src_PDO_Voltage', 'pdo-above-rating', 'load in Python']) {
    await search(tab, text);
  }
  await assert.rejects(search(tab, 'no-such-thing', 1000));
  await tab.close();
});
