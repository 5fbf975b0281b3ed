// Browser test of the looks at phone and tablet size: the menu takes the colours of the chosen
// background's theme on translucent surfaces and fits the width; a profile's portrait in the
// data folder shows on its card.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import * as e2e from './harness.mjs';

const GUID = '00000000-0000-0000-0001-000000000001'; // the pregnancy of the first launch
const PORTRAIT = `/doc/portrait/${GUID}`;
const BACKGROUND_ROW = '[data-id="menu:42"]';
const BACKGROUND_COUNT = 9;
// A theme with light text and one with dark text, as the browser computes their colours.
const THEMES = [
  { id: 4, text: 'rgb(0, 0, 0)', caption: 'rgb(179, 0, 0)', accent: 'rgb(137, 28, 28)' },
  { id: 2, text: 'rgb(255, 255, 255)', caption: 'rgb(255, 207, 65)', accent: 'rgb(54, 119, 176)' },
];
const COLUMN_MAX_PX = 46 * 19; // the tablet's column: 46rem at its 19px type

async function chooseBackground(page, id) {
  await page.tap(BACKGROUND_ROW);
  await page.tap(`.row[data-id="background:${id}"]`);
  await page.waitForFunction(
    (file) => document.body.dataset.background === file && document.querySelector('.card') !== null,
    `bg640-${id}.png`,
  );
}

/** Computed colours of the menu's parts, the size of what lies on the page, and the screen's
 *  width: the device's, as a phone's page widens to fit what overflows it. */
async function looksOf(page) {
  const looks = await page.evaluate(() => {
    const style = (selector) => getComputedStyle(document.querySelector(selector));
    const boxes = [...document.querySelectorAll('.row, .card, .page-header')].map((e) =>
      e.getBoundingClientRect(),
    );
    return {
      body: style('body').color,
      row: style('.row .caption').color,
      title: style('.page-title').color,
      openCard: style('.card.open').boxShadow,
      list: style('.list').backgroundColor,
      card: style('.card').backgroundColor,
      fontSize: parseFloat(style('html').fontSize),
      scrollWidth: document.documentElement.scrollWidth,
      widest: Math.max(...boxes.map((b) => b.right)),
      leftmost: Math.min(...boxes.map((b) => b.left)),
      rowWidth: document.querySelector('.row').getBoundingClientRect().width,
    };
  });
  return { ...looks, screenWidth: page.viewportSize().width };
}

const channels = (colour) => colour.match(/[\d.]+/g).map(Number);
const brightness = ([r, g, b]) => 0.299 * r + 0.587 * g + 0.114 * b;

/** Text and the surfaces under it: translucent over the picture, tinted against the text. */
function checkReadable(looks, where) {
  const light = brightness(channels(looks.row)) > 127.5;
  for (const surface of ['list', 'card']) {
    const [r, g, b, a = 1] = channels(looks[surface]);
    const seen = `${where}: the ${surface} (${looks[surface]})`;
    assert.ok(a > 0 && a < 1, `${seen} lets the picture through`);
    assert.equal(brightness([r, g, b]) < 127.5, light, `${seen} is tinted against the text`);
  }
}

function checkFits(looks, where) {
  const widest = Math.max(looks.scrollWidth, looks.widest);
  assert.ok(widest <= looks.screenWidth, `${where}: no sideways scrolling (${widest})`);
  assert.ok(looks.leftmost >= 0, `${where}: nothing is cut at the left`);
}

/** The portrait on the open card, and the tablet's column and type. */
async function checkMenu(page, device, name) {
  await page.waitForFunction((address) => {
    const img = document.querySelector('.card.open .card-picture');
    return img?.getAttribute('src') === address && img.complete && img.naturalWidth > 0;
  }, PORTRAIT);
  for (const theme of THEMES) {
    await chooseBackground(page, theme.id);
    const looks = await looksOf(page);
    const where = `${name}, background ${theme.id}`;
    assert.deepEqual(
      [looks.body, looks.row, looks.title, looks.openCard.includes(theme.accent)],
      [theme.text, theme.text, theme.caption, true],
      `${where}: texts, the title and the open card's mark (${looks.openCard})`,
    );
    checkReadable(looks, where);
    checkFits(looks, where);
    if (device === e2e.TABLET) {
      assert.ok(looks.fontSize > 16, `${where}: larger type on a tablet`);
      assert.ok(looks.rowWidth > e2e.PHONE.viewport.width, `${where}: the tablet's room is used`);
    } else {
      assert.equal(looks.fontSize, 16, `${where}: phones keep their type`);
    }
    await page.screenshot({ path: `${name}-background-${theme.id}.png`, fullPage: true });
  }
}

/** Every background of the list, with its screenshot: the surfaces read well on each. */
async function checkEveryBackground(page, outDir) {
  for (let id = 1; id <= BACKGROUND_COUNT; id += 1) {
    await chooseBackground(page, id);
    const looks = await looksOf(page);
    checkReadable(looks, `background ${id}`);
    await e2e.snap(page, outDir, `looks-phone-background-${id}`);
  }
}

/** The contraction counter's page with its charts fits the tablet too. */
async function checkCounterPage(page, base, outDir) {
  await page.goto(`${base}/?shortcut=SCHVATKI`);
  await page.waitForSelector('.ring-page [data-info="trend"]');
  const { scrollWidth, charts } = await page.evaluate(() => ({
    scrollWidth: document.documentElement.scrollWidth,
    charts: [...document.querySelectorAll('.ring-page .chart')].map(
      (c) => c.getBoundingClientRect().right,
    ),
  }));
  assert.equal(charts.length, 2, 'the counter draws two charts');
  assert.ok(
    Math.max(scrollWidth, ...charts) <= e2e.TABLET.viewport.width,
    `the counter and its charts fit (${scrollWidth}, ${charts})`,
  );
  await e2e.snap(page, outDir, 'looks-tablet-counter', true);
}

async function checkLandscapeTablet(page, outDir) {
  const { width, height } = e2e.TABLET.viewport;
  await page.setViewportSize({ width: height, height: width });
  await page.waitForFunction((w) => window.innerWidth === w, height);
  const looks = await looksOf(page);
  checkFits(looks, 'tablet landscape');
  const column = looks.rowWidth;
  assert.ok(column <= COLUMN_MAX_PX, `tablet landscape: a readable column (${column})`);
  await e2e.snap(page, outDir, 'looks-tablet-landscape', true);
}

await e2e.runBrowserTest('looks', async ({ browser, base, outDir, dataDir }) => {
  const phone = await e2e.openPastGreeting(browser, base, { device: e2e.PHONE });
  // A photo where the profile's portrait is kept.
  const folder = path.join(dataDir, 'Documents', 'picture');
  fs.mkdirSync(folder, { recursive: true });
  fs.writeFileSync(`${folder}/child-${GUID}.jpg`, (await e2e.drawnJpeg(phone.page, 64, 64)).buffer);
  await e2e.openCard(phone.page);
  await checkMenu(phone.page, e2e.PHONE, path.join(outDir, 'looks-phone'));
  await checkEveryBackground(phone.page, outDir);

  const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
  await e2e.openCard(tablet.page);
  await checkMenu(tablet.page, e2e.TABLET, path.join(outDir, 'looks-tablet'));
  await checkLandscapeTablet(tablet.page, outDir);
  await tablet.page.setViewportSize(e2e.TABLET.viewport);
  await checkCounterPage(tablet.page, base, outDir);

  await e2e.closeClean(phone);
  await e2e.closeClean(tablet);
});
