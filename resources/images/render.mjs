// Renders every src/*.svg into a transparent PNG next to this script: 96×96, or larger for
// the pictures shown large. The pictures of the PDF reports' pages are opaque JPEGs of the
// page's width. A background "bg640-N" (640×960) also gives its darker form for
// dialogs "bd640-N" and its thumbnail "bs-N"; a lock picture "pass-*" (white) also gives its
// dark form "b-pass-*" for light backgrounds.
// Run by hand after editing an icon: `node resources/images/render.mjs`.
import { readdir, readFile } from 'node:fs/promises';
import { dirname, join, basename } from 'node:path';
import { fileURLToPath } from 'node:url';
import { launchChromium } from '../../web/tools/chromium.mjs';

const SIZE = 96;
const LARGE = { 'start-icon': 256, 'clear-photo2': 240, 'pdf-pressure': 320, 'pdf-zhid': 320 };
const REPORT_PAGES = {
  pdftitle: [1200, 1657],
  'pdftitle-top': [1200, 110],
  'pdftitle-bottom': [1200, 90],
};
// Transparent pictures that are not square: width×height.
const WIDE = { 'child-g': [540, 224] };
const here = dirname(fileURLToPath(import.meta.url));
const srcDir = join(here, 'src');

const browser = await launchChromium();

try {
  const files = (await readdir(srcDir)).filter((f) => f.endsWith('.svg')).sort();
  for (const file of files) {
    const svg = await readFile(join(srcDir, file), 'utf8');
    const name = basename(file, '.svg');
    const background = name.match(/^bg640-(\d+)$/);
    if (background) {
      const id = background[1];
      await render(svg, name, 640, 960);
      await render(svg, `bd640-${id}`, 640, 960, 'body::after { content: ""; position: fixed; inset: 0; background: rgba(0,0,0,0.45); }');
      await render(svg.replace('<svg ', '<svg preserveAspectRatio="xMidYMid slice" '), `bs-${id}`, SIZE, SIZE);
      continue;
    }
    const page = REPORT_PAGES[name];
    if (page) {
      await render(svg, name, page[0], page[1], '', 'jpeg');
      continue;
    }
    const wide = WIDE[name];
    if (wide) {
      await render(svg, name, wide[0], wide[1]);
      continue;
    }
    const size = LARGE[name] ?? SIZE;
    await render(svg, name, size, size);
    if (name.startsWith('pass-')) await render(svg, `b-${name}`, size, size, 'svg { filter: invert(1); }');
  }
} finally {
  await browser.close();
}

/** Renders one SVG filling a width×height viewport, with extra CSS, to NAME.png or NAME.jpg. */
async function render(svg, name, width, height, extraCss = '', type = 'png') {
  const page = await browser.newPage({ viewport: { width, height }, deviceScaleFactor: 1 });
  // The SVG fills the whole viewport; the page itself stays transparent.
  await page.setContent(
    `<!doctype html><html><head><style>
       html, body { margin: 0; padding: 0; background: transparent; }
       svg { display: block; width: ${width}px; height: ${height}px; }
       ${extraCss}
     </style></head><body>${svg}</body></html>`);
  const file = `${name}.${type === 'jpeg' ? 'jpg' : 'png'}`;
  const options = type === 'jpeg' ? { type, quality: 88 } : { omitBackground: true };
  await page.screenshot({ path: join(here, file), clip: { x: 0, y: 0, width, height }, ...options });
  await page.close();
  console.log(`rendered ${file}`);
}
