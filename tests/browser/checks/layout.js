// That a page fits a narrow screen.
import { openAll } from '../support/page.js';

export async function fitsItsWidth(page) {
  return page.evaluate(() => {
    const width = document.documentElement.clientWidth;
    const { scrollWidth } = document.documentElement;
    if (scrollWidth <= width) return [];
    const wide = [...document.body.querySelectorAll('*')].filter((element) => {
      const scrolls = (other) => /auto|scroll|hidden/.test(getComputedStyle(other).overflowX);
      for (let other = element.parentElement; other && other !== document.body; other = other.parentElement) {
        if (scrolls(other)) return false;
      }
      return element.getBoundingClientRect().right > width;
    });
    const named = wide.slice(0, 3).map((e) => `${e.localName}#${e.id}.${e.getAttribute('class')}`);
    return [`${scrollWidth} pixels wide on ${width}: ${named.join(', ')}`];
  });
}

export async function fitsItsWidthWhenOpened(page) {
  await openAll(page);
  return fitsItsWidth(page);
}

// Whoever has no mouse must be able to scroll, too.
export async function scrollsByKeyboard(page) {
  return page.evaluate(() =>
    [...document.body.querySelectorAll('*')]
      .filter((e) => e.scrollWidth > e.clientWidth && /auto|scroll/.test(getComputedStyle(e).overflowX))
      .filter((e) => e.checkVisibility() && e.tabIndex !== 0)
      .map((e) => `${e.localName}#${e.id}.${e.getAttribute('class')} scrolls but cannot have the focus`),
  );
}

// Text that its own box cuts off without a way to reach it.
export async function cutsNothingOff(page) {
  return page.evaluate(() =>
    [...document.body.querySelectorAll('main *')]
      .filter((e) => e.checkVisibility() && e.clientWidth > 1 && e.scrollWidth > e.clientWidth + 1)
      .filter((e) => /hidden|clip/.test(getComputedStyle(e).overflowX))
      .map((e) => `${e.localName}#${e.id}.${e.getAttribute('class')} cuts "${e.textContent.trim().slice(0, 30)}"`),
  );
}
