// Browser test of the field editor: a pregnancy's settings with a portrait chosen from the
// phone, kept over a reload, its removal asked first; the scale ruler, drawn from a view in the
// form the server sends it, sending the value it comes to rest on; and a date chosen on the
// date wheel by a browser set to English.
//   node tests/e2e/editor.test.mjs --server PATH_TO_SERVER --out SCREENSHOT_DIR
import assert from 'node:assert/strict';
import path from 'node:path';
import { TABLET, openPastGreeting, runBrowserTest, until } from './harness.mjs';

// Row kinds of the field editor, as the server and the renderer name them.
const ROW_KIND = { text: 1002, scale: 1015 };
const SCALE_EDITOR = {
  kind: 'editor',
  caption: 'Температура',
  ok: { id: 'editor:ok', caption: 'Готово' },
  cancel: { id: 'editor:cancel', caption: 'Отменить' },
  rows: [
    { tp: ROW_KIND.text, caption: 'Укажите температуру' },
    {
      tp: ROW_KIND.scale,
      id: 'field:temp',
      field: 'temp',
      caption: 'Температура',
      source: '36.6',
      scalemin: '30',
      scalemax: '45',
      scaletype: 2,
    },
  ],
};

/** The settings row of the open card. */
async function openSettings(page) {
  await page.tap('[data-id="menu:22"]');
  await page.waitForSelector('.editor');
  assert.equal(await page.textContent('.editor .page-title'), 'Настройки');
}

/** A photo the size a phone's camera takes (12 megapixels), with grain, as a JPEG file. */
async function cameraPhoto(page) {
  const base64 = await page.evaluate(async () => {
    const [width, height] = [4000, 3000];
    const canvas = new OffscreenCanvas(width, height);
    const g = canvas.getContext('2d');
    const gradient = g.createLinearGradient(0, 0, width, height);
    gradient.addColorStop(0, '#c86');
    gradient.addColorStop(1, '#468');
    g.fillStyle = gradient;
    g.fillRect(0, 0, width, height);
    const pixels = g.getImageData(0, 0, width, height);
    for (let i = 0; i < pixels.data.length; i += 4) {
      const grain = (Math.random() - 0.5) * 24;
      for (let c = 0; c < 3; c += 1) pixels.data[i + c] += grain;
    }
    g.putImageData(pixels, 0, 0);
    const blob = await canvas.convertToBlob({ type: 'image/jpeg', quality: 0.95 });
    const bytes = new Uint8Array(await blob.arrayBuffer());
    let text = '';
    for (let i = 0; i < bytes.length; i += 0x8000)
      text += String.fromCharCode(...bytes.subarray(i, i + 0x8000));
    return btoa(text);
  });
  return { name: 'camera.jpg', mimeType: 'image/jpeg', buffer: Buffer.from(base64, 'base64') };
}

/** Holds the server's answers to changes of one field until released; records every change sent. */
async function holdAnswersTo(page, field) {
  const sent = [];
  let release;
  const released = new Promise((resolve) => (release = resolve));
  await page.route('**/api/event', async (route) => {
    const event = JSON.parse(route.request().postData() ?? '{}');
    if (event.type === 'change') sent.push(event);
    const response = await route.fetch();
    if (event.target === field) await released;
    await route.fulfill({ response });
  });
  return { sent, release };
}

/** Lets a held answer through and waits until it has redrawn the input of a field. */
async function redrawWhileIn(page, held, field) {
  const selector = `input[data-field="${field}"]`;
  await page.evaluate((s) => (document.querySelector(s).dataset.beforeRedraw = '1'), selector);
  held.release();
  await page.waitForFunction(
    (s) => document.querySelector(s)?.dataset.beforeRedraw === undefined,
    selector,
  );
  // Query and check in one step: a later redraw may replace the input between two.
  assert.ok(
    await page.evaluate((s) => document.querySelector(s) === document.activeElement, selector),
    `${field} keeps the focus`,
  );
}

/**
 * The answer to an earlier change redraws the editor while the user is in another field: what
 * she types after the redraw, and what she typed before it, both reach the server.
 */
