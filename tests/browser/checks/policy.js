// That a page is inert.
import { openAll, settle } from '../support/page.js';

export const doesNothingOnItsOwn = async (page, events) => events;

// Opens what is closed and moves over what is there, as a reader might.
export async function doesNothingWhenUsed(page, events) {
  await openAll(page);
  await page.evaluate(() => {
    for (const element of document.querySelectorAll('main *')) {
      element.dispatchEvent(new MouseEvent('mouseover', { bubbles: true }));
      if (element.matches('a, button, summary, input')) element.focus();
    }
  });
  await settle();
  return events;
}

const allowed = {
  'default-src': /^'none'$/,
  'style-src': /^'sha(256|384|512)-[A-Za-z0-9+/]+=*'$/,
  'script-src': /^'sha(256|384|512)-[A-Za-z0-9+/]+=*'$/,
  'base-uri': /^'none'$/,
  'form-action': /^'none'$/,
};

const parsePolicy = (text) =>
  new Map(
    text
      .split(';')
      .map((directive) => directive.trim().split(/\s+/))
      .filter(([name]) => name)
      .map(([name, ...sources]) => [name, sources]),
  );

export async function hasAStrictPolicy(page) {
  const metas = await page.$$eval('meta[http-equiv="Content-Security-Policy" i]', (elements) =>
    elements.map((element) => ({ content: element.content, inHead: element.parentElement === document.head })),
  );
  if (metas.length !== 1) return [`${metas.length} policies`];
  const faults = metas[0].inHead ? [] : ['the policy is not in the head'];
  const policy = parsePolicy(metas[0].content);
  for (const name of Object.keys(allowed)) if (!policy.has(name)) faults.push(`no ${name}`);
  for (const [name, sources] of policy) {
    if (!allowed[name]) faults.push(`${name} is not needed`);
    else if (sources.length !== 1 || !allowed[name].test(sources[0])) faults.push(`${name} ${sources.join(' ')}`);
  }
  return faults;
}

export async function hasItsPolicyBeforeAnythingElse(page) {
  const early = await page.evaluate(() => {
    const meta = document.querySelector('meta[http-equiv="Content-Security-Policy" i]');
    const isBefore = (element) => meta.compareDocumentPosition(element) & Node.DOCUMENT_POSITION_PRECEDING;
    return [...document.querySelectorAll('style, script, link, base, img, body')].filter(isBefore).map((e) => e.localName);
  });
  return early.map((name) => `${name} before the policy`);
}

// Whether an event is noted, which may take its time on a busy machine.
async function isNoted(events, expected) {
  for (let waits = 0; waits < 100 && !events.includes(expected); ++waits) await settle();
  return events.includes(expected);
}

// Tries what the policy must stop. Every attempt must be reported, and none may succeed.
export async function stopsWhatIsInjected(page, events) {
  const attempts = {
    'violation script-src-elem inline': (element) => {
      element('script').textContent = 'window.injected = true';
    },
    'violation script-src-attr inline': (element) => {
      const button = element('button');
      button.setAttribute('onclick', 'window.injected = true');
      button.click();
    },
    'violation style-src-attr inline': (element) => element('p').setAttribute('style', 'color: red'),
    'violation style-src-elem inline': (element) => {
      element('style').textContent = 'p { color: red }';
    },
    'violation img-src https://example.invalid/x.png': (element) => {
      element('img').src = 'https://example.invalid/x.png';
    },
    'violation frame-src https://example.invalid': (element) => {
      element('iframe').src = 'https://example.invalid/';
    },
    'violation connect-src https://example.invalid/': () => {
      fetch('https://example.invalid/').catch(() => {});
    },
  };
  const faults = [];
  for (const [expected, attempt] of Object.entries(attempts)) {
    events.length = 0;
    await page.evaluate(`(${attempt})((name) => document.body.appendChild(document.createElement(name)))`);
    if (!(await isNoted(events, expected))) faults.push(`not reported: ${expected}`);
    if (events.some((event) => event.startsWith('response http'))) faults.push(`answered: ${expected}`);
  }
  if (await page.evaluate(() => window.injected === true)) faults.push('an injected script ran');
  return faults;
}
