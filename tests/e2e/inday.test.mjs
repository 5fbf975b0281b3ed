// Browser test of the day schedule: a medicine taken twice a day before meals, written in the day
// editor, stands in the schedule; the meal times set in the dialog "Время приема пищи" are kept
// and redraw it, the dinner's over midnight to the top of the day (the rows' order is the C++
// suite's). Screenshots of the schedule and the dialog at phone and tablet size.
import assert from 'node:assert/strict';
import * as e2e from './harness.mjs';

const PILLS_ROW = e2e.dayField('ne-pills128.png');
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
  await e2e.pickOnWheels(page, 'field:pillinter', ['2', 'раз в день']);
  await chooseEntry(page, 'pilleat', RELATION);
  await page.tap('.editor-ok');
  await page.waitForSelector(`${PILLS_ROW} .day-line:has-text("Арбидол")`);
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.ring-page .diary');
  await page.tap('.ring-page .to-menu');
}

await e2e.runBrowserTest('inday', async ({ browser, base, outDir }) => {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base);
  await e2e.createPregnancy(page, { name: 'Вера' });
  await writeCourse(page);
  await page.tap('[data-id="menu:2"]');
  await page.waitForSelector('.ring-page .schedule-relation');
  await e2e.snapBoth(page, outDir, 'inday');

  await page.tap('.ring-page .schedule-meals');
  await page.waitForSelector('.editor [data-field="field:time1"]');
  await page.fill('[data-field="field:time1"]', '07:30');
  await page.fill('[data-field="field:time3"]', '23:58');
  await e2e.settled(page);
  await e2e.snapBoth(page, outDir, 'inday-meals');
  await page.tap('.editor-ok');
  await page.waitForSelector('.ring-page .schedule');

  // Dinner at 23:58: its intake and meal wrap to the first minutes of the day, breakfast follows.
  await page.waitForFunction(
    () =>
      document.querySelector('.ring-page .schedule-meal .schedule-right')?.textContent === 'ужин',
  );
  await e2e.snapBoth(page, outDir, 'inday-after');

  // The day before has no course; the dialog opens with the times stored.
  await page.tap('.ring-page .diary-year button >> nth=0');
  await page.waitForFunction(() => !document.querySelector('.ring-page .schedule-relation'));
  await page.tap('.ring-page .schedule-meals');
  assert.equal(await page.inputValue('[data-field="field:time1"]'), '07:30');
  assert.equal(await page.inputValue('[data-field="field:time3"]'), '23:58');
  await page.tap('.editor-cancel');
  await e2e.closeClean({ context, errors });
});
