// Browser test of a pregnancy's title page: a pregnancy begun 200 days ago with an ultrasound
// measurement written in the day editor shows the picture of the baby's growth with today's size
// and the length and weight charts, each with the measurement's mark. Screenshots of the page at
// phone and tablet size.
import assert from 'node:assert/strict';
import * as e2e from './harness.mjs';

const NAME = 'Ульяна';
/** Slides the nth ruler of the open form until its needle stands on the value. */
async function slideTo(page, nth, value) {
  await page.evaluate(
    ([n, v]) => {
      const ruler = document.querySelectorAll('.editor .scale-ruler')[n];
      const min = Number(ruler.getAttribute('aria-valuemin'));
      const step = v.includes('.') && v.split('.')[1].length === 3 ? 0.01 : 0.1;
      ruler.scrollLeft = Math.round((Number(v) - min) / step) * 8;
    },
    [nth, value],
  );
  await page.waitForFunction(
    ([n, v]) => document.querySelectorAll('.editor .scale-value')[n]?.textContent === v,
    [nth, value],
  );
}

/** Today's day with an ultrasound of 35 cm and 1.5 kg, saved. */
async function recordUltrasound(page) {
  await page.tap('[data-id="menu:8"]');
  await page.waitForSelector('.diary .day-cell, .diary-message');
  await page.tap('.diary-add');
  await page.waitForSelector('.day-editor');
  await page.tap(e2e.dayField('ne-uzi128.png'));
  await page.waitForSelector('.editor .scale-ruler');
  // The second ruler moves while the answer to the first one's value redraws the form: it
  // keeps its place and sends its value all the same.
  await slideTo(page, 0, '35.0');
  await slideTo(page, 1, '1.500');
  await page.waitForTimeout(700);
  await e2e.settled(page);
  await page.tap('.editor-ok');
  await e2e.waitForText(page, `${e2e.dayField('ne-uzi128.png')} .day-row-text`, '35.0', 'has');
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.diary .day-cell.today');
}

/** The title page's charts by id, with the texts of each. */
async function chartTexts(page) {
  await page.waitForFunction(() => document.querySelectorAll('.ring-page svg').length >= 3);
  return page.$$eval('.ring-page svg', (svgs) =>
    svgs.map((svg) => [...svg.querySelectorAll('text')].map((t) => t.textContent).join('|')),
  );
}

await e2e.runBrowserTest('title', async ({ browser, base, outDir }) => {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base);
  await e2e.createPregnancy(page, { name: NAME, daysAgo: 200 });
  await recordUltrasound(page);
  await e2e.toMenu(page);
  await page.tap('[data-id="menu:3"]');
  const [development, length, weight] = await chartTexts(page);
  assert.match(development, /\d+\.\d гр\.\d+\.\d мм\./, "today's size beside the balloon");
  assert.match(length, /\|350\.0/, 'the ultrasound length in millimetres');
  assert.match(weight, /\|1500\.0/, 'the ultrasound weight in grams');
  await e2e.snap(page, outDir, 'title-page', true);
  await e2e.closeClean({ context, errors });

  const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
  await e2e.openCard(tablet.page, NAME);
  await tablet.page.tap('[data-id="menu:3"]');
  await chartTexts(tablet.page);
  await e2e.snap(tablet.page, outDir, 'title-page-tablet', true);
  await e2e.closeClean(tablet);
});
