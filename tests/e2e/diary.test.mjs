// Browser test of the diary in each of the three editions, on a fresh installation at phone
// size: a day recorded with a weight, a note, an entry of the dictionary and a photo; seen in
// the list under its section; found by a search in capitals; edited; left for the next day and
// back; deleted with its photo files. Screenshots of the list and the editor at phone and
// tablet size.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import * as e2e from './harness.mjs';

const EDITIONS = [
  { program: 'ladaneya', dictionaryRow: 'ne-doctor.png', section: /неделя/ },
  { program: 'krohomir', dictionaryRow: 'ne-doctor.png', section: /месяц/ },
  { program: 'lunoveya', dictionaryRow: 'ne-health128.png', section: /^\p{Lu}/u },
];

/** The diary page of the installation: a pregnancy's opens under its card. */
async function openDiary(page) {
  if ((await page.locator('.card[data-id]').count()) > 0) await page.tap('.card[data-id]');
  await page.tap('[data-id="menu:8"]');
  await page.waitForSelector('.diary .day-cell, .diary-message');
}

/** Opens a field's form from the day editor, runs `fill`, and commits it. */
async function editField(page, icon, fill) {
  await page.tap(e2e.dayField(icon));
  await page.waitForSelector('.editor');
  await fill();
  await page.tap('.editor-ok');
  await page.waitForSelector('.day-editor');
}

async function recordDay(page, edition) {
  await page.tap('.diary-add');
  await page.waitForSelector('.day-editor');
  const weight = page.locator(`${e2e.dayField('ne-weight.png')} input`);
  await weight.fill('60,5');
  await weight.blur();
  await e2e.settled(page);
  await editField(page, 'ne-notepad.png', () =>
    page.fill('[data-field="field:text"]', 'Первое шевеление'),
  );
  await editField(page, edition.dictionaryRow, () => page.tap('.editor-entry >> nth=0'));
  await page.setInputFiles(
    '.day-photo-input:not(:first-child) input',
    await e2e.drawnJpeg(page, 640, 480),
  );
  await page.waitForSelector('.day-photo-picture[src^="data:image/jpeg"]');
}

async function searchFinds(page, text) {
  await page.fill('.diary-search-input', text);
  await page.press('.diary-search-input', 'Enter');
  await page.waitForFunction(
    (t) =>
      document.querySelector('.diary-search-input')?.value === t &&
      document.querySelectorAll('.day-cell').length === 1,
    text,
  );
}

/**
 * A swipe to the left on today's cell, then its delete button. A redraw pushed by the server in
 * between draws the cell anew, unswiped: then the swipe is made again.
 */
async function swipeAndDelete(page) {
  for (let attempt = 1; ; attempt += 1) {
    await page.evaluate(() => {
      const cell = document.querySelector('.day-cell.today');
      cell.dispatchEvent(new PointerEvent('pointerdown', { clientX: 300, bubbles: true }));
      cell.dispatchEvent(new PointerEvent('pointerup', { clientX: 100, bubbles: true }));
    });
    try {
      await page.tap('.day-cell.today.swiped .delete', { timeout: 2000 });
      return;
    } catch (error) {
      if (attempt === 5) throw error;
    }
  }
}

/** The photo files of days, full size or small, kept in the data folder. */
const dayPictures = (dataDir) =>
  fs.readdirSync(dataDir, { recursive: true }).filter((f) => /\d\d-\d\d-\d{4}(-s)?\.jpg$/.test(f));

async function checkEdition(browser, executable, edition, outDir) {
  const server = path.join(path.dirname(executable), edition.program);
  await e2e.onNewInstallation(
    server,
    async ({ base, dataDir }) => {
      const { context, page, errors } = await e2e.openPastGreeting(browser, base);
      await openDiary(page);
      await recordDay(page, edition);
      const shot = (p, what) => e2e.snap(p, outDir, `diary-${edition.program}-${what}`);
      await shot(page, 'editor');
      await page.tap('.day-editor .editor-ok');
      await page.waitForSelector('.diary .day-cell.today');

      // The day under its section, with what was recorded.
      const today = page.locator('.day-cell.today');
      assert.match(await today.textContent(), /Первое шевеление/);
      assert.equal(await today.locator('.day-thumbnail').count(), 1);
      const section = await page.evaluate(() => {
        let node = document.querySelector('.day-cell.today');
        while (node && !node.matches('.diary-section')) node = node.previousElementSibling;
        return node?.firstChild?.textContent ?? '';
      });
      assert.match(section, edition.section);
      assert.equal(dayPictures(dataDir).length, 2, 'the photo and its small copy');
      await shot(page, 'list');

      await searchFinds(page, 'ВЕС');
      await page.tap('.diary-search-cancel');
      await page.waitForFunction(() => document.querySelectorAll('.day-cell').length > 1);

      // Edited, then to the next day and back: the change was kept.
      await page.tap('.day-cell.today .day-rows');
      await page.waitForSelector('.day-editor');
      await editField(page, 'ne-notepad.png', () =>
        page.fill('[data-field="field:text"]', 'Шевеление стало сильнее'),
      );
      const date = await page.textContent('.day-editor-date');
      await page.tap('.day-editor-header button:nth-child(3)');
      await page.waitForFunction(
        (d) => document.querySelector('.day-editor-date')?.textContent !== d,
        date,
      );
      await page.tap('.day-editor-header button:nth-child(1)');
      await e2e.waitForText(page, '.day-editor-date', date);
      const note = await page.textContent(e2e.dayField('ne-notepad.png'));
      assert.match(note, /Шевеление стало сильнее/, 'the edit kept');
      await page.tap('.day-editor .editor-ok');
      await page.waitForSelector('.diary .day-cell.today');

      // A swipe to the left offers the deletion; it is asked, and the photo files go.
      await swipeAndDelete(page);
      await page.waitForSelector('.popup-cover');
      await page.tap('.popup-cover button[data-id="popup:1"]');
      await page.waitForFunction(
        () => !/Шевеление/.test(document.querySelector('.day-cell.today')?.textContent ?? ''),
      );
      assert.deepEqual(dayPictures(dataDir), [], 'the photo files go with the day');
      await e2e.closeClean({ context, errors });

      const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
      await openDiary(tablet.page);
      await shot(tablet.page, 'list-tablet');
      await tablet.page.tap('.diary-add');
      await tablet.page.waitForSelector('.day-editor');
      await shot(tablet.page, 'editor-tablet');
      await e2e.closeClean(tablet);
    },
    { name: edition.program },
  );
}

await e2e.runBrowserTest('diary', async ({ browser, executable, outDir }) => {
  for (const edition of EDITIONS) await checkEdition(browser, executable, edition, outDir);
});
