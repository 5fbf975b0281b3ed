// Browser test of the password lock and the backgrounds against the real server.
//   node tests/e2e/lock.test.mjs --server PATH_TO_SERVER --out SCREENSHOT_DIR
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import {
  freePort,
  openPastGreeting,
  runBrowserTest,
  startServer,
  typeCode,
  captionIs,
} from './harness.mjs';

const CODE = '1357';
const PASSWORD_SWITCH = 'menu:52';
const BACKGROUND_ROW = 'menu:42';

async function turnLockOn(page, outDir) {
  await page.tap(`[data-id="${PASSWORD_SWITCH}"]`);
  await captionIs(page, 'Введите новый пароль');
  await typeCode(page, CODE);
  await captionIs(page, 'Введите пароль еще раз');
  await typeCode(page, CODE);
  await page.waitForSelector('.message');
  assert.equal(await page.textContent('.message-text'), 'На вход в программу установлен пароль.');
  await page.screenshot({ path: path.join(outDir, 'lock-set.png') });
  await page.tap('.message button');
  await page.waitForSelector(`[data-id="${PASSWORD_SWITCH}"] .switch[aria-checked="true"]`);
}

async function unlockAfterReload(page, outDir) {
  await page.context().clearCookies(); // a browser the installation has not seen yet
  await page.reload();
  await captionIs(page, 'Введите пароль');
  assert.equal(await page.$$eval('.lock-dot', (dots) => dots.length), 4, 'four dots');
  assert.equal(await page.$('.row'), null, 'nothing of the diary behind the lock');
  await typeCode(page, '0000');
  await captionIs(page, 'Пароль указан неправильно');
  await page.screenshot({ path: path.join(outDir, 'lock-wrong.png') });
  await typeCode(page, CODE);
  await page.waitForSelector('.row[data-id]');
}

async function changeBackground(page, outDir) {
  await page.tap(`[data-id="${BACKGROUND_ROW}"]`);
  await page.waitForSelector('.row[data-id="background:4"]');
  await page.tap('.row[data-id="background:4"]');
  await page.waitForFunction(() => document.body.dataset.background === 'bg640-4.png');
  await page.screenshot({ path: path.join(outDir, 'background.png') });
}

async function refusedWithoutPassword(executable) {
  const dataDir = fs.mkdtempSync(path.join(os.tmpdir(), 'ladaneya-e2e-open-'));
  try {
    const server = startServer(
      executable,
      dataDir,
      await freePort(),
      'ru',
      [],
      process.env,
      '0.0.0.0',
    );
    const exit = await server.exited;
    assert.equal(exit.code, 2, 'a listen beyond loopback without a password is refused');
    assert.match(server.log, /password/, 'the refusal says why');
  } finally {
    fs.rmSync(dataDir, { recursive: true, force: true });
  }
}

await runBrowserTest('lock', async ({ browser, base, outDir, executable }) => {
  await refusedWithoutPassword(executable);
  const { context, page, errors } = await openPastGreeting(browser, base);
  await turnLockOn(page, outDir);
  await unlockAfterReload(page, outDir);
  await changeBackground(page, outDir);
  assert.deepEqual(errors, [], 'no uncaught errors in the page');
  await context.close();
});
