// What the filter of the fields does.
import { settle } from '../support/page.js';

export const countShownRows = (page) =>
  page.evaluate(() => [...document.querySelectorAll('#fields tr.field')].filter((row) => row.checkVisibility()).length);

// What each row shows while it explains nothing.
const allTexts = (page) =>
  page.evaluate(() => {
    const textOf = (cell) => {
      const walker = document.createTreeWalker(cell, NodeFilter.SHOW_TEXT);
      let text = '';
      while (walker.nextNode()) if (walker.currentNode.parentElement.checkVisibility()) text += walker.currentNode.data;
      return text;
    };
    return [...document.querySelectorAll('#fields tr.field')].map((row) => [...row.cells].map(textOf).join(' '));
  });
const countText = (page) => page.$eval('#filter-count', (output) => output.textContent.trim());

async function typeIntoFilter(page, text) {
  await page.focus('#filter');
  await page.keyboard.down('Control');
  await page.keyboard.press('a');
  await page.keyboard.up('Control');
  await page.keyboard.press('Backspace');
  await page.keyboard.type(text);
  await settle();
}

const expectEqual = (what, found, wanted) => (found === wanted ? [] : [`${what} is ${found} instead of ${wanted}`]);

// A word that some rows have and others do not.
async function findTellingWord(page) {
  const texts = await allTexts(page);
  const words = [...new Set(texts.join(' ').match(/[A-Za-z]{5,}/g))];
  const has = (text, word) => text.toLowerCase().includes(word.toLowerCase());
  const word = words.find((candidate) => {
    const count = texts.filter((text) => has(text, candidate)).length;
    return count >= 2 && count <= texts.length / 2;
  });
  if (!word) throw new Error('No word tells the fields apart');
  return { word, count: texts.filter((text) => has(text, word)).length, all: texts.length };
}

export async function filtersWhatIsTyped(page) {
  const { word, count } = await findTellingWord(page);
  await typeIntoFilter(page, word);
  const faults = expectEqual(`the number of rows for "${word}"`, await countShownRows(page), count);
  await typeIntoFilter(page, word.toUpperCase());
  return [...faults, ...expectEqual('the number in capitals', await countShownRows(page), count)];
}

export async function saysHowManyAreShown(page) {
  const { word, count, all } = await findTellingWord(page);
  await typeIntoFilter(page, word);
  const said = await countText(page);
  const numbers = said.match(/\d+/g)?.map(Number) ?? [];
  const faults = numbers.includes(count) && numbers.includes(all) ? [] : [`"${said}" does not say ${count} of ${all}`];
  const isLive = await page.$eval('#filter-count', (e) => e.localName === 'output' || e.getAttribute('aria-live') === 'polite');
  return isLive ? faults : [...faults, 'the count is not announced'];
}

export async function clearingRestores(page) {
  const all = await countShownRows(page);
  const { word } = await findTellingWord(page);
  await typeIntoFilter(page, word);
  await typeIntoFilter(page, '');
  return expectEqual('the number of rows after clearing', await countShownRows(page), all);
}

export async function saysThatNothingMatches(page) {
  await typeIntoFilter(page, 'no field has this text');
  const faults = expectEqual('the number of rows', await countShownRows(page), 0);
  const said = await countText(page);
  return /\b(0|no|none|nothing)\b/i.test(said) ? faults : [...faults, `"${said}" does not say that nothing matches`];
}

// As a regular expression each of these would match all rows, or be an error.
export async function takesTextLiterally(page) {
  const faults = [];
  const texts = await allTexts(page);
  for (const pattern of ['.*', '[a-z]', '(', '^', '\\w', 'a|e', '$', '*']) {
    await typeIntoFilter(page, pattern);
    const wanted = texts.filter((text) => text.toLowerCase().includes(pattern)).length;
    faults.push(...expectEqual(`the number of rows for "${pattern}"`, await countShownRows(page), wanted));
  }
  return faults;
}

export async function isShownWithScripts(page) {
  return page.evaluate(() => {
    const isShown = (selector) => document.querySelector(selector)?.checkVisibility() === true;
    return isShown('#filter-box') && isShown('#filter') ? [] : ['the filter is hidden'];
  });
}

// The rest of the page does not depend on scripts.
export async function isHiddenWithoutScripts(page) {
  const isShown = await page.$eval('#filter-box', (box) => box.checkVisibility());
  const all = (await allTexts(page)).length;
  const faults = isShown ? ['the filter is shown'] : [];
  if (all === 0 || (await countShownRows(page)) !== all) faults.push('not all fields are shown');
  return faults;
}
