// Browser test of the PDF reports from the main menu: the menu's choice of report and the diary
// report made while the page follows its progress, at phone and tablet size; on the phone, the
// finished PDF fetched by the browser that asked for it (and by no other), and the pressure
// report after the question of its day. Screenshots of the choice, the date question and the
// finished panel.
import assert from 'node:assert/strict';
import * as e2e from './harness.mjs';

/** Opens the pregnancy's card, unless open, and the menu's report row. */
async function askForReport(page) {
  if (!(await page.$('.card.open'))) await e2e.openCard(page);
  await page.tap('[data-id="menu:21"]');
  await page.waitForSelector('.popup-cover');
}

const choose = (page, caption) => page.tap(`.popup-cover button:has-text("${caption}")`);

async function finishedReport(page) {
  await page.waitForSelector('.report[data-state="done"]');
  return page.getAttribute('.report a[download]', 'href');
}

/** What the browser gets at the address: status, type and the file's first bytes. */
function fetchHead(page, address) {
  return page.evaluate(async (a) => {
    const response = await fetch(a);
    const bytes = new Uint8Array(await response.arrayBuffer()).slice(0, 5);
    return {
      status: response.status,
      type: response.headers.get('Content-Type'),
      head: String.fromCharCode(...bytes),
    };
  }, address);
}

async function checkDevice(browser, base, device, name, outDir) {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base, { device });
  await askForReport(page);
  await e2e.snap(page, outDir, `reports-choice-${name}`);

  await choose(page, 'Вся беременность');
  const diary = await finishedReport(page);
  assert.equal(diary, '/doc/report/report.pdf');
  await e2e.snap(page, outDir, `reports-ready-${name}`);
  assert.deepEqual(await fetchHead(page, diary), {
    status: 200,
    type: 'application/pdf',
    head: '%PDF-',
  });
  if (device === e2e.TABLET) return e2e.closeClean({ context, errors });
  // Another browser has asked for nothing: the file is not there for it.
  const other = await e2e.openPastGreeting(browser, base, { device });
  assert.equal((await fetchHead(other.page, diary)).status, 404, 'no report for another browser');
  await other.context.close();

  await page.tap('.report button[data-id="report:close"]');
  await page.waitForSelector('.report', { state: 'detached' });
  await askForReport(page);
  await choose(page, 'Отчет по давлению');
  await page.waitForSelector('.popup-cover .wheel');
  await e2e.snap(page, outDir, `reports-date-${name}`);
  await page.tap('.popup-cover button[data-id="popup:1"]');
  const pressure = await finishedReport(page);
  assert.equal((await fetchHead(page, pressure)).head, '%PDF-');
  // The diary report of before is no longer this browser's.
  assert.equal((await fetchHead(page, diary)).status, 404);
  await e2e.closeClean({ context, errors });
}

await e2e.runBrowserTest('reports', async ({ browser, base, outDir }) => {
  await checkDevice(browser, base, e2e.PHONE, 'phone', outDir);
  await checkDevice(browser, base, e2e.TABLET, 'tablet', outDir);
});
