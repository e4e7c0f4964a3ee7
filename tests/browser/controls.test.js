// Every check passes a sound page and fails one with the fault that the check is for. Otherwise what the checks say of
// reports would mean nothing.
import assert from 'node:assert/strict';
import { writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { after, before, describe, it } from 'node:test';
import * as accessibility from './checks/accessibility.js';
import * as content from './checks/content.js';
import * as filter from './checks/filter.js';
import * as keyboard from './checks/keyboard.js';
import * as layout from './checks/layout.js';
import * as pictures from './checks/pictures.js';
import * as policy from './checks/policy.js';
import * as print from './checks/print.js';
import * as structure from './checks/structure.js';
import { launchBrowser } from './support/browser.js';
import { makeFolder } from './support/folder.js';
import { faultsOf } from './support/page.js';
import { samplePage } from './support/samplePage.js';

const narrow = { width: 360 };
const dark = { scheme: 'dark' };
const darkPrint = { scheme: 'dark', media: 'print' };
const noScripts = { javaScript: false };

const replace = (part, from, to) => (parts) => {
  const changed = parts[part].replace(from, to);
  assert.notEqual(changed, parts[part], `the sample has no ${from}`);
  parts[part] = changed;
};
const append = (part, text) => (parts) => {
  parts[part] += text;
};
const add = (markup) => replace('body', '<h1>', `${markup}<h1>`);
const loosen = (from, to) => (parts) => {
  const { policy: strict } = parts;
  parts.policy = (changed) => strict(changed).replace(from, to);
};
const all = (...spoilers) => (parts) => spoilers.forEach((spoil) => spoil(parts));

const sampleFields = [{ name: 'Vendor_Name', value: 'Quillmere (Power) Works' }];

// The check, the fault, what makes the page faulty, what the check then says, and how the page is opened.
const controls = [
  [policy.doesNothingOnItsOwn, 'a request for a picture', add('<img alt="" src="https://example.invalid/x.png">'), /^violation img-src https:\/\/example\.invalid/],
  [policy.doesNothingOnItsOwn, 'a request that the policy lets through', all(add('<img alt="" src="https://example.invalid/x.png">'), loosen("'none'", 'https:')), /^request https:\/\/example\.invalid/],
  [policy.doesNothingOnItsOwn, 'an inline handler', add('<img alt="" src="x" onerror="alert(1)">'), /^violation script-src-attr inline/],
  [policy.doesNothingOnItsOwn, 'a dialog', append('script', 'alert(1);'), /^dialog alert: 1/],
  [policy.doesNothingOnItsOwn, 'a message', append('script', 'console.debug("here");'), /^console debug: here/],
  [policy.doesNothingOnItsOwn, 'an exception', append('script', 'missing();'), /^error missing is not defined/],
  [policy.doesNothingOnItsOwn, 'a rejected promise', append('script', 'Promise.reject(new Error("no"));'), /^error .*no/],
  [policy.doesNothingOnItsOwn, 'a script with another hash', loosen(/script-src '[^']*'/, "script-src 'sha256-AAAA'"), /^violation script-src-elem inline/],
  [policy.doesNothingOnItsOwn, 'a frame', add('<iframe title="x" srcdoc="x"></iframe>'), /^frame attached/],
  [policy.doesNothingOnItsOwn, 'a navigation', (parts) => { parts.head = '<meta http-equiv="refresh" content="0;url=about:blank">'; }, /^(navigation|request) about:blank/],
  [policy.doesNothingOnItsOwn, 'a style that the browser has to ignore', add('<p style="color: red">x</p>'), /^violation style-src-attr inline/],
  [policy.doesNothingOnItsOwn, 'a field without a name', add('<input type="search">'), /^issue GenericIssue/],
  [policy.doesNothingWhenUsed, 'a script that asks when something is opened', append('script', 'document.querySelector("details").addEventListener("toggle", () => fetch("https://example.invalid/"));'), /^violation connect-src https:\/\/example\.invalid/],
  [policy.hasAStrictPolicy, 'no policy', loosen(/.*/, ''), /^no default-src/],
  [policy.hasAStrictPolicy, 'an unsafe source', loosen(/style-src/, "style-src 'unsafe-inline'"), /^style-src 'unsafe-inline'/],
  [policy.hasAStrictPolicy, 'a default that allows something', loosen("'none'", "'self'"), /^default-src 'self'/],
  [policy.hasAStrictPolicy, 'a further source', loosen('base-uri', "img-src data:; base-uri"), /^img-src is not needed/],
  [policy.hasItsPolicyBeforeAnythingElse, 'an early style', (parts) => { parts.language = 'en"><style></style><p data-x="'; }, /^style before the policy/],
  [policy.stopsWhatIsInjected, 'inline styles allowed', loosen(/style-src '[^']*'/, "style-src 'unsafe-inline'"), /^not reported: violation style-src-attr/],
  [policy.stopsWhatIsInjected, 'inline scripts allowed', loosen(/script-src '[^']*'/, "script-src 'unsafe-inline'"), /^an injected script ran|^not reported: violation script-src-elem/],
  [policy.stopsWhatIsInjected, 'requests allowed', loosen("'none'", 'https:'), /^not reported: violation img-src/],
  [structure.namesItsLanguage, 'no language', (parts) => { parts.language = ''; }, /no language/],
  [structure.hasUniqueIds, 'an id twice', add('<p id="field-3">x</p>'), /"field-3" is not unique/],
  [structure.refersToWhatIsThere, 'a link to nowhere', add('<a href="#field-99">x</a>'), /#field-99 leads nowhere/],
  [structure.refersToWhatIsThere, 'a link out of the page', add('<a href="javascript:alert(1)">x</a>'), /leads out of the page: javascript:/],
  [structure.refersToWhatIsThere, 'a label of nothing', add('<label for="none">x</label>'), /for="none" leads nowhere/],
  [structure.refersToWhatIsThere, 'a name that is missing', replace('body', 'aria-labelledby="picture-1"', 'aria-labelledby="none"'), /aria-labelledby="none" leads nowhere/],
  [structure.hasNoForeignElements, 'a second script', add('<script>1</script>'), /2 script elements/],
  [structure.hasNoForeignElements, 'a picture', add('<img alt="" src="">'), /1 img elements/],
  [structure.hasNoForeignElements, 'a handler', add('<p onclick="x()">x</p>'), /p has the attribute onclick/],
  [structure.hasItsSections, 'no section of findings', replace('body', 'id="findings"', 'id="faults"'), /no #findings/],
  [structure.hasDifferences, 'no differences', replace('body', 'id="differences"', 'id="changes"'), /no section#differences/],
  [pictures.hasPictures, 'no picture', replace('body', 'class="picture"', ''), /no picture/],
  [pictures.hasNamedPictures, 'a picture without a name', replace('body', /<title.*<\/title>/, ''), /1 pictures have no name/],
  [pictures.hasNamedPictures, 'a picture without a role', replace('body', 'role="img"', ''), /1 pictures are not images/],
  [pictures.hasATableForEveryPicture, 'no table', replace('body', '<table><caption>Source', '</figure><figure><table><caption>Source'), /no table after the picture in component-1/],
  [accessibility.satisfiesAxe, 'too little contrast', append('style', 'h1 { color: #ccc; }'), /^color-contrast/],
  [accessibility.satisfiesAxe, 'too little contrast in the dark', append('style', 'h1 { color: #444; }'), /^color-contrast/, dark],
  [accessibility.satisfiesAxe, 'a field without a label', replace('body', '<label for="filter">Filter</label>', ''), /^label/],
  [accessibility.satisfiesAxeWhenOpened, 'too little contrast inside', append('style', 'details[open] { color: #ccc; }'), /^color-contrast/],
  [accessibility.hasReadablePictures, 'pale text', append('style', 'svg text { fill: #bbb; }'), /"5 V 3 A" has a contrast of 1\.\d/],
  [accessibility.hasReadablePictures, 'text on a dark area', replace('body', 'fill-opacity="0.1"', ''), /"5 V 3 A" has a contrast of/],
  [accessibility.hasReadablePictures, 'dark text in the dark', append('style', 'svg text { fill: #222; }'), /has a contrast of/, dark],
  [accessibility.hasPictureTextOfReadableSize, 'small text', append('style', 'svg text { font-size: 6px; }'), /is 6\.0 pixels high/],
  [layout.fitsItsWidth, 'a wide box', append('style', 'h1 { width: 400px; }'), /pixels wide on 360: h1/, narrow],
  [layout.fitsItsWidth, 'a long word', all(append('style', 'body { overflow-wrap: normal; }'), add(`<p>${'x'.repeat(90)}</p>`)), /pixels wide on 360: /, narrow],
  [layout.fitsItsWidthWhenOpened, 'a wide explanation', add('<details><summary>x</summary><pre>' + 'x'.repeat(90) + '</pre></details>'), /pixels wide on 360: /, narrow],
  [layout.scrollsByKeyboard, 'a box that cannot have the focus', replace('body', 'class="wide" tabindex="0"', 'class="wide"'), /div#\.wide scrolls but/, narrow],
  [layout.cutsNothingOff, 'a cut text', append('style', 'h1 { width: 20px; overflow: hidden; overflow-wrap: normal; }'), /cuts "Sample"/, narrow],
  [keyboard.reachesEverythingByTab, 'a filter that Tab passes over', replace('body', 'id="filter" ', 'id="filter" tabindex="-1" '), /Tab does not reach/],
  [keyboard.reachesEverythingByTab, 'a trap', append('script', 'addEventListener("keydown", (e) => { if (e.key === "Tab" && document.activeElement === filter) e.preventDefault(); });'), /Tab does not reach/],
  [keyboard.showsTheFocus, 'no outline', append('style', ':focus-visible { outline: none; }'), /does not show the focus/],
  [keyboard.landsOnFields, 'a link to a hidden field', append('style', '#field-6 { display: none; }'), /#field-6 is hidden/],
  [keyboard.landsOnFields, 'a link to something else', replace('body', '"#field-6"', '"#field-none"'), /does not become the target/],
  [keyboard.landsOnOtherParts, 'a link to something that stays hidden', add('<a href="#late">x</a><p id="late" hidden>x</p>'), /#late is hidden/],
  [keyboard.landsOnOtherParts, 'a page that scrolls back', all(append('style', 'section { min-height: 900px; }'), append('script', 'addEventListener("hashchange", () => setTimeout(() => scrollTo(0, 0), 20));')), /#fields is out of view/],
  [keyboard.landsOnFilteredFields, 'findings without links', replace('body', '#field-6', '#fields'), /no finding has a link/],
  [keyboard.landsOnFilteredFields, 'a filter that hides the target', replace('script', "filter.value = ''; apply();", ''), /#field-6 is hidden/],
  [keyboard.opensSummariesByEnter, 'a summary that does not open', append('script', 'document.querySelectorAll("summary").forEach((s) => s.addEventListener("click", (e) => e.preventDefault()));'), /Enter does not open/],
  [filter.isShownWithScripts, 'a hidden filter', replace('script', 'box.hidden = false;', ''), /the filter is hidden/],
  [filter.isHiddenWithoutScripts, 'a filter without a script', replace('body', '<p id="filter-box" hidden>', '<p id="filter-box">'), /the filter is shown/, noScripts],
  [filter.isHiddenWithoutScripts, 'rows that need a script', replace('body', '<tr class="field"', '<tr hidden class="field"'), /not all fields are shown/, noScripts],
  [filter.filtersWhatIsTyped, 'a filter that does nothing', replace('script', 'row.hidden =', 'row.title ='), /the number of rows for/],
  [filter.filtersWhatIsTyped, 'a filter that minds capitals', replace('script', 'filter.value.toLowerCase()', 'filter.value'), /the number in capitals/],
  [filter.saysHowManyAreShown, 'a wrong count', replace('script', '!row.hidden).length', '!row.hidden).length + 1'), /does not say/],
  [filter.saysHowManyAreShown, 'a count that is not announced', all(replace('body', '<output', '<span'), replace('body', 'aria-live="polite"></output>', '></span>')), /the count is not announced/],
  [filter.clearingRestores, 'rows that stay hidden', replace('script', 'row.hidden =', 'row.hidden ||='), /the number of rows after clearing/],
  [filter.saysThatNothingMatches, 'silence', replace('script', "wanted ?", "wanted && count ?"), /does not say that nothing matches/],
  [filter.takesTextLiterally, 'regular expressions', all(replace('script', 'const wanted = filter.value.toLowerCase();', 'let wanted; try { wanted = new RegExp(filter.value, "i"); } catch { return; }'), replace('script', '!row.textContent.toLowerCase().includes(wanted)', '!wanted.test(row.textContent)')), /the number of rows for "\.\*"/],
  [print.hidesTheFilter, 'a printed filter', replace('style', '#filter-box { display: none; }', ''), /the filter is printed/, darkPrint],
  [print.isDarkOnWhite, 'a dark page', replace('style', /@media print \{ :root \{[^}]*\}/, '@media print {'), /body\. has the background/, darkPrint],
  [print.isDarkOnWhite, 'pale text', append('style', 'h1 { color: #aaa; }'), /h1\. has text in/, darkPrint],
  [content.hasNoControlCharacters, 'a character that reorders text', add('<p>a\u202eb</p>'), /U\+202e/],
  [content.showsText('One port.'), 'a missing text', replace('body', 'One port.', ''), /"One port\." is not shown/],
  [content.showsAllFields(sampleFields), 'fields that are not in the file', () => {}, /9 rows for 1 fields/],
  [content.showsAllFields([{ name: 'Vendor_Name', value: 'Other' }]), 'another value', () => {}, /field-0 does not show Other/],
  [content.showsAllFields([{ name: 'Vendor', value: '' }, { name: 'TID', value: '' }]), 'another name', () => {}, /field-1 does not name TID/],
];

describe('Controls', { concurrency: 4 }, () => {
  let browser;
  const folder = makeFolder();
  before(async () => { browser = await launchBrowser(); });
  after(() => browser.close());

  const open = (name, page, check, options) => {
    const file = join(folder, `${name}.html`);
    writeFileSync(file, page);
    return faultsOf(browser, file, check, options);
  };

  const sound = new Map(
    controls
      .filter(([check]) => check.name)
      .map(([check, , , , options]) => [`${check.name} ${JSON.stringify(options ?? {})}`, [check, options]]),
  );
  sound.set('content', [content.showsText('One port.', 'Quillmere (Power) Works')]);
  for (const [name, [check, options]] of sound) {
    it(`${name} passes a sound page`, async () => {
      assert.deepEqual(await open(`sound-${name}`, samplePage(), check, options), []);
    });
  }
  controls.forEach(([check, fault, spoil, expected, options], i) => {
    it(`${check.name || 'content'} notices ${fault}`, async () => {
      const faults = await open(`spoiled-${i}`, samplePage(spoil), check, options);
      assert.ok(faults.some((found) => expected.test(found)), `${expected} is not among: ${faults.join('\n')}`);
    });
  });
});
