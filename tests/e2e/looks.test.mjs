// Browser test of the looks at phone and tablet size: on each background the menu's surfaces let
// the picture through, tinted against the text, and nothing lies beyond the screen's sides; the
// tablet's larger type uses its room, in a readable column when turned sideways; the contraction
// counter's charts fit the tablet; a profile's portrait in the data folder shows on its card.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import * as e2e from './harness.mjs';

const GUID = '00000000-0000-0000-0001-000000000001'; // the pregnancy of the first launch
const BACKGROUND_COUNT = 9;
const COLUMN_MAX_PX = 46 * 19; // the tablet's column: 46rem at its 19px type

async function chooseBackground(page, id) {
  await page.tap('[data-id="menu:42"]');
  await page.tap(`.row[data-id="background:${id}"]`);
  await page.waitForFunction(
    (file) => document.body.dataset.background === file && document.querySelector('.card') !== null,
    `bg640-${id}.png`,
  );
}

const channels = (colour) => colour.match(/[\d.]+/g).map(Number);
const brightness = ([r, g, b]) => 0.299 * r + 0.587 * g + 0.114 * b;

/** Text and the surfaces under it: translucent over the picture, tinted against the text. */
async function checkReadable(page, where) {
  const colours = await page.evaluate(() => {
    const style = (selector) => getComputedStyle(document.querySelector(selector));
    return {
      text: style('.row .caption').color,
      list: style('.list').backgroundColor,
      card: style('.card').backgroundColor,
    };
  });
  const light = brightness(channels(colours.text)) > 127.5;
  for (const surface of ['list', 'card']) {
    const [r, g, b, a = 1] = channels(colours[surface]);
    const seen = `${where}: the ${surface} (${colours[surface]})`;
    assert.ok(a > 0 && a < 1, `${seen} lets the picture through`);
    assert.equal(brightness([r, g, b]) < 127.5, light, `${seen} is tinted against the text`);
  }
}

/** None of the parts reaches past the screen's sides, measured against the device's width: a
 *  phone's page widens to fit what overflows it. */
async function checkFits(page, where, parts = '.row, .card, .page-header') {
  const { widest, leftmost } = await page.evaluate((selector) => {
    const boxes = [...document.querySelectorAll(selector)].map((e) => e.getBoundingClientRect());
    return {
      widest: Math.max(document.documentElement.scrollWidth, ...boxes.map((b) => b.right)),
      leftmost: Math.min(...boxes.map((b) => b.left)),
    };
  }, parts);
  assert.ok(widest <= page.viewportSize().width, `${where}: no sideways scrolling (${widest})`);
  assert.ok(leftmost >= 0, `${where}: nothing is cut at the left`);
}

/** The type's size and the width of a row. */
const typeAndRow = (page) =>
  page.evaluate(() => ({
    type: parseFloat(getComputedStyle(document.documentElement).fontSize),
    row: document.querySelector('.row').getBoundingClientRect().width,
  }));

/** The tablet's type is larger and its rows use the room; sideways, the column stays readable. */
async function checkTablet(page, outDir) {
  const upright = await typeAndRow(page);
  assert.ok(upright.type > 16, `larger type on a tablet (${upright.type})`);
  assert.ok(upright.row > e2e.PHONE.viewport.width, `the tablet's room is used (${upright.row})`);
  const { width, height } = e2e.TABLET.viewport;
  await page.setViewportSize({ width: height, height: width });
  await page.waitForFunction((w) => window.innerWidth === w, height);
  await checkFits(page, 'tablet landscape');
  const column = (await typeAndRow(page)).row;
  assert.ok(column <= COLUMN_MAX_PX, `tablet landscape: a readable column (${column})`);
  await e2e.snap(page, outDir, 'looks-tablet-landscape', true);
  await page.setViewportSize(e2e.TABLET.viewport);
}

await e2e.runBrowserTest('looks', async ({ browser, base, outDir, dataDir }) => {
  const phone = await e2e.openPastGreeting(browser, base);
  // A photo where the profile's portrait is kept.
  const folder = path.join(dataDir, 'Documents', 'picture');
  fs.mkdirSync(folder, { recursive: true });
  fs.writeFileSync(`${folder}/child-${GUID}.jpg`, (await e2e.drawnJpeg(phone.page, 64, 64)).buffer);
  await e2e.openCard(phone.page);
  await phone.page.waitForFunction((address) => {
    const img = document.querySelector('.card.open .card-picture');
    return img?.getAttribute('src') === address && img.complete && img.naturalWidth > 0;
  }, `/doc/portrait/${GUID}`);
  for (let id = 1; id <= BACKGROUND_COUNT; id += 1) {
    await chooseBackground(phone.page, id);
    await checkReadable(phone.page, `background ${id}`);
    await checkFits(phone.page, `phone, background ${id}`);
    await e2e.snap(phone.page, outDir, `looks-phone-background-${id}`);
  }

  const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
  await e2e.openCard(tablet.page);
  await checkFits(tablet.page, 'tablet');
  await e2e.snap(tablet.page, outDir, 'looks-tablet', true);
  await checkTablet(tablet.page, outDir);
  // The contraction counter's page with its two charts.
  await tablet.page.goto(`${base}/?shortcut=SCHVATKI`);
  await tablet.page.waitForSelector('.ring-page .chart svg');
  await checkFits(tablet.page, 'the counter', '.ring-page .chart');
  await e2e.snap(tablet.page, outDir, 'looks-tablet-counter', true);

  await e2e.closeClean(phone);
  await e2e.closeClean(tablet);
});
