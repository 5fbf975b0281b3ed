// Browser test of the day schedule: a medicine taken twice a day before meals, written in the day
// editor, stands in the schedule; the meal times set in the dialog "Время приема пищи" are kept
// and redraw it, the dinner's over midnight to the top of the day (the rows' order is the C++
// suite's). Screenshots of the schedule and the dialog at phone and tablet size.
//   node tests/e2e/inday.test.mjs --server PATH_TO_SERVER --out SCREENSHOT_DIR
import assert from 'node:assert/strict';
import {
  closeClean,
  createPregnancy,
  dayField,
  openPastGreeting,
  pickOnWheels,
  runBrowserTest,
  settled,
  snapBoth,
} from './harness.mjs';

const PILLS_ROW = dayField('ne-pills128.png');
const RELATION = 'Перед едой';

/** Chooses the entry of a dictionary field of the medicine form. */
async function chooseEntry(page, field, caption) {
  await page.tap(`button[data-id="field:${field}"]`);
  await page.tap(`.editor-entry:has-text("${caption}")`);
  await page.tap('.editor-ok');
  await page.waitForSelector(`button[data-id="field:${field}"]:has-text("${caption}")`);
}

/** Today's course of Арбидол, twice a day before meals. */
async function writeCourse(page) {
  await page.tap('[data-id="menu:8"]');
  await page.tap('.ring-page .diary-add');
  await page.waitForSelector('.day-editor');
  await page.tap(PILLS_ROW);
  await chooseEntry(page, 'pillname', 'Арбидол');
  await pickOnWheels(page, 'field:pillinter', ['2', 'раз в день']);
  await chooseEntry(page, 'pilleat', RELATION);
  await page.tap('.editor-ok');
  await page.waitForSelector(`${PILLS_ROW} .day-line:has-text("Арбидол")`);
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.ring-page .diary');
  await page.tap('.ring-page .to-menu');
}

await runBrowserTest('inday', async ({ browser, base, outDir }) => {
  const { context, page, errors } = await openPastGreeting(browser, base);
  await createPregnancy(page, { name: 'Вера' });
  await writeCourse(page);
  await page.tap('[data-id="menu:2"]');
  await page.waitForSelector('.ring-page .schedule-relation');
  await snapBoth(page, outDir, 'inday');

  await page.tap('.ring-page .schedule-meals');
  await page.waitForSelector('.editor [data-field="field:time1"]');
  await page.fill('[data-field="field:time1"]', '07:30');
  await page.fill('[data-field="field:time3"]', '23:58');
  await settled(page);
  await snapBoth(page, outDir, 'inday-meals');
  await page.tap('.editor-ok');
  await page.waitForSelector('.ring-page .schedule');

  // Dinner at 23:58: its intake and meal wrap to the first minutes of the day, breakfast follows.
  await page.waitForFunction(
    () =>
      document.querySelector('.ring-page .schedule-meal .schedule-right')?.textContent === 'ужин',
  );
  await snapBoth(page, outDir, 'inday-after');

  // The day before has no course; the dialog opens with the times stored.
  await page.tap('.ring-page .diary-year button >> nth=0');
  await page.waitForFunction(() => !document.querySelector('.ring-page .schedule-relation'));
  await page.tap('.ring-page .schedule-meals');
  assert.equal(await page.inputValue('[data-field="field:time1"]'), '07:30');
  assert.equal(await page.inputValue('[data-field="field:time3"]'), '23:58');
  await page.tap('.editor-cancel');
  await closeClean({ context, errors });
});
