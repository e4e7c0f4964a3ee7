// That the parts of a page refer to one another as they should.

export async function namesItsLanguage(page) {
  return page.evaluate(() => (document.documentElement.lang === 'en' ? [] : ['no language']));
}

export async function hasUniqueIds(page) {
  return page.evaluate(() => {
    const seen = new Set();
    return [...document.querySelectorAll('[id]')]
      .filter(({ id }) => id === '' || seen.has(id) || !seen.add(id))
      .map(({ id }) => `the id "${id}" is not unique`);
  });
}

export async function refersToWhatIsThere(page) {
  return page.evaluate(() => {
    const faults = [];
    for (const name of ['aria-labelledby', 'aria-describedby', 'aria-controls', 'for', 'headers']) {
      for (const element of document.querySelectorAll(`[${name}]`)) {
        for (const id of element.getAttribute(name).split(/\s+/)) {
          if (!document.getElementById(id)) faults.push(`${element.localName} ${name}="${id}" leads nowhere`);
        }
      }
    }
    for (const link of document.querySelectorAll('a[href], use[href]')) {
      const href = link.getAttribute('href');
      if (!href.startsWith('#')) faults.push(`a link leads out of the page: ${href}`);
      else if (!document.getElementById(decodeURIComponent(href.slice(1)))) faults.push(`${href} leads nowhere`);
    }
    return faults;
  });
}

export async function hasNoForeignElements(page) {
  return page.evaluate(() => {
    const counts = { script: 1, style: 1, img: 0, image: 0, iframe: 0, object: 0, embed: 0, link: 0, base: 0, form: 0, video: 0 };
    const faults = Object.entries(counts)
      .map(([name, wanted]) => [name, wanted, document.querySelectorAll(name).length])
      .filter(([, wanted, found]) => found !== wanted)
      .map(([name, wanted, found]) => `${found} ${name} elements instead of ${wanted}`);
    if (document.scripts.length !== 1) faults.push(`${document.scripts.length} scripts`);
    for (const element of document.querySelectorAll('*')) {
      for (const { name } of element.attributes) {
        if (/^on|^style$|^srcdoc$|^src$/.test(name)) faults.push(`${element.localName} has the attribute ${name}`);
      }
    }
    return faults;
  });
}

export async function hasDifferences(page) {
  return (await page.$('section#differences')) ? [] : ['no section#differences'];
}

export async function hasItsSections(page) {
  return page.evaluate(() => {
    const wanted = ['html[lang]', 'main', '#summary', '#findings', '#fields', '#filter-box input#filter[type=search]'];
    return wanted.filter((selector) => !document.querySelector(selector)).map((selector) => `no ${selector}`);
  });
}
