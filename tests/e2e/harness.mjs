// What the browser tests share: starting and stopping the server, and the browser's settings.
// Each test runs as: node tests/e2e/NAME.test.mjs --server PATH_TO_SERVER --out OUT_DIR
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import fs from 'node:fs';
import net from 'node:net';
import os from 'node:os';
import path from 'node:path';
import { parseArgs } from 'node:util';
import { launchChromium } from '../../web/tools/chromium.mjs';

export const START_TIMEOUT_MS = 20000;
export const STOP_TIMEOUT_MS = 10000;
// Generous: full-page screenshots drawn without a GPU take seconds on a busy machine.
export const STEP_TIMEOUT_MS = 20000;

/** A running server process with its output kept for failure reports. */
export function startServer(
  executable,
  dataDir,
  port,
  { lang = 'ru', extraArgs = [], env = process.env, host = '127.0.0.1' } = {},
) {
  const args = ['serve', '--data', dataDir, '--listen', `${host}:${port}`, '--lang', lang];
  const child = spawn(executable, [...args, ...extraArgs], { stdio: 'pipe', env });
  const server = { child, log: '', exit: null };
  const keep = (chunk) => (server.log = (server.log + chunk).slice(-8000));
  child.stdout.on('data', keep);
  child.stderr.on('data', keep);
  server.exited = new Promise((resolve) => {
    child.on('error', (error) => resolve((server.exit = { error })));
    child.on('exit', (code, signal) => resolve((server.exit = { code, signal })));
  });
  return server;
}

export async function freePort() {
  const probe = net.createServer().listen(0, '127.0.0.1');
  await once(probe, 'listening');
  const { port } = probe.address();
  await new Promise((closed) => probe.close(closed));
  return port;
}

export const sleep = (ms) => new Promise((resolve) => setTimeout(resolve, ms));

// Probes with the manifest: the first view of a launch belongs to the browser, which is greeted.
export async function waitUntilServing(server, base) {
  const deadline = Date.now() + START_TIMEOUT_MS;
  while (Date.now() < deadline) {
    const { error, code, signal } = server.exit ?? {};
    if (error) throw new Error(`server failed to start: ${error.message}`);
    if (server.exit) throw new Error(`server exited (code ${code}, signal ${signal}) early`);
    const answer = await fetch(`${base}/manifest.webmanifest`).catch(() => null);
    if (answer?.status === 200) return;
    await sleep(100);
  }
  throw new Error(`the server did not answer within ${START_TIMEOUT_MS / 1000} s`);
}

/** The server's options for a test that moves its clock on (see advanceClock). */
export const FAKE_CLOCK = {
  extraArgs: ['--fake-clock'],
  env: { ...process.env, LADANEYA_TEST_MODE: '1' },
};

const TOUCH = { isMobile: true, hasTouch: true, deviceScaleFactor: 2 };
export const PHONE = { ...TOUCH, viewport: { width: 390, height: 844 } };
export const TABLET = { ...TOUCH, viewport: { width: 820, height: 1180 } };

export async function stopServer(server) {
  server.child.kill('SIGTERM');
  const exit = await Promise.race([server.exited, sleep(STOP_TIMEOUT_MS).then(() => null)]);
  if (!exit) throw new Error(`server still running ${STOP_TIMEOUT_MS / 1000} s after SIGTERM`);
  assert.deepEqual(exit, { code: 0, signal: null }, 'server exit after SIGTERM');
}

/** Runs `run({ base, server, dataDir })` against a server of its own (started with the `options`
 *  of startServer) on a fresh data folder and a free port, stopped cleanly afterwards unless `run`
 *  stopped it, the folder removed. A failure carries the server's last output as `serverLog`. */
export async function onNewInstallation(executable, run, { name = 'second', ...options } = {}) {
  const dataDir = fs.mkdtempSync(path.join(os.tmpdir(), `ladaneya-e2e-${name}-`));
  const port = await freePort();
  const server = startServer(executable, dataDir, port, options);
  try {
    const base = `http://127.0.0.1:${port}`;
    await waitUntilServing(server, base);
    await run({ base, server, dataDir });
    if (!server.exit) await stopServer(server);
  } catch (error) {
    if (error instanceof Error) error.serverLog ??= server.log;
    throw error;
  } finally {
    if (!server.exit) server.child.kill('SIGKILL');
    fs.rmSync(dataDir, { recursive: true, force: true });
  }
}

