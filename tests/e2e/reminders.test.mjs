// Browser test of a reminder: written in the day editor for a few minutes ahead, it comes at its
// minute of the server's test clock as the box "Напоминание" in the open page, and only once.
//   node tests/e2e/reminders.test.mjs --server PATH_TO_SERVER --out SCREENSHOT_DIR
import assert from 'node:assert/strict';
import path from 'node:path';
import { advanceClock, onNewInstallation, openPastGreeting, runBrowserTest } from './harness.mjs';

const TEXT = 'Принять витамины';

/** "HH:mm" moved on by some minutes, within the day. */
function later(time, minutes) {
  const [h, m] = time.split(':').map(Number);
  const total = h * 60 + m + minutes;
  return `${String(Math.floor(total / 60)).padStart(2, '0')}:${String(total % 60).padStart(2, '0')}`;
}

async function writeReminder(page) {
  await page.tap('[data-id="menu:8"]');
  await page.tap('.ring-page .diary-add');
  await page.waitForSelector('.day-editor');
  await page.tap('.day-field:has(img[src$="/ne-alarm128.png"])');
  await page.waitForSelector('.editor [data-field="field:time"]');
  const now = await page.inputValue('[data-field="field:time"]');
  assert.ok(now < '23:50', 'the test clock was moved off the day’s last minutes');
  await page.fill('[data-field="field:temp"]', TEXT);
  await page.fill('[data-field="field:time"]', later(now, 3));
  await page.tap('.editor-ok');
  await page.waitForSelector('.day-field:has(img[src$="/ne-alarm128.png"]) .day-line');
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.ring-page .diary');
}

await runBrowserTest('reminders', async ({ browser, executable, outDir }) => {
  await onNewInstallation(
    path.join(path.dirname(executable), 'lunoveya'),
    async ({ base }) => {
      const { context, page, errors } = await openPastGreeting(browser, base);
      // Late in the evening the reminder is written for the next morning's test day instead.
      if (new Date().getHours() === 23) await advanceClock(page, 3600);
      await writeReminder(page);

      await advanceClock(page, 60);
      await page.waitForTimeout(2500);
      assert.equal(await page.$('.message'), null, 'nothing before its minute');

      await advanceClock(page, 180);
      await page.waitForSelector('.message');
      assert.equal(await page.textContent('.message-caption'), 'Напоминание');
      assert.equal(await page.textContent('.message-text'), TEXT);
      await page.screenshot({ path: path.join(outDir, 'reminder.png') });
      await page.tap('.message button');
      await page.waitForSelector('.message', { state: 'detached' });

      await advanceClock(page, 120);
      await page.waitForTimeout(2500);
      assert.equal(await page.$('.message'), null, 'a reminder comes once');
      assert.deepEqual(errors, []);
      await context.close();
    },
    {
      name: 'reminders',
      extraArgs: ['--fake-clock'],
      env: { ...process.env, LADANEYA_TEST_MODE: '1' },
    },
  );
});
