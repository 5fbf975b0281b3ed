// Browser test of the woman's cycle on a fresh installation of the cycle edition: an empty year
// says how to add a mark; the first and last days of a period and an ovulation marked in the day
// editor from the calendar show in the calendar's colours and in the diary's cells, whose mark
// opens the calendar again; her settings keep what she typed. Screenshots of the calendar at
// phone and tablet size, and of the settings.
import assert from 'node:assert/strict';
import path from 'node:path';
import * as e2e from './harness.mjs';

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

  await page.tap('.cycle-calendar .diary-year button >> nth=0');
  await e2e.waitForText(page, '.cycle-calendar .diary-year-caption', String(YEAR));
  await markDay(page, day('03', '03'), 'Первый день месячных');
  await markDay(page, day('07', '03'), 'Последний день месячных');
  await markDay(page, day('17', '03'), 'Овуляция');

  // A closed period, a day after it, the ovulation.
  const phases = async (dd) =>
    (await page.getAttribute(calendarDay(day(dd, '03')), 'class')).match(/phase-[\w-]+/g);
  assert.deepEqual(
    [await phases('05'), await phases('08'), await phases('17')],
    [['phase-period'], null, ['phase-ovulation']],
  );
  assert.equal(await page.textContent(`${calendarDay(day('17', '03'))} .cycle-day-count`), '15');
  await e2e.snap(page, outDir, 'cycle-calendar', true);
}

/** The diary of that year shows the ovulation's day with its mark, which leads to the calendar. */
async function checkDiary(page) {
  await page.tap('.ring-page .to-menu');
  await page.tap('[data-id="menu:8"]');
  await page.waitForSelector('.ring-page .diary');
  await page.tap('.ring-page .diary-year button >> nth=0');
  await e2e.waitForText(page, '.ring-page .diary-year-caption', String(YEAR), 'starts');
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
  await e2e.snap(page, outDir, 'cycle-today');
  await page.tap('.ring-page [data-id="today:day"]');
  await page.waitForSelector('.day-editor');
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.ring-page [data-id="today:day"]');
}

/** The woman's settings keep her height and a meal time, and show them when reopened. */
async function checkSettings(page, outDir) {
  await page.tap('.ring-page .to-menu');
  const open = async () => {
    await page.tap('[data-id="menu:22"]');
    await page.waitForSelector('.editor [data-field="field:meal1"]');
  };
  await open();
  await page.fill('[data-field="field:rost"]', '168');
  await page.fill('[data-field="field:meal1"]', '08:30');
  await e2e.snap(page, outDir, 'cycle-settings');
  await page.tap('.editor-ok');
  await page.waitForSelector('.editor', { state: 'detached' });
  await open();
  assert.equal(await page.inputValue('[data-field="field:rost"]'), '168');
  assert.equal(await page.inputValue('[data-field="field:meal1"]'), '08:30');
  await page.tap('.editor-cancel');
}

await e2e.runBrowserTest('cycle', async ({ browser, executable, outDir }) => {
  await e2e.onNewInstallation(
    path.join(path.dirname(executable), 'lunoveya'),
    async ({ base }) => {
      const { context, page, errors } = await e2e.openPastGreeting(browser, base);
      await checkCalendar(page, outDir);
      await checkDiary(page);
      await checkToday(page, outDir);
      await checkSettings(page, outDir);
      await e2e.closeClean({ context, errors });

      const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
      await openCalendar(tablet.page);
      await e2e.snap(tablet.page, outDir, 'cycle-calendar-tablet');
      await tablet.page.tap('.ring-page .to-menu');
      await tablet.page.tap('[data-id="menu:1"]');
      await tablet.page.waitForSelector('.ring-page [data-id="today:day"]');
      await e2e.snap(tablet.page, outDir, 'cycle-today-tablet');
      await e2e.closeClean(tablet);
    },
    { name: 'lunoveya' },
  );
});
