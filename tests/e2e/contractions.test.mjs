// Browser test of the contraction counter: opened by its shortcut, three contractions timed on
// the server's test clock, the charts and the trend message drawn, a row swiped away by touch
// and one more timed at once, and one timed across a locked screen.
import assert from 'node:assert/strict';
import * as e2e from './harness.mjs';

const TOO_FEW =
  'Данных мало. Нужно минимум 4 схватки (3 интервала между ними), чтобы начать определение тенденции.';
const NO_DATA =
  'Пока нет данных для отображения графиков. Нажмите на кнопку СТАРТ при начале схватки.';
const ALARM_START = 'Внимание! Частота схваток увеличивается. И как минимум 3 из них';
const START = '[data-id="contractions:start"]';
const STOP = '[data-id="contractions:stop"]';

/** Times one contraction of `length` seconds after a pause of `pause` seconds. */
async function timeOne(page, pause, length) {
  await e2e.advanceClock(page, pause);
  // The last contraction's time fades out within two ticks and the button moves up with it:
  // a tap before that redraw would land beside the button.
  await page.waitForSelector('.timer[hidden]', { state: 'attached' });
  await page.tap(START);
  await page.waitForSelector(STOP);
  await e2e.advanceClock(page, length);
  // The running time follows the server's clock at the next tick.
  const shown = `${String(Math.floor(length / 60)).padStart(2, '0')}:${String(length % 60).padStart(2, '0')}`;
  await e2e.waitForText(page, '.timer', shown);
  await page.tap(STOP);
  await page.waitForSelector(START);
}

/** A finger drawn sideways across the element by `dx` through the browser's touch input;
 *  returns how the front page was moved meanwhile ("" if it stayed). */
async function swipe(page, locator, dx) {
  const box = await locator.boundingBox();
  const [x, y] = [box.x + box.width - 20, box.y + box.height / 2];
  const cdp = await page.context().newCDPSession(page);
  const touch = (type, at) =>
    cdp.send('Input.dispatchTouchEvent', {
      type,
      touchPoints: at === undefined ? [] : [{ x: at, y }],
    });
  const pageMove = () => page.evaluate(() => document.querySelector('.ring-page').style.transform);
  await touch('touchStart', x);
  let moved = '';
  for (let step = 1; step <= 8; step += 1) {
    await touch('touchMove', x + (dx * step) / 8);
    moved ||= await pageMove();
  }
  await touch('touchEnd');
  await cdp.detach();
  return moved;
}

/** What the phone's screen lock does to the page: it is hidden, then shown again. */
async function setVisibility(page, state) {
  await page.evaluate((visibility) => {
    Object.defineProperty(document, 'visibilityState', { value: visibility, configurable: true });
    document.dispatchEvent(new Event('visibilitychange'));
  }, state);
}

/** A contraction timed across a locked screen keeps running and is stored whole. */
async function timeAcrossTheLock(page) {
  await page.tap(START);
  await page.waitForSelector(STOP);
  await e2e.advanceClock(page, 25);
  await setVisibility(page, 'hidden');
  await e2e.advanceClock(page, 35);
  await setVisibility(page, 'visible');
  await e2e.waitForText(page, '.timer', '01:00');
  await page.tap(STOP);
  await page.waitForSelector(START);
  await page.waitForFunction(() =>
    [...document.querySelectorAll('.ring-page .list .row .caption')].some(
      (c) => c.textContent === '01:00',
    ),
  );
}

async function checkCounter({ browser, base, outDir }) {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base);

  await page.goto(`${base}/?shortcut=SCHVATKI`);
  await page.waitForSelector('[data-info="trend"]');
  await e2e.waitForText(page, '[data-info="trend"]', NO_DATA);
  const charts = (await e2e.boxesOf(page, '.ring-page .chart svg')).map((box) => box.width > 0);
  assert.deepEqual(charts, [true, true], 'both charts are drawn');

  await timeOne(page, 0, 40);
  await timeOne(page, 300, 45);
  await timeOne(page, 290, 50);
  await e2e.waitForText(page, '[data-info="trend"]', TOO_FEW);
  assert.equal(await page.locator('.ring-page .list .row').count(), 3, 'three rows in the list');
  await e2e.snap(page, outDir, 'contractions-three', true);

  await timeOne(page, 280, 55);
  await e2e.waitForText(page, '[data-info="trend"]', ALARM_START, 'starts');
  await e2e.snap(page, outDir, 'contractions-trend', true);

  // A swipe to the left offers the delete button; tapping it removes the row. The running view
  // has faded out first, so no tick redraws the list under the gesture.
  await page.waitForSelector('.timer[hidden]', { state: 'attached' });
  // The swipe belongs to the row: the page under it does not follow the finger.
  const row = page.locator('.ring-page .list .row').last();
  assert.equal(await swipe(page, row, -200), '', 'the page stays while a row is swiped');
  // The finger's next taps count: the swipe left no fling of the browser's to swallow them.
  await row.locator('button.delete').tap();
  await page.waitForFunction(() => document.querySelectorAll('.ring-page .list .row').length === 3);
  await e2e.waitForText(page, '[data-info="trend"]', TOO_FEW);
  await timeOne(page, 300, 40);
  assert.equal(await page.locator('.ring-page .list .row').count(), 4, 'timed after a delete');
  await e2e.closeClean({ context, errors });

  // A second phone times one across its locked screen.
  const second = await e2e.openPastGreeting(browser, base);
  await second.page.goto(`${base}/?shortcut=SCHVATKI`);
  await second.page.waitForSelector(START);
  await timeAcrossTheLock(second.page);
  await e2e.closeClean(second);
}

await e2e.runBrowserTest('contractions', checkCounter, e2e.FAKE_CLOCK);
