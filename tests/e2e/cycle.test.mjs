// Browser test of the woman's cycle on a fresh installation of the cycle edition: an empty year
// says how to add a mark; the first and last days of a period and an ovulation marked in the day
// editor from the calendar show in the calendar's colours and in the diary's cells, whose mark
// opens the calendar again; her settings keep what she typed. Screenshots of the calendar at
// phone and tablet size, and of the settings.
//   node tests/e2e/cycle.test.mjs --server PATH_TO_SERVER --out SCREENSHOT_DIR
import assert from 'node:assert/strict';
import path from 'node:path';
import { TABLET, onNewInstallation, openPastGreeting, runBrowserTest } from './harness.mjs';

// A year wholly past, so that every phase is drawn whole.
const YEAR = new Date().getFullYear() - 1;
const day = (dd, mm) => `${dd}.${mm}.${YEAR}`;
const calendarDay = (date) => `.cycle-day[data-id="cycle:day:${date}"]`;

async function openCalendar(page) {
  await page.tap('[data-id="menu:5"]');
  await page.waitForSelector('.ring-page .cycle-calendar');
}

/** The calendar a year back, then a day of it marked in the day editor. */
async function markDay(page, date, type) {
  await page.tap(calendarDay(date));
  await page.waitForSelector('.day-editor');
  await page.tap('.day-field:has(img[src$="/checkgreen.png"])');
  await page.tap(`.popup-cover button:has-text("${type}")`);
  await page.waitForSelector('.day-field:has(img[src$="/checkgreen.png"]) .day-row-text');
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector(`${calendarDay(date)}.marked`);
}

async function checkCalendar(page, outDir) {
  await openCalendar(page);
  await page.waitForSelector('.cycle-empty');
  assert.equal(await page.$$eval('.cycle-month', (m) => m.length), 12);

  await page.tap('.cycle-calendar .diary-year button >> nth=0');
  await page.waitForFunction(
    (y) => document.querySelector('.cycle-calendar .diary-year-caption')?.textContent === y,
    String(YEAR),
  );
  await markDay(page, day('03', '03'), 'Первый день месячных');
  await markDay(page, day('07', '03'), 'Последний день месячных');
  await markDay(page, day('17', '03'), 'Овуляция');

  const classes = (date) => page.getAttribute(calendarDay(date), 'class');
  assert.match(await classes(day('05', '03')), /phase-period/);
  assert.doesNotMatch(await classes(day('05', '03')), /phase-open/, 'the period is closed');
  assert.doesNotMatch(await classes(day('08', '03')), /phase-/);
  assert.match(await classes(day('17', '03')), /phase-ovulation/);
  assert.equal(await page.textContent(`${calendarDay(day('17', '03'))} .cycle-day-count`), '15');
  assert.equal(await page.$('.cycle-empty'), null);
  await page.screenshot({ path: path.join(outDir, 'cycle-calendar.png'), fullPage: true });
}

/** The diary of that year shows the ovulation's day with its mark, which leads to the calendar. */
async function checkDiary(page) {
  await page.tap('.ring-page .to-menu');
  await page.tap('[data-id="menu:8"]');
  await page.waitForSelector('.ring-page .diary');
  await page.tap('.ring-page .diary-year button >> nth=0');
  await page.waitForFunction(
    (y) => document.querySelector('.ring-page .diary-year-caption')?.textContent?.startsWith(y),
    String(YEAR),
  );
  const cell = `.ring-page .day-cell[data-id="diary:day:${day('17', '03')}"]`;
  await page.fill('.ring-page .diary-search-input', 'Овуляция');
  await page.press('.ring-page .diary-search-input', 'Enter');
  await page.waitForSelector(cell);
  await page.tap(`${cell} .cycle-mark`);
  await page.waitForSelector('#app > .cycle-calendar .page-header button');
  await page.tap('#app > .cycle-calendar .page-header button');
  await page.waitForSelector(cell);
}

/** Today's page counts the days since the last marked first day and opens today's day. */
async function checkToday(page, outDir) {
  await page.tap('.ring-page .to-menu');
  await page.tap('[data-id="menu:1"]');
  await page.waitForSelector('.ring-page [data-id="today:day"]');
  await page.screenshot({ path: path.join(outDir, 'cycle-today.png') });
  await page.tap('.ring-page [data-id="today:day"]');
  await page.waitForSelector('.day-editor');
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.ring-page [data-id="today:day"]');
}

/** The woman's settings keep her height, build and a meal time, and show them when reopened. */
async function checkSettings(page, outDir) {
  await page.tap('.ring-page .to-menu');
  const open = async () => {
    await page.tap('[data-id="menu:22"]');
    await page.waitForSelector('.editor [data-field="field:meal1"]');
  };
  await open();
  await page.fill('[data-field="field:rost"]', '168');
  await page.fill('[data-field="field:meal1"]', '08:30');
  await page.tap('.segment:has-text("Полное")');
  await page.screenshot({ path: path.join(outDir, 'cycle-settings.png') });
  await page.tap('.editor-ok');
  await page.waitForSelector('.editor', { state: 'detached' });
  await open();
  assert.equal(await page.inputValue('[data-field="field:rost"]'), '168');
  assert.equal(await page.inputValue('[data-field="field:meal1"]'), '08:30');
  assert.equal(await page.inputValue('[data-field="field:meal2"]'), '11:00');
  assert.ok(await page.isChecked('.segment:has-text("Полное") input'));
  await page.tap('.editor-cancel');
}

await runBrowserTest('cycle', async ({ browser, executable, outDir }) => {
  await onNewInstallation(
    path.join(path.dirname(executable), 'lunoveya'),
    async ({ base }) => {
      const { context, page, errors } = await openPastGreeting(browser, base);
      await checkCalendar(page, outDir);
      await checkDiary(page);
      await checkToday(page, outDir);
      await checkSettings(page, outDir);
      assert.deepEqual(errors, []);
      await context.close();

      const tablet = await openPastGreeting(browser, base, { device: TABLET });
      await openCalendar(tablet.page);
      await tablet.page.screenshot({ path: path.join(outDir, 'cycle-calendar-tablet.png') });
      await tablet.page.tap('.ring-page .to-menu');
      await tablet.page.tap('[data-id="menu:1"]');
      await tablet.page.waitForSelector('.ring-page [data-id="today:day"]');
      await tablet.page.screenshot({ path: path.join(outDir, 'cycle-today-tablet.png') });
      await tablet.context.close();
    },
    { name: 'lunoveya' },
  );
});
