// Renders every src/*.svg into a transparent PNG next to this script: 96×96, or larger for
// the pictures shown large.
// Run by hand after editing an icon: `node resources/images/render.mjs`.
import { readdir, readFile } from 'node:fs/promises';
import { dirname, join, basename } from 'node:path';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';

const SIZE = 96;
const LARGE = { 'start-icon': 256 };
const here = dirname(fileURLToPath(import.meta.url));
const srcDir = join(here, 'src');

const browser = await chromium.launch({
  executablePath: '/usr/bin/chromium',
  args: ['--headless', '--no-sandbox', '--disable-gpu', '--disable-background-networking',
         '--disable-component-update', '--disable-sync', '--no-first-run'],
});

try {
  const files = (await readdir(srcDir)).filter((f) => f.endsWith('.svg')).sort();
  for (const file of files) {
    const svg = await readFile(join(srcDir, file), 'utf8');
    const size = LARGE[basename(file, '.svg')] ?? SIZE;
    const page = await browser.newPage({ viewport: { width: size, height: size }, deviceScaleFactor: 1 });
    // The SVG fills the whole viewport; the page itself stays transparent.
    await page.setContent(
      `<!doctype html><html><head><style>
         html, body { margin: 0; padding: 0; background: transparent; }
         svg { display: block; width: ${size}px; height: ${size}px; }
       </style></head><body>${svg}</body></html>`);
    const out = join(here, `${basename(file, '.svg')}.png`);
    await page.screenshot({ path: out, omitBackground: true, clip: { x: 0, y: 0, width: size, height: size } });
    await page.close();
    console.log(`rendered ${basename(out)}`);
  }
} finally {
  await browser.close();
}
