// That a page can be read by everybody.
import axe from 'axe-core';
import { openAll } from '../support/page.js';

// What axe-core calls serious or critical.
async function runAxe(page, options) {
  await page.evaluate(axe.source);
  const violations = await page.evaluate(async (given) => (await window.axe.run(document, given)).violations, options);
  return violations
    .filter(({ impact }) => impact === 'serious' || impact === 'critical')
    .map(({ id, nodes }) => `${id}: ${nodes[0].html.slice(0, 200)} ${nodes[0].any[0]?.message ?? ''} (${nodes.length} times)`);
}

export const satisfiesAxe = (page) => runAxe(page, {});

// axe-core would send messages to the frames.
export const satisfiesAxeBesideItsFrames = (page) => runAxe(page, { iframes: false });

export async function satisfiesAxeWhenOpened(page) {
  await openAll(page);
  return satisfiesAxe(page);
}

// axe-core does not look at the text of pictures.
export async function hasReadablePictures(page) {
  return page.evaluate(() => {
    const parse = (color) => {
      const [red, green, blue, alpha = 1] = color.match(/[\d.]+/g)?.map(Number) ?? [0, 0, 0, 0];
      return { channels: [red, green, blue], alpha };
    };
    const over = ({ channels, alpha }, below) => channels.map((channel, i) => channel * alpha + below[i] * (1 - alpha));
    const luminance = (channels) => {
      const [r, g, b] = channels.map((c) => (c / 255 <= 0.04045 ? c / 255 / 12.92 : ((c / 255 + 0.055) / 1.055) ** 2.4));
      return 0.2126 * r + 0.7152 * g + 0.0722 * b;
    };
    const contrast = (a, b) => {
      const [light, dark] = [luminance(a), luminance(b)].sort((x, y) => y - x);
      return (light + 0.05) / (dark + 0.05);
    };
    const paint = (element) => {
      const style = getComputedStyle(element);
      if (!(element instanceof SVGElement) || element.localName === 'svg') return parse(style.backgroundColor);
      if (style.fill === 'none' || /^(text|tspan|line|g)$/.test(element.localName)) return parse('');
      const { channels, alpha } = parse(style.fill);
      return { channels, alpha: alpha * style.fillOpacity * style.opacity };
    };
    const page = matchMedia('(prefers-color-scheme: dark)').matches ? [18, 18, 18] : [255, 255, 255];
    const faults = [];
    for (const text of document.querySelectorAll('svg text')) {
      if (!text.checkVisibility() || text.textContent.trim() === '') continue;
      text.scrollIntoView({ block: 'center', inline: 'center' });
      const box = text.getBoundingClientRect();
      const below = document
        .elementsFromPoint(box.x + box.width / 2, box.y + box.height / 2)
        .reverse()
        .reduce((color, element) => over(paint(element), color), page);
      const style = getComputedStyle(text);
      const { channels, alpha } = parse(style.fill);
      const ratio = contrast(over({ channels, alpha: alpha * style.fillOpacity * style.opacity }, below), below);
      if (ratio < 4.5) faults.push(`"${text.textContent}" has a contrast of ${ratio.toFixed(1)}`);
    }
    return faults;
  });
}

export async function hasPictureTextOfReadableSize(page) {
  return page.evaluate(() =>
    [...document.querySelectorAll('svg text')]
      .filter((text) => text.checkVisibility())
      .map((text) => [text.textContent, parseFloat(getComputedStyle(text).fontSize) * text.getScreenCTM().d])
      .filter(([, pixels]) => pixels < 9)
      .map(([text, pixels]) => `"${text}" is ${pixels.toFixed(1)} pixels high`),
  );
}
