// Browser test of the field editor: a pregnancy's settings typed through redraws, with a portrait
// chosen from the phone, kept over a reload, its removal asked first; the scale ruler of a
// temperature sending the value it comes to rest on; and a date chosen on the date wheel by a
// browser set to English.
import assert from 'node:assert/strict';
import * as e2e from './harness.mjs';

const ROST = 'input[data-field="field:rost"]';
const VES = 'input[data-field="field:ves"]';
/** Whether the settings show a portrait as a JPEG of their own. */
const portraitShown = async (page) =>
  /^data:image\/jpeg;base64,/.test(await page.getAttribute('.editor-photo-picture', 'src'));

/** The settings row of the open card. */
async function openSettings(page) {
  await page.tap('[data-id="menu:22"]');
  await page.waitForSelector('.editor');
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

/** Waits until the editor shows a body index, which it computes from a height and a weight. */
const indexShown = (page) =>
  page.waitForFunction(
    () => !document.querySelector('.editor-index')?.textContent?.includes('не определен'),
  );

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
  const focused = (s) => document.querySelector(s) === document.activeElement;
  assert.ok(await page.evaluate(focused, selector), `${field} keeps the focus`);
}

/**
 * The answer to an earlier change redraws the editor while the user is in another field: what
 * she types after the redraw, and what she typed before it, both reach the server.
 */
async function typeThroughRedraws(page) {
  const sentValue = (held, field) =>
    held.sent.filter((e) => e.target === field).map((e) => e.value);
  let held = await holdAnswersTo(page, 'field:rost');
  await page.fill(ROST, '170');
  await page.$eval(VES, (input) => input.select());
  await redrawWhileIn(page, held, 'field:ves');
  await page.keyboard.insertText('61');
  await page.keyboard.press('Tab');
  await indexShown(page);
  assert.deepEqual(sentValue(held, 'field:ves'), ['61'], 'typed after the redraw');
  await page.unrouteAll({ behavior: 'wait' });

  held = await holdAnswersTo(page, 'field:rost');
  await page.fill(ROST, '165');
  await page.fill(VES, '58');
  await redrawWhileIn(page, held, 'field:ves');
  assert.equal(await page.inputValue(VES), '58', 'typed before the redraw');
  await page.keyboard.press('Tab');
  await e2e.until('the weight sent', () => sentValue(held, 'field:ves').length > 0);
  await page.waitForFunction(() => !document.querySelector('.busy'));
  assert.deepEqual(sentValue(held, 'field:ves'), ['58'], 'sent once');
  await page.unrouteAll({ behavior: 'wait' });
}

/** A camera photo shows as a preview, survives a reload of the page, and is saved. */
async function choosePortrait(page, outDir) {
  const before = await page.getAttribute('.editor-photo-picture', 'src');
  // A photo the size a phone's camera takes (12 megapixels).
  await page.setInputFiles('.editor-photo-input', await e2e.drawnJpeg(page, 4000, 3000));
  await page.waitForFunction(
    (src) => document.querySelector('.editor-photo-picture')?.getAttribute('src') !== src,
    before,
  );
  await page.fill(ROST, '168');
  await page.locator(ROST).blur();
  await e2e.settled(page);
  await page.reload();
  await page.waitForSelector('.editor');
  assert.equal(await page.inputValue(ROST), '168', 'a sent field survives a reload');
  assert.ok(await portraitShown(page), 'and the portrait');
  await e2e.snap(page, outDir, 'editor-settings', true);
  await page.tap('button[data-id="editor:ok"]');
  await page.waitForSelector('.editor', { state: 'detached' });
}

/** The removal button asks first: "Нет" keeps the pregnancy, "Да" removes it. */
async function removeAfterQuestion(page, outDir) {
  await page.tap('button[data-id="field:remove"]');
  await page.waitForSelector('.popup-cover');
  await e2e.snap(page, outDir, 'editor-removal');
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

/** The ruler of the day's temperature starts at the form's value, and moved by hand sends the
 *  value under the needle once it rests; the form is then cancelled. */
async function slideScale(page, outDir) {
  const sent = [];
  page.on('request', (r) => {
    const event = r.url().endsWith('/api/event') && JSON.parse(r.postData() ?? '{}');
    if (event.type === 'change') sent.push(event);
  });
  await page.tap('[data-id="menu:8"]');
  await page.tap('.ring-page .diary-add');
  await page.tap(e2e.dayField('ne-temp128.png'));
  await e2e.waitForText(page, '.scale-value', '36.6');
  // Ten steps of 0.1 to the right.
  await page.evaluate(() => (document.querySelector('.scale-ruler').scrollLeft += 80));
  await e2e.waitForText(page, '.scale-value', '37.6');
  await e2e.snap(page, outDir, 'editor-scale');
  await e2e.until('the value at rest sent', () => sent.length > 0);
  const atRest = { type: 'change', target: 'field:temp', value: '37.6' };
  assert.deepEqual(sent, [atRest], 'only the value at rest');
  await page.tap('.editor-cancel');
  await page.tap('.day-editor .editor-ok');
  await e2e.toMenu(page);
}

/** On a tablet set to English a date still reads "dd.MM.yyyy" and is chosen on the diary's own
 *  wheels, which open on the date the field holds: a day chosen, the month and year stay. */
async function pickDateInEnglish(browser, base, outDir) {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base, {
    device: { ...e2e.TABLET, locale: 'en-US' },
  });
  await page.tap('.card[data-id]');
  await openSettings(page);
  const value = 'button[data-id="field:sdat1"] .editor-picker-value';
  const before = await page.textContent(value);
  assert.match(before, /^\d\d\.\d\d\.\d{4}$/, "the date in the diary's own form");
  await e2e.pickOnWheels(page, 'field:sdat1', ['15']);
  await e2e.waitForText(page, value, `15${before.slice(2)}`);
  await e2e.snap(page, outDir, 'editor-settings-tablet', true);
  await page.tap('button[data-id="editor:cancel"]');
  await e2e.closeClean({ context, errors });
}

await e2e.runBrowserTest('editor', async ({ browser, base, outDir }) => {
  await pickDateInEnglish(browser, base, outDir);
  const { context, page, errors } = await e2e.openPastGreeting(browser, base, {
    serviceWorkers: 'block',
  });
  await page.tap('.card[data-id]');
  await openSettings(page);
  await typeThroughRedraws(page);
  await choosePortrait(page, outDir);
  await slideScale(page, outDir);
  await openSettings(page);
  assert.ok(await portraitShown(page), 'the saved portrait');
  await removeAfterQuestion(page, outDir);
  await e2e.closeClean({ context, errors });
});
