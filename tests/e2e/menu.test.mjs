// Browser test of the greeting and the main menu against the real server, in headless Chromium.
import assert from 'node:assert/strict';
import * as e2e from './harness.mjs';

const NOT_BUILT_ROW = 'menu:9';
const SWITCH_ROW = 'menu:51';
const SWITCH = `[data-id="${SWITCH_ROW}"] .switch`;

/** The manifest's icons are served (its shortcuts are the C++ suite's). */
async function checkManifest(base) {
  const manifest = await (await fetch(`${base}/manifest.webmanifest`)).json();
  for (const icon of manifest.icons) {
    const status = (await fetch(new URL(icon.src, base))).status;
    assert.equal(status, 200, `manifest icon ${icon.src}`);
  }
}

/** Opens the app in a new tab; uncaught page errors are collected into `errors`. */
async function openApp(context, base, errors) {
  const page = await context.newPage();
  page.setDefaultTimeout(e2e.STEP_TIMEOUT_MS);
  page.on('pageerror', (error) => errors.push(error.message));
  const listening = waitForPushChannel(page);
  await page.goto(`${base}/`);
  await page.waitForSelector('.row[data-id]');
  await listening;
  return page;
}

/** Resolves once the page's server-sent event stream has been answered. */
function waitForPushChannel(page) {
  return settleLater(
    page.waitForResponse((r) => new URL(r.url()).pathname === '/api/events' && r.status() === 200),
    'GET /api/events was not answered with 200',
  );
}

/** A waiter started ahead of the action it watches: it fails with `message` when awaited,
 *  and a failure is not reported as unhandled if an earlier step fails first. */
function settleLater(waiter, message) {
  const settled = waiter.catch(() => {
    throw new Error(message);
  });
  settled.catch(() => {});
  return settled;
}

function rowsOf(node) {
  if (node.kind === 'row') return [node];
  return (node.rows ?? node.children ?? []).flatMap(rowsOf);
}

/** The rows of the first pregnancy's open card, as the server describes them. */
async function checkMenuRows(page) {
  await e2e.openCard(page);
  await page.waitForSelector(`[data-id="${NOT_BUILT_ROW}"]`);
  const view = await page.evaluate(() =>
    fetch('/api/view')
      .then((r) => r.json())
      .then((b) => b.view),
  );
  const expected = rowsOf(view).map((row) => ({
    id: row.id,
    text: row.caption || row.comment || '',
    enabled: row.enabled,
  }));
  const drawn = await page.$$eval('.row', (rows) =>
    rows.map((row) => ({
      id: row.dataset.id,
      text: row.querySelector('.caption')?.textContent ?? '',
      enabled: !row.classList.contains('disabled') && row.getAttribute('aria-disabled') !== 'true',
    })),
  );
  assert.deepEqual(drawn, expected, 'rows drawn as the server described them');
  assert.equal(await page.textContent('.page-title'), view.title, 'page title from the server');
  assert.equal(await page.title(), view.title, 'document title follows the page');
}

async function checkDisabledTapSendsNothing(page) {
  const sent = [];
  const record = (request) => request.url().endsWith('/api/event') && sent.push(request.postData());
  page.on('request', record);
  await page.tap(`[data-id="${NOT_BUILT_ROW}"]`);
  await e2e.sleep(500);
  page.off('request', record);
  assert.deepEqual(sent, [], `tapping disabled ${NOT_BUILT_ROW} sends no event`);
}

async function waitForSwitch(page, checked, why) {
  const selector = `${SWITCH}[role="switch"][aria-checked="${checked}"]`;
  await page.waitForSelector(selector).catch(() => {
    throw new Error(`${why}: ${SWITCH_ROW} did not become ${checked ? 'checked' : 'unchecked'}`);
  });
}

/** A tap held on its way reaches the server after a later request from the same page: the
 *  tap's answer, made last, is the one that stays on screen, whichever answer arrives first.
 *  Service workers are blocked, so that every request of the page passes the test's route. */
async function checkCrossedAnswers(browser, base) {
  const opened = await e2e.openPastGreeting(browser, base, { serviceWorkers: 'block' });
  const { page } = opened;
  if (!(await page.$('.card.open'))) await e2e.openCard(page);
  let release;
  const held = new Promise((resolve) => (release = resolve));
  const isTap = (request) => request.postDataJSON()?.type === 'tap';
  await page.route('**/api/event', async (route) => {
    if (isTap(route.request())) await held;
    await route.continue();
  });
  const tapSent = page.waitForRequest(isTap);
  await page.tap('[data-id="menu:8"]'); // opens the diary, which changes nothing stored
  await tapSent;
  const visible = page.waitForResponse((r) => r.request().postDataJSON()?.type === 'visible');
  await page.evaluate(() => document.dispatchEvent(new Event('visibilitychange')));
  await visible;
  release();
  await page.waitForSelector('.ring-page .diary').catch(() => {
    throw new Error('the answer made last did not stay on screen');
  });
  await e2e.closeClean(opened);
}

/** The first page of a launch is greeted; closing the greeting shows the menu, and a reload
 *  does not greet again. */
async function checkGreetingOnce(context, base, outDir) {
  const page = await context.newPage();
  page.setDefaultTimeout(e2e.STEP_TIMEOUT_MS);
  await page.goto(`${base}/`);
  await page.waitForSelector('.welcome');
  const caption = await page.textContent('.welcome-caption');
  assert.equal(await page.title(), caption, 'the document title is the greeting caption');
  await e2e.snapBoth(page, outDir, 'welcome');
  await page.tap('.welcome-footer button');
  await page.waitForSelector('.row[data-id]');
  await page.reload();
  await page.waitForSelector('.row[data-id]');
  assert.equal(await page.$('.welcome'), null, 'the greeting does not come again');
  await page.close();
}

async function checkInBrowser(browser, base, outDir) {
  const context = await browser.newContext(e2e.PHONE);
  await checkGreetingOnce(context, base, outDir);
  const errors = [];
  const page = await openApp(context, base, errors);
  await checkMenuRows(page);
  await checkDisabledTapSendsNothing(page);

  await waitForSwitch(page, false, 'fresh data');
  await page.tap(`[data-id="${SWITCH_ROW}"]`);
  await waitForSwitch(page, true, 'after a tap');

  const relistening = waitForPushChannel(page);
  await page.reload();
  await relistening;
  await waitForSwitch(page, true, 'after reload');

  const other = await openApp(context, base, errors);
  await waitForSwitch(other, true, 'second tab');
  const refetched = settleLater(
    page.waitForRequest((r) => new URL(r.url()).pathname === '/api/view'),
    'first tab did not fetch /api/view after a refresh event',
  );
  await other.tap(`[data-id="${SWITCH_ROW}"]`);
  await waitForSwitch(other, false, 'second tab after its tap');
  await refetched;
  await waitForSwitch(page, false, 'first tab after the second tab tapped');

  await page.evaluate(() => window.scrollTo(0, 0)); // the sticky header then sits on top
  await e2e.snap(page, outDir, 'menu', true);
  assert.deepEqual(errors, [], 'no uncaught errors in the page');
  await checkCrossedAnswers(browser, base);
}

await e2e.runBrowserTest('menu', async ({ browser, base, outDir }) => {
  await checkManifest(base);
  await checkInBrowser(browser, base, outDir);
});
