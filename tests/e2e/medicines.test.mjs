// Browser test of a medicine course: written in the day editor for a week with its first hour a
// few minutes ahead, it stands on each of the seven days, its intake comes at its minute of the
// server's test clock as the box "Напоминание", the calendar feed holds it with its alarm (read
// by a real iCalendar parser), and taken out on one day through its popup menu it leaves every
// day. Screenshots of the medicine form and the feed's page at phone and tablet size, of the
// reminder's box and of the popup menu.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import fs from 'node:fs';
import path from 'node:path';
import * as e2e from './harness.mjs';

const MEDICINE = 'Магний';
const PILLS_ROW = e2e.dayField('ne-pills128.png');

/** "HH:mm" moved on by some minutes, within the day. */
function later(time, minutes) {
  const [h, m] = time.split(':').map(Number);
  const total = h * 60 + m + minutes;
  return [Math.floor(total / 60), total % 60].map((n) => String(n).padStart(2, '0'));
}

/** The server's time now, as the reminder form starts with it. */
async function serverTime(page) {
  await page.tap(e2e.dayField('ne-alarm128.png'));
  const now = await page.inputValue('.editor [data-field="field:time"]');
  await page.tap('.editor-cancel');
  await page.waitForSelector('.day-editor');
  return now;
}

async function writeCourse(page, outDir) {
  await page.tap('[data-id="menu:8"]');
  await page.tap('.ring-page .diary-add');
  await page.waitForSelector('.day-editor');
  const now = await serverTime(page);
  assert.ok(now < '23:50', 'the test clock was moved off the day’s last minutes');
  await page.tap(PILLS_ROW);
  await page.waitForSelector('.editor button[data-id="field:pillname"]');

  await page.tap('button[data-id="field:pillname"]');
  await page.tap('button[data-id="field:add"]');
  await page.fill('[data-field="field:name"]', MEDICINE);
  await page.tap('.editor-ok');
  await page.waitForSelector(`.editor-entry:has-text("${MEDICINE}") input:checked`);
  await page.tap('.editor-ok');
  await page.waitForSelector(`button[data-id="field:pillname"]:has-text("${MEDICINE}")`);

  // Three times a day over all its hours, the first intake moved to a few minutes ahead.
  await e2e.pickOnWheels(page, 'field:pillinter', ['3', 'раз в сутки']);
  await page.waitForSelector('button[data-id="field:pilltime:2"]:has-text("16:00")');
  await e2e.pickOnWheels(page, 'field:pilltime:0', later(now, 3));
  await page.waitForSelector(
    `button[data-id="field:pilltime:0"]:has-text("${later(now, 3).join(':')}")`,
  );
  await e2e.snapBoth(page, outDir, 'medicine-form');
  await page.tap('.editor-ok');
  await page.waitForSelector(`${PILLS_ROW} .day-line:has-text("${MEDICINE}")`);
}

/** The pills row's text on each of the days from today on, moving with "›". */
async function courseDays(page, count) {
  const texts = [];
  for (let day = 0; day < count; day += 1) {
    texts.push(await page.textContent(PILLS_ROW));
    const title = await page.textContent('.day-editor-date');
    await page.tap('[data-id="day:next"]');
    await page.waitForFunction(
      (t) => document.querySelector('.day-editor-date')?.textContent !== t,
      title,
    );
  }
  return texts;
}

function readFeed(feed, dataDir) {
  const file = path.join(dataDir, 'feed.ics');
  fs.writeFileSync(file, feed);
  return JSON.parse(
    execFileSync('/usr/bin/python3', ['tests/e2e/read_calendar.py', file], { encoding: 'utf8' }),
  );
}

await e2e.runBrowserTest('medicines', async ({ browser, executable, outDir }) => {
  await e2e.onNewInstallation(
    path.join(path.dirname(executable), 'lunoveya'),
    async ({ base, dataDir }) => {
      const { context, page, errors } = await e2e.openPastGreeting(browser, base);
      if (new Date().getHours() === 23) await e2e.advanceClock(page, 3600);
      await page.tap('[data-id="menu:54"]'); // reminders of the intakes on
      await page.waitForSelector('[data-id="menu:54"] [aria-checked="true"]');
      await writeCourse(page, outDir);

      const week = await courseDays(page, 8);
      for (let day = 1; day <= 7; day += 1)
        assert.match(week[day - 1], new RegExp(`${MEDICINE}.*\\(${day} день из 7\\)`));
      assert.doesNotMatch(week[7], new RegExp(MEDICINE), 'the eighth day is free of it');
      await page.tap('.day-editor .editor-ok');
      await page.waitForSelector('.ring-page .diary');

      await e2e.advanceClock(page, 180);
      await page.waitForSelector('.message');
      assert.equal(await page.textContent('.message-caption'), 'Напоминание');
      assert.match(await page.textContent('.message-text'), new RegExp(`^${MEDICINE}: 3 `));
      await e2e.snap(page, outDir, 'reminder');
      await page.tap('.message button');

      await page.tap('.ring-page .to-menu');
      await page.tap('[data-id="menu:57"]');
      const address = await page.inputValue('.address-text');
      await e2e.snapBoth(page, outDir, 'reminder-feed');
      const events = readFeed(await (await fetch(address)).text(), dataDir);
      const intakes = events.filter((e) => e.summary.startsWith(`${MEDICINE}: `));
      assert.ok(intakes.length >= 3 * 6, `the week's intakes are in the feed: ${intakes.length}`);
      assert.deepEqual(intakes[0].alarms, [
        { action: 'DISPLAY', trigger: '0:00:00', description: intakes[0].summary },
      ]);

      // Taken out on today's day, the course leaves all seven.
      await page.tap('[data-id="feed:close"]');
      await page.tap('[data-id="menu:8"]');
      await page.tap('.ring-page .diary-add');
      await page.tap(`${PILLS_ROW} .day-line`);
      // The entry's popup menu ends in "Отменить".
      await page.waitForSelector('.popup-cover .sheet');
      const items = await page.$$eval('.sheet > *', (nodes) => nodes.map((n) => n.textContent));
      assert.deepEqual(items, ['Редактировать', 'Удалить', 'Отменить']);
      await e2e.snap(page, outDir, 'popup-menu');
      await page.tap('.popup-cover [data-id="popup:1"]'); // "Удалить"
      await page.waitForSelector(`${PILLS_ROW}:not(:has(.day-line))`);
      await page.tap('.day-editor .editor-ok');
      await page.tap('.ring-page .diary-add');
      for (const text of await courseDays(page, 7)) assert.doesNotMatch(text, new RegExp(MEDICINE));
      const after = readFeed(await (await fetch(address)).text(), dataDir);
      assert.equal(after.filter((e) => e.summary.startsWith(MEDICINE)).length, 0);
      await e2e.closeClean({ context, errors });
    },
    { ...e2e.FAKE_CLOCK, name: 'medicines' },
  );
});
