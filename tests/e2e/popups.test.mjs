// Browser test of a popup menu drawn over the menu, and the tap it sends (the wheel picker is
// walked for real by the editor and journey tests). The server's views are passed through with
// a popup added, in the form the session sends it, so the test needs no screen that opens one.
//   node tests/e2e/popups.test.mjs --server PATH_TO_SERVER --out SCREENSHOT_DIR
import assert from 'node:assert/strict';
import path from 'node:path';
import { openPastGreeting, runBrowserTest } from './harness.mjs';

const MENU = {
  kind: 'popupMenu',
  items: [
    { id: 'popup:0', caption: 'Редактировать', icon: 'pm-edit.png' },
    { gap: true },
    { id: 'popup:2', caption: 'Удалить', icon: 'pm-clear.png' },
    { id: 'popup:3', caption: 'Отменить' },
  ],
};

/** Serves the real views with `state.popup` over them, and keeps the popup taps it catches
 *  (the server has no popup open, so they go to it as a request for the view). */
async function overlayPopups(page, state) {
  const overlay = async (route, request) => {
    const response = await route.fetch(request);
    const body = await response.json();
    if (state.popup && body.view) body.view.popup = state.popup;
    await route.fulfill({ response, json: body });
  };
  await page.route('**/api/view', (route) => overlay(route));
  await page.route('**/api/event', async (route) => {
    const event = JSON.parse(route.request().postData() ?? '{}');
    if (!String(event.target ?? '').startsWith('popup:')) return overlay(route);
    state.taps.push(event);
    state.popup = null;
    return overlay(route, {
      url: route.request().url().replace('/api/event', '/api/view'),
      method: 'GET',
    });
  });
}

async function showPopup(page, state, popup) {
  state.popup = popup;
  const activated = page.waitForRequest(
    (r) => r.url().endsWith('/api/event') && r.postData()?.includes('"visible"'),
  );
  await page.reload();
  await activated;
  await page.waitForSelector('.popup-cover');
}

async function checkMenu(page, state, outDir) {
  await showPopup(page, state, MENU);
  const items = await page.$$eval('.sheet > *', (nodes) =>
    nodes.map((n) => (n.classList.contains('sheet-gap') ? '—' : n.textContent)),
  );
  assert.deepEqual(items, ['Редактировать', '—', 'Удалить', 'Отменить'], 'menu items with the gap');
  const blur = await page.$eval('.popup-cover', (n) => getComputedStyle(n).backdropFilter);
  assert.match(blur, /blur/, 'the screen below is blurred');
  await page.screenshot({ path: path.join(outDir, 'popup-menu.png') });
  await page.tap('[data-id="popup:2"]');
  await page.waitForSelector('.popup-cover', { state: 'detached' });
  assert.deepEqual(
    state.taps.pop(),
    { type: 'tap', target: 'popup:2' },
    'a menu item sends its tap alone',
  );
}

async function checkInBrowser(browser, base, outDir) {
  const { context, page, errors } = await openPastGreeting(browser, base, {
    serviceWorkers: 'block',
  });
  const state = { popup: null, taps: [] };
  await overlayPopups(page, state);
  await checkMenu(page, state, outDir);
  assert.deepEqual(errors, [], 'no uncaught errors in the page');
  await context.close();
}

await runBrowserTest('popups', ({ browser, base, outDir }) =>
  checkInBrowser(browser, base, outDir),
);
