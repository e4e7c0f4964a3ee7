// That a page can be used without a mouse.
import { openAll, settle } from '../support/page.js';

const describe = `(e) => e.localName + (e.id ? '#' + e.id : '') + (e.getAttribute('href') ?? '')`;

// What each press of Tab reaches, until the focus leaves the page or `limit` presses.
async function pressTab(page, limit, look) {
  const seen = [];
  for (let i = 0; i < limit; ++i) {
    await page.keyboard.press('Tab');
    const found = await page.evaluate(`document.activeElement === document.body ? null : (${look})(document.activeElement)`);
    if (found === null) break;
    seen.push(found);
  }
  return seen;
}

const countFocusable = (page) =>
  page.$$eval('a[href], summary, input, button, [tabindex="0"]', (all) => all.filter((e) => e.checkVisibility()).length);

export async function reachesEverythingByTab(page) {
  const wanted = await page.evaluate(`[...document.querySelectorAll('a[href], summary, input, button, [tabindex="0"]')]
    .filter((e) => e.checkVisibility()).map(${describe})`);
  const reached = await pressTab(page, wanted.length + 5, describe);
  const faults = wanted.filter((name) => !reached.includes(name)).map((name) => `Tab does not reach ${name}`);
  if (reached.length !== wanted.length) faults.push(`Tab reaches ${reached.length} elements of ${wanted.length}`);
  if (!reached.includes('input#filter')) faults.push('Tab does not reach the filter');
  return faults;
}

// The element looks different from the same element without the focus.
export async function showsTheFocus(page) {
  const limit = Math.min(await countFocusable(page), 60);
  const faults = await pressTab(page, limit, (element) => {
    const style = getComputedStyle(element);
    const isOutlined = style.outlineStyle !== 'none' && parseFloat(style.outlineWidth) >= 1 &&
      !/^rgba\(.*, 0\)$/.test(style.outlineColor);
    const box = element.getBoundingClientRect();
    const isInView = box.bottom > 0 && box.top < innerHeight;
    if (isOutlined && isInView) return '';
    return `${element.localName} ${isInView ? 'does not show the focus' : 'has the focus out of view'}: ${element.textContent.slice(0, 30)}`;
  });
  return faults.filter((fault) => fault !== '');
}

// Follows a link by Enter. It must lead to an element that is then in view.
async function faultOfLink(page, href) {
  await page.focus(`a[href="${href}"]`);
  await page.keyboard.press('Enter');
  await settle();
  const fault = await page.evaluate((wanted) => {
    const target = document.querySelector(':target');
    if (!target || `#${target.id}` !== wanted) return 'does not become the target';
    if (/^#field-/.test(wanted) && !target.matches('tr.field')) return 'is not a field';
    const box = target.getBoundingClientRect();
    if (!target.checkVisibility() || box.height === 0) return 'is hidden';
    return box.bottom > 0 && box.top < innerHeight ? null : 'is out of view';
  }, href);
  return fault ? [`${href} ${fault}`] : [];
}

async function landsOn(page, selector, limit) {
  const hrefs = await page.$$eval(selector, (links) => links.filter((a) => a.checkVisibility()).map((a) => a.getAttribute('href')));
  const faults = [];
  for (const href of [...new Set(hrefs)].slice(0, limit)) faults.push(...(await faultOfLink(page, href)));
  return faults;
}

export const landsOnFields = (page) => landsOn(page, '#findings a[href^="#field-"]', 20);

// Links to parts of the page, and to explanations, which may be folded away.
export async function landsOnOtherParts(page) {
  await openAll(page);
  return landsOn(page, 'a[href^="#"]:not([href^="#field-"])', 20);
}

export async function landsOnFilteredFields(page) {
  if (!(await page.$('#findings a[href^="#field-"]'))) return ['no finding has a link'];
  await page.type('#filter', 'no field has this text');
  return landsOnFields(page);
}

export async function opensSummariesByEnter(page) {
  const faults = [];
  for (const summary of (await page.$$('summary')).slice(0, 10)) {
    if (!(await summary.evaluate((element) => element.checkVisibility()))) continue;
    const isOpen = () => summary.evaluate((element) => element.parentElement.open);
    const before = await isOpen();
    await summary.focus();
    await page.keyboard.press('Enter');
    if ((await isOpen()) === before) faults.push('Enter does not open a summary');
  }
  return faults;
}
