// Files that a person drops on a report, through the browser's own input.
import assert from 'node:assert/strict';
import { it } from 'node:test';
import { describeInBrowser } from '../browser/support/suite.js';
import { settle } from '../browser/support/page.js';
import { choose, dragFrom, shownReport, withVifPage } from './support/pageDriver.js';
import { example } from './support/paths.js';

const charger = example('gan-charger-65w.txt');
const tablet = example('dual-role-tablet.txt');
const header = { x: 500, y: 10 };

const takesPointer = (page) => page.$eval('iframe.report', (frame) => getComputedStyle(frame).pointerEvents !== 'none');

async function middleOfReport(page) {
  const { x, y, width, height } = await (await page.$('iframe.report')).boundingBox();
  return { x: x + width / 2, y: y + height / 2 };
}

describeInBrowser('The page takes files that are dropped', (browser) => {
  const onReport = (what, use) =>
    it(what, { timeout: 120_000 }, () =>
      withVifPage(browser(), {}, async (page, events) => {
        page.setDefaultTimeout(20_000);
        await choose(page, charger);
        await shownReport(page, 'gan-charger');
        await use(page);
        assert.deepEqual(events(), []);
      }));

  onReport('on a report, over the rest of the page', async (page) => {
    const session = await page.createCDPSession();
    const data = { items: [], files: [tablet], dragOperationsMask: 1 };
    const drag = async (type, point) => {
      await session.send('Input.dispatchDragEvent', { type, ...point, data });
      await settle();
    };
    await drag('dragEnter', header);
    await drag('dragOver', header);
    await drag('dragOver', await middleOfReport(page));
    await drag('drop', await middleOfReport(page));
    await shownReport(page, 'Report on dual-role-tablet.txt');
    assert.ok(await takesPointer(page));
  });

  onReport('on a report, straight from outside', async (page) => {
    // The browser does so when the pointer leaves; a test cannot move it there.
    await page.evaluate(() => document.documentElement.dispatchEvent(new MouseEvent('mouseleave')));
    assert.ok(!(await takesPointer(page)));
    await dragFrom(page, await middleOfReport(page), tablet);
    await shownReport(page, 'Report on dual-role-tablet.txt');
  });

  onReport('and leaves reports usable when the pointer is back', async (page) => {
    await page.evaluate(() => document.documentElement.dispatchEvent(new MouseEvent('mouseleave')));
    const { x, y } = await middleOfReport(page);
    await page.mouse.move(x, y);
    assert.ok(await takesPointer(page));
    await page.mouse.click(x, y);
    assert.equal(await page.evaluate(() => document.activeElement.localName), 'iframe');
  });
});