/** A page at the device's size (a phone unless told) with the greeting closed, if the launch
 *  brought one, and the page errors it collects; `prepare(page)` runs before the first load.
 *  A test that intercepts the page's requests blocks the service worker (`serviceWorkers:
 *  'block'`): requests that the worker forwards pass the interception by, once it has taken
 *  the page over, and when that happens depends on the machine's speed. */
export async function openPastGreeting(
  browser,
  base,
  { device = PHONE, prepare = async () => {}, serviceWorkers = 'allow' } = {},
) {
  const context = await browser.newContext({ ...device, serviceWorkers });
  const page = await context.newPage();
  page.setDefaultTimeout(STEP_TIMEOUT_MS);
  const errors = [];
  page.on('pageerror', (error) => errors.push(error.message));
  await prepare(page);
  await page.goto(`${base}/`);
  await page.waitForSelector('.welcome, .row[data-id]');
  if (await page.$('.welcome')) await page.tap('.welcome-footer button');
  await page.waitForSelector('.row[data-id]');
  return { context, page, errors };
}

/** Fails on an uncaught error the page met, and closes its browser context. */
export async function closeClean({ context, errors }) {
  assert.deepEqual(errors, [], 'no uncaught errors in the page');
  await context.close();
}

/** A screenshot as OUT/<name>.png: what the screen shows, or the whole page. */
export const snap = (page, outDir, name, fullPage = false) =>
  page.screenshot({ path: path.join(outDir, `${name}.png`), fullPage });

/** The whole page as OUT/<name>.png at the phone's size, then at the tablet's as <name>-tablet. */
export async function snapBoth(page, outDir, name) {
  await snap(page, outDir, name, true);
  await page.setViewportSize(TABLET.viewport);
  await snap(page, outDir, `${name}-tablet`, true);
  await page.setViewportSize(PHONE.viewport);
}

/** A JPEG file drawn by the page, `width` by `height`: a warm tone with grain, which weighs
 *  what a camera's photo of that size does. */
export async function drawnJpeg(page, width, height) {
  const url = await page.evaluate(
    ([w, h]) => {
      const canvas = Object.assign(document.createElement('canvas'), { width: w, height: h });
      const pixels = new ImageData(w, h);
      for (let i = 0; i < pixels.data.length; i += 1)
        pixels.data[i] = i % 4 === 3 ? 255 : 200 - (i % 4) * 50 + Math.random() * 24;
      canvas.getContext('2d').putImageData(pixels, 0, 0);
      return canvas.toDataURL('image/jpeg', 0.95);
    },
    [width, height],
  );
  const buffer = Buffer.from(url.split(',')[1], 'base64');
  return { name: 'drawn.jpg', mimeType: 'image/jpeg', buffer };
}

/** Moves the server's test clock (a server started with --fake-clock) on by some seconds. */
export async function advanceClock(page, seconds) {
  const clock = new URL('/api/test/clock', page.url()).href;
  const response = await page.request.post(clock, { data: { advance: seconds } });
  assert.equal(response.status(), 200, 'the test clock moves');
}

/** Opens the picker of an editor row and turns its first wheels to the rows with the texts. */
export async function pickOnWheels(page, target, texts) {
  await page.tap(`button[data-id="${target}"]`);
  await page.waitForSelector('.popup-cover .wheel');
  // The wheels scroll to their old rows in the next frame: turn them after that.
  await page.evaluate(
    () => new Promise((done) => requestAnimationFrame(() => requestAnimationFrame(done))),
  );
  await page.evaluate((wanted) => {
    document.querySelectorAll('.popup-cover .wheel').forEach((wheel, i) => {
      if (wanted[i] === undefined) return; // left on the row it opened on
      const rows = [...wheel.querySelectorAll('.wheel-row')];
      const at = rows.findIndex((row) => row.textContent === wanted[i]);
      if (at < 0) throw new Error(`no row "${wanted[i]}" on wheel ${i}`);
      wheel.scrollTop = at * rows[0].offsetHeight;
    });
  }, texts);
  await page.tap('.popup-cover button[data-id="popup:1"]');
  await page.waitForSelector('.popup-cover', { state: 'detached' });
}

/** The month of a date as the date wheel names it ("мая"). */
const monthOf = (date) =>
  new Intl.DateTimeFormat('ru', { day: 'numeric', month: 'long' })
    .formatToParts(date)
    .find((part) => part.type === 'month').value;

