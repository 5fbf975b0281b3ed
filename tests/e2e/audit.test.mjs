// Browser test of the first load on a phone: what the page downloads, and its Lighthouse audit
// (mobile, simulated slow 4G). Checks what the load's size rests on (one script, the fonts as
// WOFF2); the scores and the bytes sent go to OUT/audit.json and stdout, never judged.
import assert from 'node:assert/strict';
import fs from 'node:fs';
import path from 'node:path';
import lighthouse from 'lighthouse';
import { withDevtoolsChromium } from './devtools.mjs';
import * as e2e from './harness.mjs';

const CATEGORIES = ['performance', 'accessibility'];
const METRICS = ['largest-contentful-paint', 'total-blocking-time', 'total-byte-weight'];

/** The page's downloads on a first visit, once its view and fonts are up (what went over the
 *  wire is Lighthouse's to say: the service worker serves some of them). The push channel's
 *  stream never ends, so it has no body to read. */
async function firstVisit(browser, base) {
  const context = await browser.newContext(e2e.PHONE);
  const page = await context.newPage();
  const responses = [];
  page.on('response', (response) => responses.push(response));
  await page.goto(`${base}/`);
  await page.waitForSelector('.welcome, .row[data-id]');
  await page.evaluate(() => document.fonts.ready);
  const loads = [];
  for (const response of responses.filter(
    (r) => !r.headers()['content-type']?.startsWith('text/event-stream'),
  )) {
    const body = await response.body();
    loads.push({
      path: new URL(response.url()).pathname,
      type: response.request().resourceType(),
      contentType: response.headers()['content-type'] ?? '',
      signature: body.subarray(0, 4).toString('latin1'),
    });
  }
  await context.close();
  return loads;
}

/** What the worker keeps is the worker test's. */
function checkLoads(loads) {
  const scripts = loads.filter((load) => load.type === 'script').map((s) => s.path);
  assert.deepEqual(scripts, ['/app.js'], 'the page loads one script');
  const fonts = loads.filter((load) => load.type === 'font');
  assert.ok(fonts.length > 0, 'the page loads its font');
  for (const font of fonts)
    assert.deepEqual(
      [/\.woff2$/.test(font.path), font.contentType, font.signature],
      [true, 'font/woff2', 'wOF2'],
      `${font.path}: a WOFF2 file by name, type and content`,
    );
}

/** Lighthouse's mobile audit of the start page, in a browser of its own; its whole report, with
 *  the audits that failed, is kept as OUT/lighthouse.json. */
async function audit(base, outDir) {
  const result = await withDevtoolsChromium((port) =>
    lighthouse(`${base}/`, { port, output: 'json', logLevel: 'error', onlyCategories: CATEGORIES }),
  );
  fs.writeFileSync(path.join(outDir, 'lighthouse.json'), result.report);
  const { lhr } = result;
  assert.ok(!lhr.runtimeError, `Lighthouse could not audit the page: ${lhr.runtimeError?.message}`);
  return {
    scores: Object.fromEntries(CATEGORIES.map((c) => [c, lhr.categories[c].score])),
    metrics: Object.fromEntries(METRICS.map((m) => [m, lhr.audits[m].numericValue])),
  };
}

// Lighthouse comes first: the installation's first page is the greeting a new user sees.
e2e.runBrowserTest('audit', async ({ browser, base, outDir }) => {
  const lighthouseReport = await audit(base, outDir);
  const loads = await firstVisit(browser, base);
  checkLoads(loads);
  const report = { files: loads, lighthouse: lighthouseReport };
  fs.writeFileSync(path.join(outDir, 'audit.json'), `${JSON.stringify(report, null, 2)}\n`);
  console.log(`lighthouse: ${JSON.stringify(lighthouseReport)}`);
});
