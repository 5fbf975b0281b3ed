// Browser test of a pregnancy's week pages: for a pregnancy in week 12 and one in week 30, the
// today page plays the week's moving picture and snaps its screens one at a time; the baby page
// marks the week in an organ's text; the woman's page shows the body of the month with its named
// parts and graphs, and opens the child's size by week at the present week. What the pages hold
// is the C++ suite's. Screenshots at phone and tablet size.
import assert from 'node:assert/strict';
import path from 'node:path';
import * as e2e from './harness.mjs';

// Week 12 is day 81 of the pregnancy, week 30 day 204: the first day lies that many days back.
const PREGNANCIES = [
  { name: 'Неделя двенадцать', week: 12, daysAgo: 80, month: 3, frames: '12w' },
  { name: 'Неделя тридцать', week: 30, daysAgo: 203, month: 7, frames: '30w' },
];

/** Opens the page of the menu row from the menu, and waits for the node it must show. */
async function openPage(page, row, selector) {
  if (await page.$('.ring')) await e2e.toMenu(page);
  await page.tap(`[data-id="menu:${row}"]`);
  await page.waitForSelector(`.ring-page ${selector}`);
}

const texts = (page, selector) =>
  page.$$eval(`.ring-page ${selector}`, (nodes) => nodes.map((n) => n.textContent));

async function checkToday(page, p) {
  await openPage(page, 1, '.content[data-content="woman"] .content-row');
  assert.equal((await texts(page, '.fact-value'))[1], String(p.week));
  const movie = page.locator('.ring-page img.movie');
  await page.waitForFunction(() => document.querySelector('img.movie')?.dataset.frame === '3');
  assert.match(await movie.getAttribute('src'), new RegExp(`/${p.frames}003\\.jpg$`));
  assert.ok(await movie.evaluate((img) => img.complete && img.naturalWidth > 0), 'it loads');
}

/** The page is five screens that snap one at a time; a dot of the page control brings one. */
async function checkScreens(page, shot) {
  // The screen shown, the number of dots and which one is marked.
  const state = () =>
    page.$$eval('.ring-page .page-dot', (dots) => [
      document.querySelector('.ring-page .screens').dataset.screen,
      dots.length,
      dots.findIndex((dot) => dot.classList.contains('current')),
    ]);
  assert.deepEqual(await state(), ['1', 5, 0]);
  await page.tap('.ring-page .page-dot >> nth=2');
  // The third screen comes to stand whole in the page, its dot marked.
  await page.waitForFunction(() => {
    const column = document.querySelector('.ring-page .screens-column');
    return Math.abs(column.scrollTop - 2 * column.clientHeight) < 1;
  });
  assert.deepEqual(await state(), ['3', 5, 2]);
  await shot('today-picture', false);
}

async function checkBaby(page, p) {
  await openPage(page, 4, '.content[data-content="organ"] .content-row');
  assert.equal(await page.locator('.ring-page svg').count(), 1, 'the ring of organs');
  await page.tap('.ring-page [data-id="baby:organ:1"] .text');
  await page.waitForSelector('.ring-page .content-row.highlight');
  const marked = await texts(page, '.content-row.highlight');
  assert.ok(
    marked.some((t) => t.startsWith(`${p.week} неделя`)),
    marked.join('|'),
  );
}

async function checkWoman(page, p) {
  await openPage(page, 5, '.hint-picture');
  const body = page.locator('.ring-page .hint-image');
  assert.match(await body.getAttribute('src'), new RegExp(`/wom-${p.month}\\.png$`));
  await page.waitForFunction(() => document.querySelector('.hint-image')?.naturalWidth > 0);
  assert.ok((await page.locator('.ring-page .hint').count()) >= 6, 'the named parts');
  assert.equal(await page.locator('.ring-page svg').count(), 2, 'the weight graph and the wheel');
}

/** The child's size by week, opened over the woman's page at the present week, and closed. */
async function checkSizeText(page, p, shot) {
  await page.tap('.ring-page button[data-id="woman:size"]');
  await page.waitForSelector('.content[data-content="reading"] .content-row.highlight');
  const marked = await page.$$eval('.content-row.highlight', (rows) =>
    rows.map((row) => row.textContent),
  );
  assert.ok(marked[0]?.startsWith(`${p.week} неделя`), marked.join('|'));
  await shot('size', false);
  await page.tap('button[data-id="reading:close"]');
  await page.waitForSelector('.content[data-content="reading"]', { state: 'detached' });
  await page.waitForSelector('.ring-page .hint-picture');
}

async function checkPregnancy(page, outDir, p, device) {
  // The whole page, or what the screen shows (where a marked week is scrolled into sight).
  const shot = (what, fullPage = true) =>
    page.screenshot({ path: path.join(outDir, `week-${p.week}-${what}-${device}.png`), fullPage });
  await checkToday(page, p);
  await shot('today', false);
  if (device === 'phone') await checkScreens(page, shot); // they snap alike on a tablet
  await checkBaby(page, p);
  await shot('baby');
  await checkWoman(page, p);
  await shot('woman');
  await checkSizeText(page, p, shot);
}

await e2e.runBrowserTest('week', async ({ browser, base, outDir }) => {
  for (const [device, size] of [
    ['phone', e2e.PHONE],
    ['tablet', e2e.TABLET],
  ]) {
    const { context, page, errors } = await e2e.openPastGreeting(browser, base, { device: size });
    for (const p of PREGNANCIES) {
      if (await page.$('.ring')) await e2e.toMenu(page);
      if (device === 'phone') await e2e.createPregnancy(page, p);
      else await e2e.openCard(page, p.name);
      await checkPregnancy(page, outDir, p, device);
    }
    await e2e.closeClean({ context, errors });
  }
});
