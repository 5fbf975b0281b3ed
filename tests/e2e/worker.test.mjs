// Browser test of the service worker: once it has taken over, the app's shell comes from its
// cache while /api/ goes to the server; when the server brings a new build, the new build's
// worker takes over the open page, which reloads into the new build, and the old cache goes.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import * as e2e from './harness.mjs';

const SHELL = ['/', '/app.js', '/style.css', '/fonts/DejaVuSans.woff2'];
const MARK = '<meta name="build" content="next">';

/** Which paths the page's reload got from the service worker, and which from the server. */
async function reloadSources(page) {
  const fromWorker = new Map();
  const record = (response) =>
    fromWorker.set(new URL(response.url()).pathname, response.fromServiceWorker());
  page.on('response', record);
  await page.reload();
  await page.waitForSelector('.row[data-id]');
  await page.evaluate(() => document.fonts.ready);
  page.off('response', record);
  return fromWorker;
}

/** A copy of the built web app that differs as a new build would: its page and its worker. */
function nextBuild(executable) {
  const dir = fs.mkdtempSync(path.join(os.tmpdir(), 'ladaneya-e2e-next-build-'));
  // The build's web app lies beside its programs: build/app/ladaneya, build/web-app.
  fs.cpSync(path.join(path.dirname(executable), '..', 'web-app'), dir, { recursive: true });
  const page = path.join(dir, 'index.html');
  fs.writeFileSync(page, fs.readFileSync(page, 'utf8').replace('</head>', `  ${MARK}\n</head>`));
  const worker = path.join(dir, 'sw.js');
  const script = fs.readFileSync(worker, 'utf8');
  const next = script.replace(/version:"[0-9a-f]+"/, 'version:"next"');
  assert.notEqual(next, script, 'the worker names its build version');
  fs.writeFileSync(worker, next);
  return dir;
}

e2e.runBrowserTest('worker', async ({ browser, base, executable, server, dataDir }) => {
  const { context, page, errors } = await e2e.openPastGreeting(browser, base);
  await e2e.until('the worker controls the page', () =>
    page.evaluate(() => navigator.serviceWorker.controller !== null),
  );

  const sources = await reloadSources(page);
  for (const shell of SHELL)
    assert.equal(sources.get(shell), true, `${shell} from the worker's cache`);
  assert.equal(sources.get('/api/view'), false, '/api/view from the server');

  await e2e.stopServer(server);
  const webDir = nextBuild(executable);
  const next = e2e.startServer(executable, dataDir, new URL(base).port, {
    extraArgs: ['--web', webDir],
  });
  try {
    await e2e.waitUntilServing(next, base);
    await page.reload(); // the browser looks for a new worker whenever it opens a page
    await page.waitForFunction(() => document.querySelector('meta[name="build"]') !== null);
    await page.waitForSelector('.row[data-id]');
    await e2e.until(
      "the old build's cache is gone",
      async () => (await page.evaluate(() => caches.keys())).length === 1,
    );
    await e2e.stopServer(next);
  } finally {
    if (!next.exit) next.child.kill('SIGKILL');
    fs.rmSync(webDir, { recursive: true, force: true });
  }
  await e2e.closeClean({ context, errors });
});
