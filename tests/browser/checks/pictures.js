// That pictures say in words what they show.

export async function hasPictures(page) {
  return (await page.$('section.port figure.picture svg[role=img]')) ? [] : ['no picture'];
}

// Asks the browser for the names that it tells a screen reader, whatever they come from.
export async function hasNamedPictures(page) {
  const { all, images } = await page.evaluate(() => {
    const pictures = [...document.querySelectorAll('svg:not([aria-hidden=true])')];
    return { all: pictures.length, images: pictures.filter((svg) => svg.getAttribute('role') === 'img').length };
  });
  const session = await page.createCDPSession();
  const { nodes } = await session.send('Accessibility.getFullAXTree');
  const named = nodes.filter(({ role, name }) => role?.value === 'image' && name?.value?.trim()).length;
  const faults = all === images ? [] : [`${all - images} pictures are not images to a screen reader`];
  return named === images ? faults : [...faults, `${images - named} pictures have no name`];
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
