// Browser test of the cloud screen at phone and tablet size: the shared folder chosen and
// typed on the screen, the menu's line that follows it, the copy of the whole diary into the
// folder after its question, and a second installation started on the same folder that finds
// it complete. Screenshots of the screen before and after the choice.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import * as e2e from './harness.mjs';

const CLOUD_ROW = '[data-id="menu:38"]';

async function openCloudScreen(page) {
  await page.tap(CLOUD_ROW);
  await page.waitForSelector('.editor-segments');
}

async function chooseFolder(page, folder, shot) {
  await openCloudScreen(page);
  await page.tap('.segment:nth-child(2)');
  await page.waitForSelector('input.editor-input');
  await page.fill('input.editor-input', folder);
  await page.locator('input.editor-input').blur();
  await page.screenshot({ path: shot });
  await page.tap('[data-id="cloud:ok"]');
  await page.waitForSelector(CLOUD_ROW);
  assert.match(await page.locator(CLOUD_ROW).innerText(), /Синхронизация через/);
}

async function copyEverything(page, folder, shot) {
  await openCloudScreen(page);
  assert.equal(await page.inputValue('input.editor-input'), folder, 'the folder stays chosen');
  await page.screenshot({ path: shot });
  await page.tap('[data-id="cloud:copy"]');
  await page.waitForSelector('.popup-cover');
  await page.tap('.popup-cover button[data-id="popup:1"]');
  await page.waitForSelector('.message:has-text("Облако оптимизировано")');
}

await e2e.runBrowserTest('cloud', async ({ browser, base, outDir, executable }) => {
  const shared = fs.mkdtempSync(path.join(os.tmpdir(), 'ladaneya-e2e-cloud-'));
  const folder = path.join(shared, 'Ладанея');
  try {
    const phone = await e2e.openPastGreeting(browser, base, { device: e2e.PHONE });
    assert.match(await phone.page.locator(CLOUD_ROW).innerText(), /Отключено/);
    await chooseFolder(phone.page, folder, path.join(outDir, 'cloud-choice-phone.png'));
    assert.ok(fs.statSync(folder).isDirectory(), 'the folder is made');

    const tablet = await e2e.openPastGreeting(browser, base, { device: e2e.TABLET });
    await copyEverything(tablet.page, folder, path.join(outDir, 'cloud-copy-tablet.png'));
    const files = fs.readdirSync(folder).join(' ');
    assert.match(files, /(^| )CLOUD-1-[0-9A-F-]+\.dat( |$)/i, 'a profile file among the copied');
    await e2e.closeClean(phone);
    await e2e.closeClean(tablet);

    // Another installation on the same folder reads it whole.
    await e2e.onNewInstallation(
      executable,
      async ({ base: other }) => {
        const { page, context } = await e2e.openPastGreeting(browser, other, { device: e2e.PHONE });
        await e2e.until('the second installation has read the folder', async () => {
          await page.reload();
          await page.waitForSelector(CLOUD_ROW);
          return /100%/.test(await page.locator(CLOUD_ROW).innerText());
        });
        // The menu may be drawn again at any moment as passes run: no handle is kept.
        await page.evaluate((row) => document.querySelector(row)?.scrollIntoView(), CLOUD_ROW);
        await e2e.snap(page, outDir, 'cloud-second-phone');
        await context.close();
      },
      { extraArgs: ['--cloud', folder], name: 'cloud-second' },
    );
  } finally {
    fs.rmSync(shared, { recursive: true, force: true });
  }
});