async function typeThroughRedraws(page) {
  const sentValue = (held, field) =>
    held.sent.filter((e) => e.target === field).map((e) => e.value);
  let held = await holdAnswersTo(page, 'field:rost');
  await page.fill('input[data-field="field:rost"]', '170');
  await page.evaluate(() => document.querySelector('input[data-field="field:ves"]').select());
  await redrawWhileIn(page, held, 'field:ves');
  await page.keyboard.insertText('61');
  await page.keyboard.press('Tab');
  await page.waitForFunction(
    () => !document.querySelector('.editor-index')?.textContent?.includes('не определен'),
  );
  assert.deepEqual(sentValue(held, 'field:ves'), ['61'], 'typed after the redraw');
  await page.unrouteAll({ behavior: 'wait' });

  held = await holdAnswersTo(page, 'field:rost');
  await page.fill('input[data-field="field:rost"]', '165');
  await page.fill('input[data-field="field:ves"]', '58');
  await redrawWhileIn(page, held, 'field:ves');
  assert.equal(
    await page.inputValue('input[data-field="field:ves"]'),
    '58',
    'typed before the redraw',
  );
  await page.keyboard.press('Tab');
  await until('the weight sent', () => sentValue(held, 'field:ves').length > 0);
  await page.waitForFunction(() => !document.querySelector('.busy'));
  assert.deepEqual(sentValue(held, 'field:ves'), ['58'], 'sent once');
  await page.unrouteAll({ behavior: 'wait' });
}

/** A camera photo shows as a preview, survives a reload of the page, and is saved. */
async function choosePortrait(page, outDir) {
  const before = await page.getAttribute('.editor-photo-picture', 'src');
  const photo = await cameraPhoto(page);
  assert.ok(photo.buffer.length > 1024 * 1024, `a photo of ${photo.buffer.length} bytes`);
  await page.setInputFiles('.editor-photo-input', photo);
  await page.waitForFunction(
    (src) => document.querySelector('.editor-photo-picture')?.getAttribute('src') !== src,
    before,
  );
  assert.match(
    await page.getAttribute('.editor-photo-picture', 'src'),
    /^data:image\/jpeg;base64,/,
    'a preview',
  );
  await page.fill('input[data-field="field:rost"]', '168');
  await page.locator('input[data-field="field:rost"]').blur();
  await page.fill('input[data-field="field:ves"]', '60');
  await page.locator('input[data-field="field:ves"]').blur();
  await page
    .waitForFunction(
      () => !document.querySelector('.editor-index')?.textContent?.includes('не определен'),
    )
    .catch(async () => {
      const rost = await page.inputValue('input[data-field="field:rost"]');
      const ves = await page.inputValue('input[data-field="field:ves"]');
      throw new Error(
        `no body index for ${rost} cm, ${ves} kg: ${await page.textContent('.editor-index')}`,
      );
    });
  await page.reload();
  await page.waitForSelector('.editor');
  assert.equal(
    await page.inputValue('input[data-field="field:rost"]'),
    '168',
    'a sent field survives a reload',
  );
  assert.match(
    await page.getAttribute('.editor-photo-picture', 'src'),
    /^data:image\/jpeg;base64,/,
    'and the portrait',
  );
  await page.screenshot({ path: path.join(outDir, 'editor-settings.png'), fullPage: true });
  await page.tap('button[data-id="editor:ok"]');
  await page.waitForSelector('.editor', { state: 'detached' });
}

/** The removal button asks first: "Нет" keeps the pregnancy, "Да" removes it. */
async function removeAfterQuestion(page, outDir) {
  await page.tap('button[data-id="field:remove"]');
  await page.waitForSelector('.popup-cover');
  assert.equal(
    await page.textContent('.popup-cover .message-text'),
    'Вы действительно хотите удалить эту учетную запись?',
  );
  await page.screenshot({ path: path.join(outDir, 'editor-removal.png') });
  await page.tap('.popup-cover button[data-id="popup:0"]');
  await page.waitForSelector('.popup-cover', { state: 'detached' });
  assert.ok(await page.$('.editor'), 'the settings stay after "Нет"');
  await page.tap('button[data-id="field:remove"]');
  await page.tap('.popup-cover button[data-id="popup:1"]');
  await page.waitForSelector('.editor', { state: 'detached' });
  await page.waitForFunction(
    () => document.querySelector('.card-name')?.textContent === 'Вы не беременны',
  );
}