/**
 * "Новая беременность" named `name`, with its first day `daysAgo` days before today (the dialog's
 * own date when 0), saved and opened under its card.
 */
export async function createPregnancy(page, { name, daysAgo = 0 }) {
  await page.tap('[data-id="menu:31"]');
  await page.waitForSelector('.editor');
  if (daysAgo > 0) {
    const first = new Date(Date.now() - daysAgo * 86400000);
    const wheels = [first.getDate(), monthOf(first), first.getFullYear()].map(String);
    await pickOnWheels(page, 'field:sdat1', wheels);
  }
  await page.fill('input[data-field="field:name"]', name);
  await page.locator('input[data-field="field:name"]').blur();
  await page.tap('button[data-id="editor:ok"]');
  await page.waitForSelector('.editor', { state: 'detached' });
  await openCard(page, name);
}

/** The card of the pregnancy with that name (the first card unless named), opened. */
export async function openCard(page, name) {
  const card = page.locator('.card[data-id]', name && { hasText: name });
  await card.first().tap();
  await page.waitForSelector('.card.open');
}

/** Slides the page in front aside, back to the menu. */
export async function toMenu(page) {
  await page.tap('.ring-page .to-menu');
  await page.waitForSelector('.ring', { state: 'detached' });
}

/**
 * Where the elements matching a selector lie, read in one step: a redraw between finding them
 * and measuring them would measure elements no longer on the page.
 */
export function boxesOf(page, selector) {
  return page.evaluate(
    (s) =>
      [...document.querySelectorAll(s)]
        .map((e) => e.getBoundingClientRect())
        .map(({ left, top, width, height }) => ({ left, top, width, height })),
    selector,
  );
}

/** Waits until `test()` (on this side, may be async) holds; fails naming `what` after a step's time. */
export async function until(what, test) {
  const end = Date.now() + STEP_TIMEOUT_MS;
  while (!(await test())) {
    if (Date.now() > end) throw new Error(`timed out waiting for ${what}`);
    await sleep(50);
  }
}

/** The field row of the day editor with this icon. */
export const dayField = (icon) => `.day-field:has(img[src$="/${icon}"])`;

/** Waits until every event the page sent has its answer drawn. */
export async function settled(page) {
  await page.waitForFunction(() => !document.getElementById('app')?.classList.contains('busy'));
}

/** Types a code on the lock's pad, one key at a time. */
export async function typeCode(page, code) {
  for (const digit of code) await page.tap(`button[data-id="lock:${digit}"]`);
}

/** Waits until the element's text is `text`, or with `how` 'starts' or 'has' starts with it or
 *  holds it; a timeout says what it showed instead. */
export async function waitForText(page, selector, text, how = 'is') {
  const holds = ([s, t, h]) => {
    const shown = document.querySelector(s)?.textContent ?? '';
    return h === 'starts' ? shown.startsWith(t) : h === 'has' ? shown.includes(t) : shown === t;
  };
  await page.waitForFunction(holds, [selector, text, how]).catch(async () => {
    const shown = await page.textContent(selector, { timeout: 1000 }).catch(() => null);
    throw new Error(`${selector} shows "${shown}", not (${how}) "${text}"`);
  });
}

/** Runs one test file (`--server PATH --out DIR`): `check({ browser, base, outDir, executable,
 *  server, dataDir })` on a new installation with the `options` of onNewInstallation. Reports
 *  "<name>: 1 passed, 0 failed", or the failure with the server's last output. */
export async function runBrowserTest(name, check, options = {}) {
  const { values } = parseArgs({
    options: { server: { type: 'string' }, out: { type: 'string' } },
  });
  fs.mkdirSync(values.out, { recursive: true });
  const executable = path.resolve(values.server);
  let browser = null;
  try {
    browser = await launchChromium();
    await onNewInstallation(
      executable,
      ({ base, server, dataDir }) =>
        check({ browser, base, outDir: values.out, executable, server, dataDir }),
      { ...options, name },
    );
    console.log(`${name}: 1 passed, 0 failed`);
  } catch (error) {
    console.error(`${name}: FAILED: ${error.stack}`);
    if (error?.serverLog) console.error(`--- server output (last part) ---\n${error.serverLog}`);
    console.log(`${name}: 0 passed, 1 failed`);
    process.exitCode = 1;
  } finally {
    await browser?.close().catch(() => {});
  }
}
