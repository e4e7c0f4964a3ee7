// That a page can be printed in black and white.

export async function givesPages(page) {
  const pdf = Buffer.from(await page.pdf({ format: 'A4' }));
  const count = pdf.toString('latin1').match(/\/Type\s*\/Page\b/g)?.length ?? 0;
  return pdf.subarray(0, 5).toString() === '%PDF-' && count > 0 ? [] : ['no pages'];
}

export async function hidesTheFilter(page) {
  const isShown = await page.evaluate(() => document.querySelector('#filter-box').checkVisibility());
  return isShown ? ['the filter is printed'] : [];
}

// Dark text, and nothing dark behind it.
export async function isDarkOnWhite(page) {
  return page.evaluate(() => {
    const parse = (color) => color.match(/[\d.]+/g)?.map(Number) ?? [0, 0, 0, 0];
    const brightness = ([r, g, b]) => (0.299 * r + 0.587 * g + 0.114 * b) / 255;
    const faults = new Set();
    for (const element of document.querySelectorAll('html, body, body *')) {
      if (!element.checkVisibility()) continue;
      const style = getComputedStyle(element);
      const name = `${element.localName}.${element.getAttribute('class') ?? ''}`;
      const background = parse(style.backgroundColor);
      if ((background[3] ?? 1) > 0 && brightness(background) < 0.8) faults.add(`${name} has the background ${style.backgroundColor}`);
      const hasText = [...element.childNodes].some((node) => node.nodeType === Node.TEXT_NODE && node.data.trim());
      const color = element instanceof SVGElement ? style.fill : style.color;
      if (hasText && brightness(parse(color)) > 0.5) faults.add(`${name} has text in ${color}`);
    }
    return [...faults];
  });
}
