// The first steps of a new user, at phone and at tablet size, each on a new installation:
// create a pregnancy, see its card and state line, swipe to the next page and back to the
// menu, turn the lock on, reload, try a wrong code and unlock. Before all that, a server
// listening beyond loopback without a password is refused.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import * as e2e from './harness.mjs';

const CODE = '2468';
const NAME = 'Мира';

const shot = (page, outDir, device, step) => e2e.snap(page, outDir, `journey-${device}-${step}`);

/** "Новая беременность", its dates and name, saved: the menu shows its card. */
async function createPregnancy(page, outDir, device) {
  await page.tap('[data-id="menu:31"]');
  await page.waitForSelector('.editor');
  await e2e.pickOnWheels(page, 'field:sdat1', ['1', 'мая', '2026']);
  await page.fill('input[data-field="field:name"]', NAME);
  await page.locator('input[data-field="field:name"]').blur();
  await shot(page, outDir, device, 'editor');
  await page.tap('button[data-id="editor:ok"]');
  await page.waitForSelector('.editor', { state: 'detached' });
}

/** The card of the new pregnancy: its name, dates and where the pregnancy stands. */
async function checkCard(page, outDir, device) {
  const card = page.locator('.card', { hasText: NAME });
  await card.waitFor();
  const lines = await card.locator('.card-line').allTextContents();
  assert.equal(lines[0], '01.05.2026 - 05.02.2027', 'the dates line');
  assert.ok(lines[1] && lines[1] !== 'Срок указан неправильно', `a sound state line: ${lines[1]}`);
  // Against the device's width: a phone's page widens to fit what overflows it.
  const over = (await page.evaluate(() => document.body.scrollWidth)) - page.viewportSize().width;
  assert.ok(over <= 0, `nothing wider than the screen (${over}px over)`);
  // The first pregnancy and the new one: one above the other on a phone, side by side on a tablet.
  const tops = (await e2e.boxesOf(page, '.card')).map((box) => Math.round(box.top));
  assert.deepEqual(
    [tops.length, tops[0] === tops[1]],
    [2, device === 'tablet'],
    `two cards, side by side only on a tablet (${tops})`,
  );
  await shot(page, outDir, device, 'card');
  await card.tap();
  await page.waitForSelector('.card.open');
}

async function drag(page, from, to) {
  const y = (await e2e.boxesOf(page, '.ring-page'))[0].top + 300;
  await page.mouse.move(from, y);
  await page.mouse.down();
  await page.mouse.move(to, y, { steps: 6 });
  await page.mouse.up();
}

/** A page of the ring in front, a swipe to the left brings the next one, to the right the menu. */
async function swipeThroughPages(page, outDir, device) {
  await page.tap('[data-id="menu:3"]');
  await page.waitForSelector('.ring-page .page-title');
  const first = await page.textContent('.ring-page .page-title');
  const width = await page.evaluate(() => window.innerWidth);
  await drag(page, width - 20, 20);
  await page.waitForFunction(
    (title) => document.querySelector('.ring-page .page-title')?.textContent !== title,
    first,
  );
  await shot(page, outDir, device, 'next-page');
  await drag(page, 20, width - 20);
  await page.waitForSelector('.ring', { state: 'detached' });
  await page.waitForSelector('.card.open');
}

async function lockAndUnlock(page, outDir, device) {
  await page.tap('[data-id="menu:52"]');
  await e2e.waitForText(page, '.lock-caption', 'Введите новый пароль');
  await e2e.typeCode(page, CODE);
  await e2e.waitForText(page, '.lock-caption', 'Введите пароль еще раз');
  await e2e.typeCode(page, CODE);
  await page.tap('.message button');
  await page.waitForSelector('[data-id="menu:52"] .switch[aria-checked="true"]');
  await page.context().clearCookies(); // a browser the installation has not seen yet
  await page.reload();
  await e2e.waitForText(page, '.lock-caption', 'Введите пароль');
  assert.equal(await page.$('.card'), null, 'nothing of the diary behind the lock');
  await e2e.typeCode(page, '0000');
  await e2e.waitForText(page, '.lock-caption', 'Пароль указан неправильно');
  await shot(page, outDir, device, 'lock');
  await e2e.typeCode(page, CODE);
  await page.locator('.card', { hasText: NAME }).waitFor();
}

/** A listen beyond loopback without a password is refused at start, and says why. */
async function refusedWithoutPassword(executable) {
  const dataDir = fs.mkdtempSync(path.join(os.tmpdir(), 'ladaneya-e2e-open-'));
  try {
    const server = e2e.startServer(executable, dataDir, await e2e.freePort(), { host: '0.0.0.0' });
    assert.equal((await server.exited).code, 2, 'a listen beyond loopback without a password');
    assert.match(server.log, /password/, 'the refusal says why');
  } finally {
    fs.rmSync(dataDir, { recursive: true, force: true });
  }
}

async function journey(browser, base, outDir, device, name) {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base, { device });
  await createPregnancy(page, outDir, name);
  await checkCard(page, outDir, name);
  await swipeThroughPages(page, outDir, name);
  await lockAndUnlock(page, outDir, name);
  await e2e.closeClean({ context, errors });
}

await e2e.runBrowserTest('journey', async ({ browser, base, outDir, executable }) => {
  await refusedWithoutPassword(executable);
  await journey(browser, base, outDir, e2e.PHONE, 'phone');
  await e2e.onNewInstallation(executable, ({ base: tabletBase }) =>
    journey(browser, tabletBase, outDir, e2e.TABLET, 'tablet'),
  );
});
