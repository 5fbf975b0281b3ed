// Browser test of the child edition on a fresh installation: two children are added through
// "Новый ребенок"; for one of them a breast feeding is timed on the server's test clock and a
// sleep is recorded, and they show in that child's diary and in none of the other's.
// Screenshots of the cards, the child's settings, the feeding and the day at phone and tablet
// size.
import assert from 'node:assert/strict';
import path from 'node:path';
import * as e2e from './harness.mjs';

const fieldRow = (icon) => `.day-editor ${e2e.dayField(icon)}`;
const card = (name) => `.card[data-id]:has-text("${name}")`;

async function addChild(page, name, sex, outDir) {
  await page.tap('[data-id="menu:31"]');
  await page.waitForSelector('.editor [data-field="field:name"]');
  await page.fill('[data-field="field:name"]', name);
  await page.tap(`.segment:has-text("${sex}")`);
  await e2e.settled(page);
  if (outDir) await e2e.snap(page, outDir, 'child-settings');
  await page.tap('.editor-ok');
  await page.waitForSelector(card(name));
}

/** Today's day of the child whose card is open, from its diary. */
async function openToday(page, name) {
  await page.tap(card(name));
  await page.tap('[data-id="menu:8"]');
  await page.waitForSelector('.ring-page .diary');
  await page.tap('.ring-page .diary-add');
  await page.waitForSelector('.day-editor');
}

async function timeBreastFeeding(page, outDir) {
  await page.tap(fieldRow('ne-korm.png'));
  await page.tap('[data-id="field:add1"]');
  await page.tap('[data-id="field:startleft"]');
  await e2e.waitForText(page, '.editor', 'Идет кормление левой грудью ...', 'has');
  await e2e.advanceClock(page, 195);
  // Three minutes and a quarter, and the seconds the page itself took on a busy machine.
  await page.waitForFunction(() =>
    /0:03:(1[5-9]|[2-5]\d)/.test(document.querySelector('.editor')?.textContent ?? ''),
  );
  await e2e.snap(page, outDir, 'child-breast-timer');
  await page.tap('[data-id="field:startleft"]');
  await page.waitForFunction(
    () => document.querySelector('[data-field="field:left"]')?.value === '00:03',
  );
  await page.tap('.editor-ok');
  await page.waitForSelector('[data-id="field:feed0"]');
  await e2e.snap(page, outDir, 'child-feedings');
  await page.tap('.editor-ok');
  await page.waitForSelector('.day-editor');
}

async function recordSleep(page) {
  await page.tap(fieldRow('ne-sleep.png'));
  await page.waitForSelector('[data-field="field:end"]');
  await page.fill('[data-field="field:start"]', '13:00');
  await page.fill('[data-field="field:end"]', '14:30');
  await page.press('[data-field="field:end"]', 'Tab');
  await e2e.settled(page);
  await page.tap('.editor-ok');
  await e2e.waitForText(page, fieldRow('ne-sleep.png'), 'с 13:00 до 14:30 (01:30)', 'has');
}

/** The child's diary lists the day with its sleep; the other child's has neither it nor the
 *  feeding. */
async function checkDiaries(page, outDir) {
  await e2e.snap(page, outDir, 'child-day', true);
  await page.tap('.day-editor .editor-ok');
  await e2e.waitForText(page, '.ring-page .diary', 'с 13:00 до 14:30 (01:30)', 'has');
  await page.tap('.ring-page .to-menu');
  await page.tap(card('Мирон'));
  await openToday(page, 'Алиса');
  assert.doesNotMatch(await page.textContent('.day-editor'), /Левая грудь|13:00/);
  await page.tap('.day-editor .editor-ok');
  await page.waitForSelector('.ring-page .diary');
}

await e2e.runBrowserTest('child', async ({ browser, executable, outDir }) => {
  await e2e.onNewInstallation(
    path.join(path.dirname(executable), 'krohomir'),
    async ({ base }) => {
      const { context, page, errors } = await e2e.openPastGreeting(browser, base);
      await addChild(page, 'Мирон', 'Мальчик', outDir);
      await addChild(page, 'Алиса', 'Девочка');
      await e2e.snap(page, outDir, 'child-cards');
      await openToday(page, 'Мирон');
      await timeBreastFeeding(page, outDir);
      await e2e.waitForText(page, fieldRow('ne-korm.png'), 'Левая грудь', 'has');
      await recordSleep(page);
      await checkDiaries(page, outDir);
      await e2e.closeClean({ context, errors });

      const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
      await e2e.snap(tablet.page, outDir, 'child-cards-tablet');
      await openToday(tablet.page, 'Мирон');
      await e2e.snap(tablet.page, outDir, 'child-day-tablet', true);
      await tablet.page.tap(fieldRow('ne-korm.png'));
      await tablet.page.waitForSelector('[data-id="field:feed0"]');
      await e2e.snap(tablet.page, outDir, 'child-feedings-tablet');
      await e2e.closeClean(tablet);
    },
    { ...e2e.FAKE_CLOCK, name: 'krohomir' },
  );
});