/** The ruler starts at the row's value, and moved by hand sends the value under the needle. */
async function slideScale(page, outDir) {
  const sent = [];
  // Every answer, to a view request or to an event, shows the editor; changes are kept.
  const asEditor = async (route) => {
    const response = await route.fetch();
    const body = await response.json().catch(() => ({}));
    await route.fulfill({
      response,
      json: { ...body, view: { ...SCALE_EDITOR, theme: body.view?.theme } },
    });
  };
  await page.route('**/api/view', asEditor);
  await page.route('**/api/event', async (route) => {
    const event = JSON.parse(route.request().postData() ?? '{}');
    if (event.type === 'change') sent.push(event);
    await asEditor(route);
  });
  // The ruler is moved once the page's activation has been answered and drawn.
  const activated = page.waitForResponse(
    (r) => r.url().endsWith('/api/event') && r.request().postData()?.includes('"visible"'),
  );
  await page.reload();
  await activated;
  await page.waitForSelector('.scale');
  await page.waitForFunction(() => document.querySelector('.scale-value')?.textContent === '36.6');
  // Ten steps of 0.1 to the right.
  await page.evaluate(() => (document.querySelector('.scale-ruler').scrollLeft += 80));
  await page.waitForFunction(() => document.querySelector('.scale-value')?.textContent === '37.6');
  await page.screenshot({ path: path.join(outDir, 'editor-scale.png') });
  await until('the value at rest sent', () => sent.length > 0);
  assert.deepEqual(
    sent,
    [{ type: 'change', target: 'field:temp', value: '37.6' }],
    'only the value at rest',
  );
  await page.unrouteAll({ behavior: 'ignoreErrors' });
}

/** On a phone set to English a date still reads "dd.MM.yyyy" and is chosen on the diary's own
 *  date wheel: day, month by name, year. */
async function pickDateOnTheWheel(browser, base, outDir, device, name) {
  const { context, page, errors } = await openPastGreeting(browser, base, {
    device: { ...device, locale: 'en-US' },
  });
  await page.tap('.card[data-id]');
  await openSettings(page);
  const row = 'button[data-id="field:sdat1"]';
  const before = await page.textContent(`${row} .editor-picker-value`);
  assert.match(before, /^\d\d\.\d\d\.\d{4}$/, "the date in the diary's own form");
  await page.tap(row);
  await page.waitForSelector('.popup-cover .wheel');
  const months = await page.$$eval('.popup-cover .wheel:nth-child(2) .wheel-row', (rows) =>
    rows.map((r) => r.textContent),
  );
  assert.equal(months[4], 'мая', 'months by name, as a date is written');
  await page.tap('.popup-cover .wheel:first-child .wheel-row:nth-child(15)');
  await page.waitForFunction(() => {
    const wheel = document.querySelector('.popup-cover .wheel');
    const row = wheel.querySelector('.wheel-row');
    return Math.round(wheel.scrollTop / row.offsetHeight) === 14;
  });
  await page.screenshot({ path: path.join(outDir, `editor-date-wheel-${name}.png`) });
  await page.tap('.popup-cover button[data-id="popup:1"]');
  await page.waitForSelector('.popup-cover', { state: 'detached' });
  await page.waitForFunction(
    (r) => document.querySelector(`${r} .editor-picker-value`)?.textContent.startsWith('15.'),
    row,
  );
  assert.equal(
    (await page.textContent(`${row} .editor-picker-value`)).slice(2),
    before.slice(2),
    'month and year kept',
  );
  await page.tap('button[data-id="editor:cancel"]');
  assert.deepEqual(errors, [], 'no uncaught errors in the page');
  await context.close();
}

await runBrowserTest('editor', async ({ browser, base, outDir }) => {
  await pickDateOnTheWheel(browser, base, outDir, TABLET, 'tablet');
  const { context, page, errors } = await openPastGreeting(browser, base, {
    serviceWorkers: 'block',
  });
  await page.tap('.card[data-id]');
  await openSettings(page);
  await typeThroughRedraws(page);
  await choosePortrait(page, outDir);
  await openSettings(page);
  assert.match(
    await page.getAttribute('.editor-photo-picture', 'src'),
    /^data:image\/jpeg;base64,/,
    'the saved portrait',
  );
  await removeAfterQuestion(page, outDir);
  await slideScale(page, outDir);
  assert.deepEqual(errors, [], 'no uncaught errors in the page');
  await context.close();
});
