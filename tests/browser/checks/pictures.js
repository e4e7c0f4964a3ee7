// That pictures say in words what they show.

export async function hasPictures(page) {
  return (await page.$('section.port figure.picture svg[role=img]')) ? [] : ['no picture'];
}

export async function hasNamedPictures(page) {
  const faults = await page.evaluate(() =>
    [...document.querySelectorAll('svg')]
      .filter((svg) => svg.getAttribute('role') !== 'img' && svg.getAttribute('aria-hidden') !== 'true')
      .map(() => 'a picture is not an image to a screen reader'),
  );
  for (const svg of await page.$$('svg[role=img]')) {
    const properties = await page.accessibility.snapshot({ root: svg, interestingOnly: false });
    if (!properties?.name?.trim()) faults.push('a picture has no name');
  }
  return faults;
}

export async function hasATableForEveryPicture(page) {
  return page.evaluate(() =>
    [...document.querySelectorAll('svg[role=img]')]
      .filter((svg) => {
        const table = svg.closest('figure')?.querySelector('table');
        const follows = table && svg.compareDocumentPosition(table) & Node.DOCUMENT_POSITION_FOLLOWING;
        return !follows || !table.querySelector('th') || !table.querySelector('td');
      })
      .map((svg) => `no table after the picture in ${svg.closest('section')?.id}`),
  );
}
