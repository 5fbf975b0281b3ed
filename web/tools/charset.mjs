// The characters the served fonts keep: the scripts of the app's languages, common symbols,
// and every character the app's own texts use (so a new text never falls back to another font).
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { listFiles, read } from './files.mjs';

const ROOT = fileURLToPath(new URL('../..', import.meta.url));

// Inclusive code point ranges.
const RANGES = [
  [0x0020, 0x007e], // Basic Latin
  [0x00a0, 0x017f], // Latin-1 Supplement and Latin Extended-A: German, French (œ, Ÿ), «», °, ×
  [0x0400, 0x045f], // Cyrillic: Russian and its neighbours' letters
  [0x0490, 0x0491], // Ґ ґ
  [0x1e9e, 0x1e9e], // ẞ
  [0x2010, 0x2027], // dashes, quotes, bullet, ellipsis
  [0x2030, 0x203a], // per mille, primes, single guillemets
  [0x20ac, 0x20ac], // €
  [0x20bd, 0x20bd], // ₽
  [0x2116, 0x2116], // №
  [0x2122, 0x2122], // ™
  [0x2190, 0x2199], // arrows
  [0x2212, 0x2212], // minus
  [0x2640, 0x2642], // ♀ ♂
  [0x2713, 0x2714], // check marks
];

// Folders whose files hold the texts and marks the app shows, with the endings that count.
const TEXT_SOURCES = [
  ['resources/db', /\.sql$/],
  ['resources/translate', /\.tsv$/],
  ['shell', /\.(cpp|h)$/],
  ['web/src', /\.ts$/],
  ['web/static', /\.(css|html)$/],
];

/** The files whose characters the fonts keep, absolute and sorted. */
export async function textSources() {
  const files = [];
  for (const [dir, ending] of TEXT_SOURCES) {
    for (const file of (await listFiles(path.join(ROOT, dir))).values())
      if (ending.test(file)) files.push(file);
  }
  return files.sort();
}

/** The code points to keep, ascending: the ranges above and what the text sources use. */
export async function codePoints(sources) {
  const points = new Set();
  for (const [first, last] of RANGES) for (let p = first; p <= last; p++) points.add(p);
  for (const file of sources) {
    for (const char of String(await read(file))) {
      const point = char.codePointAt(0);
      if (point > 0x7e) points.add(point);
    }
  }
  return [...points].sort((a, b) => a - b);
}
