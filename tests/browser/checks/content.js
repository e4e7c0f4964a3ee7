// That a page says what the file says.

// `fields` are those of `vif list --format json`. Control characters are escaped there otherwise than on a page.
export const showsAllFields = (fields) => async (page) => {
  const rows = await page.evaluate(() =>
    [...document.querySelectorAll('#fields tr.field')].map((row) => ({ id: row.id, text: row.textContent })),
  );
  const faults = rows.length === fields.length ? [] : [`${rows.length} rows for ${fields.length} fields`];
  const byId = new Map(rows.map(({ id, text }) => [id, text]));
  fields.forEach(({ name, value }, position) => {
    const text = byId.get(`field-${position}`);
    if (text === undefined) faults.push(`no row field-${position}`);
    else if (!text.includes(name)) faults.push(`field-${position} does not name ${name}`);
    else if (!text.includes(value)) faults.push(`field-${position} does not show ${value}`);
  });
  return faults;
};

export const showsText = (...texts) => async (page) => {
  const shown = await page.$eval('main', (main) => main.textContent);
  return texts.filter((text) => !shown.includes(text)).map((text) => `"${text}" is not shown`);
};

// Characters that control, reorder or hide text.
export async function hasNoControlCharacters(page) {
  return page.evaluate(() => {
    const found = document.documentElement.outerHTML.match(/[\0-\x08\x0b-\x1f\x7f-\x9f\u200e\u200f\u202a-\u202e\u2066-\u2069]/gu) ?? [];
    return [...new Set(found)].map((c) => `the page has U+${c.codePointAt(0).toString(16).padStart(4, '0')}`);
  });
}
