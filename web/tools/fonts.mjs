// The served fonts: DejaVu Sans, regular and bold, cut down to the characters the app uses
// and packed as WOFF2 by fontTools. Every glyph keeps its metrics and the layout tables
// (kerning, ligatures), so text lays out as wide in the browser as pango measures it with the
// system's DejaVu Sans on the server.
import path from 'node:path';
import { promises as fs } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { codePoints, textSources } from './charset.mjs';
import { digestOf, run, unlessStamped } from './files.mjs';

const FONT_DIR = '/usr/share/fonts/truetype/dejavu';
const FONTS = ['DejaVuSans', 'DejaVuSans-Bold'];
const SUBSET = 'pyftsubset'; // Debian's fonttools
const OPTIONS = ['--flavor=woff2', '--layout-features=*', '--notdef-outline'];

/** Makes the fonts in `stage` unless their inputs are unchanged; returns [served path, file]. */
export async function subsetFonts(stage) {
  const dir = path.join(stage, 'fonts');
  const sources = await textSources();
  const tools = ['fonts.mjs', 'charset.mjs'].map((name) =>
    fileURLToPath(new URL(name, import.meta.url)),
  );
  const stamp = await digestOf([...tools, ...FONTS.map(ttf), ...sources], OPTIONS);
  await unlessStamped(dir, stamp, async () => {
    const list = path.join(dir, 'unicodes.txt');
    const points = await codePoints(sources);
    await fs.writeFile(list, points.map((p) => p.toString(16)).join('\n'));
    await Promise.all(FONTS.map((name) => subset(name, list, woff2(dir, name))));
  });
  return FONTS.map((name) => [`fonts/${name}.woff2`, woff2(dir, name)]);
}

function subset(name, list, output) {
  const args = [ttf(name), `--unicodes-file=${list}`, `--output-file=${output}`, ...OPTIONS];
  return run(`subsetting ${ttf(name)}`, SUBSET, args);
}

const ttf = (name) => path.join(FONT_DIR, `${name}.ttf`);
const woff2 = (dir, name) => path.join(dir, `${name}.woff2`);
