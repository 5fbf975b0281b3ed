// Renders web/static/icons/icon.svg into the PNG app icons. Run after changing the SVG:
//   node web/icons.mjs
import { chromium } from 'playwright-core';
import path from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';

const ICONS = path.join(path.dirname(fileURLToPath(import.meta.url)), 'static', 'icons');
const SIZES = [192, 512];

const browser = await chromium.launch({
  executablePath: '/usr/bin/chromium',
  args: ['--headless', '--no-sandbox'],
});
try {
  for (const size of SIZES) {
    const page = await browser.newPage({ viewport: { width: size, height: size } });
    await page.goto(pathToFileURL(path.join(ICONS, 'icon.svg')).href);
    await page.screenshot({ path: path.join(ICONS, `icon-${size}.png`), omitBackground: true });
    await page.close();
  }
} finally {
  await browser.close();
}
