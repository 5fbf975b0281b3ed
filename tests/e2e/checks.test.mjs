// Browser test of the check-lists. Phone: the doctor's plan of a pregnancy, an item ticked, its
// text kept in the editor and then found in today's diary; the woman's notices of the week read
// from their badge in the menu, which then goes. Tablet: the hospital lists of the
// menu, an item of one ticked and still ticked when the list is opened again. Screenshots of the
// plan, the editor and a list.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import * as e2e from './harness.mjs';

async function tickPlanItem(page, shot) {
  await e2e.openCard(page);
  await page.tap('[data-id="menu:7"]');
  const box = page.locator('.content[data-content="doctor"] .content-tick').first();
  await box.waitFor();
  await page.waitForSelector('.ring-page .content-row.highlight');
  await shot('plan');
  assert.equal(await box.getAttribute('aria-pressed'), 'false');
  await box.tap();
  await page.waitForSelector('.editor textarea');
  const text = await page.inputValue('.editor textarea');
  assert.ok(text.length > 0, 'the item brings its text');
  await shot('plan-editor');
  await page.tap('button[data-id="editor:ok"]');
  await page.waitForSelector('.editor', { state: 'detached' });
  assert.equal(await box.getAttribute('aria-pressed'), 'true', 'the item is ticked');
  return text;
}

async function findInDiary(page, text) {
  await e2e.toMenu(page);
  await page.tap('[data-id="menu:8"]');
  const today = page.locator('.diary .day-cell.today');
  await today.waitFor();
  assert.ok((await today.textContent()).includes(text.split('\n')[0]), 'the text is in the day');
}

/** The first week with a notice of the woman's row (5) in the notice file. */
function firstWomanNoticeWeek() {
  const rows = fs.readFileSync('resources/content/warning.txt', 'utf8').split('<tr>');
  const fields = rows.map((row) => row.split('<td>').map((f) => f.trim()));
  return Number(fields.find((f) => f.length >= 3 && f[0] === '5')[1]);
}

async function readWeekNotice(page, shot) {
  const week = firstWomanNoticeWeek();
  const name = `Неделя ${week}`;
  await e2e.toMenu(page);
  await e2e.createPregnancy(page, { name, daysAgo: (week - 1) * 7 });
  const badge = page.locator('button[data-id="menu:notice:5"]');
  await badge.tap();
  await page.waitForSelector(`.message:has-text("События ${week} недели")`);
  await shot('notice');
  await page.tap('button[data-id="message:ok"]');
  await badge.waitFor({ state: 'detached' });
}

async function tickHospitalItem(page, shot) {
  await page.tap('[data-id="menu:33"]');
  await page.locator('.content[data-content="checks"] .content-link').first().tap();
  const box = page.locator('.content[data-content="subcheck"] .content-tick').first();
  await box.waitFor();
  await box.tap();
  await page.waitForSelector('.content[data-content="subcheck"] .content-check.ticked');
  await shot('hospital-list');
  await page.tap('button[data-id="checks:close"]');
  await page.locator('.content[data-content="checks"] .content-link').first().tap();
  await page.waitForSelector('.content[data-content="subcheck"] .content-check.ticked');
  assert.equal(await page.locator('.content-check.ticked').count(), 1);
}

await e2e.runBrowserTest('checks', async ({ browser, base, outDir }) => {
  const shots = (page, device) => (what) => e2e.snap(page, outDir, `checks-${what}-${device}`);

  const phone = await e2e.openPastGreeting(browser, base, { device: e2e.PHONE });
  const text = await tickPlanItem(phone.page, shots(phone.page, 'phone'));
  await findInDiary(phone.page, text);
  await readWeekNotice(phone.page, shots(phone.page, 'phone'));
  await e2e.closeClean(phone);

  const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
  await tickHospitalItem(tablet.page, shots(tablet.page, 'tablet'));
  await e2e.closeClean(tablet);
});
