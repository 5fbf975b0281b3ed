// Renders the program's pictures at build time, each from its SVG in src/week/ or src/book/,
// into the folder given first:
//   node render-pictures.mjs OUT_DIR SOURCE...
// A source is named by what it makes:
//   "12w.svg"      the moving picture of the child in those weeks: eight 640×640 JPEG frames
//                  "12w001.jpg" to "12w008.jpg", looped once a second;
//   "wom-3.svg"    the mother's body in that month, a transparent 640×800 PNG "wom-3.png";
//   "org-mozg.svg" an organ of the development ring, a transparent 96×96 PNG "org-mozg.png";
//   "wom-hints.json" the named points of the body pictures, by month: [{name, x, y}] in pixels;
//   "book-t2-3.svg" a ground of the photo book's pages, a 3338×2588 JPEG "book-t2-3.jpg"
//                  (kind 2: "book-t2-1" to "book-t2-6" and "book-t2-0a" to "book-t2-0e";
//                  "book-t4", "book-t5");
//   "ti-preg3.svg" a picture of the book's cover ring, a 800×800 PNG (also "b-ti-preg",
//                  "ti-child2", "b-ti-child");
//   "book2.svg"    a kind of the photo book in the list to choose from, a 300×232 PNG;
//   "imageloc-41.svg" a layout of a picture page in the page's editor, a 120×93 PNG.
// An element of a moving picture moves with a data-move attribute: one motion that swings as a
// sine wave through the loop,
//   float DX DY            shifts by up to DX, DY;
//   turn DEGREES at X Y    turns by up to DEGREES about X, Y;
//   pulse FACTOR at X Y    grows and shrinks by up to FACTOR about X, Y;
// optionally followed by "beats N" (N whole waves a loop, so the loop closes) and "phase P"
// (starts a fraction P of a wave later). A fault in a source stops the build with its name and
// line: XML that is not well-formed, a motion that cannot be read, a picture of the wrong size,
// a hint that is not one of its month's parts or points at nothing drawn.
import { readFile, mkdir } from 'node:fs/promises';
import { basename, join } from 'node:path';
import { launchChromium } from '../../web/tools/chromium.mjs';

const FRAMES = 8;
const KINDS = [
  { pattern: /^\d+w$/, width: 640, height: 640, viewBox: '0 0 640 640', moving: true },
  { pattern: /^wom-\d$/, width: 640, height: 800, viewBox: '0 0 640 800' },
  { pattern: /^org-[a-z]+$/, width: 96, height: 96, viewBox: '0 0 48 48' },
  {
    pattern: /^book-t(2-[1-6]|2-0[a-e]|[45])$/,
    width: 3338,
    height: 2588,
    viewBox: '0 0 1669 1294',
    jpeg: true,
  },
  { pattern: /^(b-)?ti-(preg|child)\d?$/, width: 800, height: 800, viewBox: '0 0 800 800' },
  { pattern: /^book[1-5]$/, width: 300, height: 232, viewBox: '0 0 300 232' },
  { pattern: /^imageloc-\d\d$/, width: 120, height: 93, viewBox: '0 0 120 93' },
];
// The parts named on the body picture of each month.
const BODY_PARTS = {
  1: [
    'Полость матки',
    'Фаллопиева\nтруба',
    'Яичник',
    'Матка',
    'Шейка матки',
    'Мочевой пузырь',
    'Прямая кишка',
    'Влагалище',
  ],
  2: [
    'Плацентарные\nклетки',
    'Амниотический\nмешок',
    'Эмбрион',
    'Желточный\nмешок',
    'Зародышевый\nпузырь',
    'Эндометрий',
  ],
  3: [
    'Верхняя челюсть',
    'Нижняя челюсть',
    'Зачаток руки',
    'Матка',
    'Шейка матки',
    'Влагалище',
    'Зачаток ноги',
    'Копчик',
    'Сердце',
    'Пуповина',
    'Желточный\nмешок',
    'Плацента',
    'Глазное пятно',
    'Амниотическая\nоболочка',
    'Мозг',
    'Полость матки',
  ],
  4: ['Матка', 'Шейка матки', 'Влагалище', 'Ручки', 'Пуповина', 'Плацента', 'Желточный\nмешок'],
  5: [
    'Матка',
    'Шейка матки',
    'Влагалище',
    'Зародышевый\nмешок',
    'Пуповина',
    'Плацента',
    'Амниотическая\nоболочка',
    'Лицо',
    'Рука',
  ],
  6: [
    'Матка',
    'Шейка матки',
    'Влагалище',
    'Пуповина',
    'Плацента',
    'Кожа головы',
    'Мозг',
    'Нога',
    'Кожа',
    'Губы',
    'Глаза',
  ],
  7: ['Шейка матки', 'Влагалище', 'Плацента', 'Пуповина', 'Матка', 'Глаза'],
  8: ['Шейка матки', 'Влагалище', 'Жирок', 'Матка', 'Пуповина', 'Плацента', 'Кожа', 'Череп'],
  9: [
    'Шейка матки',
    'Влагалище',
    'Матка',
    'Пуповина',
    'Плацента',
    'Кожа',
    'Жирок',
    'Амниотическая\nоболочка',
  ],
};

class SourceError extends Error {}

const fail = (file, text, index, message) => {
  const line = index === undefined ? '' : `${text.slice(0, index).split('\n').length}:`;
  throw new SourceError(`${file}:${line} ${message}`);
};

/** The motions of a moving picture's source, each with its place in the text. */
function readMotions(file, svg) {
  const motions = [];
  for (const match of svg.matchAll(/\sdata-move="([^"]*)"/g)) {
    const words = match[1].trim().split(/\s+/);
    const bad = (why) => fail(file, svg, match.index + 1, `data-move="${match[1]}": ${why}`);
    const number = (word) => {
      if (!/^-?\d*\.?\d+$/.test(word ?? '')) bad(`"${word ?? ''}" is not a number`);
      return Number(word);
    };
    const take = (count) => Array.from({ length: count }, () => number(words.shift()));
    const kind = words.shift();
    const arity = { float: 2, turn: 1, pulse: 1 }[kind];
    if (!arity) bad(`"${kind}" is not float, turn or pulse`);
    const motion = {
      start: match.index,
      end: match.index + match[0].length,
      kind,
      beats: 1,
      phase: 0,
    };
    motion.amount = take(arity);
    while (words.length) {
      const key = words.shift();
      if (key === 'at') motion.at = take(2);
      else if (key === 'beats') motion.beats = number(words.shift());
      else if (key === 'phase') motion.phase = number(words.shift());
      else bad(`"${key}" is not at, beats or phase`);
    }
    if (kind !== 'float' && !motion.at) bad(`a ${kind} needs "at X Y"`);
    if (!Number.isInteger(motion.beats) || motion.beats < 1)
      bad('beats must be a whole number, so the loop closes');
    const tag = svg.slice(svg.lastIndexOf('<', match.index), svg.indexOf('>', match.index));
    if (/\stransform=/.test(tag))
      bad('the element has a transform of its own: move a group around it');
    motions.push(motion);
  }
  if (!motions.length) fail(file, svg, undefined, 'nothing moves: no data-move attribute');
  return motions;
}

/** The transform of a motion at a frame from 1. */
function transformAt(motion, frame) {
  const wave = Math.sin(2 * Math.PI * ((motion.beats * (frame - 1)) / FRAMES + motion.phase));
  const n = (value) => Number(value.toFixed(3));
  const [x, y] = motion.at ?? [];
  if (motion.kind === 'float')
    return `translate(${n(motion.amount[0] * wave)} ${n(motion.amount[1] * wave)})`;
  if (motion.kind === 'turn') return `rotate(${n(motion.amount[0] * wave)} ${x} ${y})`;
  const scale = n(1 + motion.amount[0] * wave);
  return `translate(${x} ${y}) scale(${scale}) translate(${-x} ${-y})`;
}

/** The source with each data-move turned into the transform of the frame. */
function frameOf(svg, motions, frame) {
  let out = '';
  let from = 0;
  for (const motion of motions) {
    out += `${svg.slice(from, motion.start)} transform="${transformAt(motion, frame)}"`;
    from = motion.end;
  }
  return out + svg.slice(from);
}

/** The hints of the body pictures, checked against the months' parts and the pictures there are. */
function readHints(file, text, months) {
  let hints;
  try {
    hints = JSON.parse(text);
  } catch (error) {
    fail(file, text, undefined, error.message);
  }
  for (const month of months)
    if (!hints[month]) fail(file, text, undefined, `no hints of month ${month}`);
  for (const [month, list] of Object.entries(hints)) {
    const where = `month ${month}`;
    if (!months.includes(month))
      fail(file, text, undefined, `${where} has no picture wom-${month}.svg`);
    const parts = BODY_PARTS[month];
    const named = list.map((hint) => hint.name);
    for (const hint of list) {
      const at = text.indexOf(JSON.stringify(hint.name).slice(0, -1));
      if (!parts.includes(hint.name))
        fail(file, text, at, `${where}: "${hint.name}" is not one of its parts`);
      if (named.indexOf(hint.name) !== named.lastIndexOf(hint.name))
        fail(file, text, at, `${where}: "${hint.name}" twice`);
      if (!(hint.x >= 0 && hint.x < 640 && hint.y >= 0 && hint.y < 800)) {
        fail(file, text, at, `${where}: "${hint.name}" lies outside the 640×800 picture`);
      }
    }
    const missing = parts.filter((part) => !named.includes(part));
    if (missing.length)
      fail(
        file,
        text,
        undefined,
        `${where} lacks ${missing.map((m) => JSON.stringify(m)).join(', ')}`,
      );
  }
  return hints;
}

const [outDir, ...sourcePaths] = process.argv.slice(2);
if (!outDir || !sourcePaths.length) {
  console.error('usage: node render-pictures.mjs OUT_DIR SOURCE...');
  process.exit(2);
}

const started = Date.now();
const browser = await launchChromium();
try {
  const page = await browser.newPage({ deviceScaleFactor: 1 });
  await page.setContent(
    '<!doctype html><html><head><style>html, body { margin: 0; background: transparent; }' +
      ' svg { display: block; width: 100vw; height: 100vh; }</style></head><body></body></html>',
  );

  // Everything is read and checked before the first picture is made.
  const pictures = [];
  let hintsSource;
  for (const path of sourcePaths) {
    const file = basename(path);
    const text = await readFile(path, 'utf8');
    if (file.endsWith('.json')) {
      hintsSource = { file, text };
      continue;
    }
    const name = basename(file, '.svg');
    const kind = KINDS.find((k) => k.pattern.test(name));
    if (!kind || !file.endsWith('.svg'))
      fail(file, text, undefined, 'is not a picture this script makes');
    const problem = await page.evaluate((svg) => {
      const doc = new DOMParser().parseFromString(svg, 'image/svg+xml');
      const error = doc.querySelector('parsererror');
      if (error)
        return { message: error.textContent, line: /line (\d+)/.exec(error.textContent)?.[1] };
      const root = doc.documentElement;
      if (root.localName !== 'svg' || root.namespaceURI !== 'http://www.w3.org/2000/svg')
        return { message: 'the root is not an SVG element' };
      return { viewBox: root.getAttribute('viewBox') };
    }, text);
    if (problem.message) {
      const message = problem.message
        .replace(/^This page contains the following errors:/, '')
        .split('\n')[0];
      throw new SourceError(`${file}:${problem.line ? `${problem.line}:` : ''} ${message}`);
    }
    if (problem.viewBox !== kind.viewBox)
      fail(file, text, text.indexOf('<svg'), `the viewBox must be "${kind.viewBox}"`);
    const motions = kind.moving ? readMotions(file, text) : null;
    pictures.push({ name, text, kind, motions });
  }
  const months = pictures.filter((p) => p.name.startsWith('wom-')).map((p) => p.name.slice(4));
  const hints = hintsSource ? readHints(hintsSource.file, hintsSource.text, months) : {};
  if (months.length && !hintsSource)
    throw new SourceError('wom-hints.json: not given with the body pictures');

  await mkdir(outDir, { recursive: true });
  let count = 0;
  for (const { name, text, kind, motions } of pictures) {
    await page.setViewportSize({ width: kind.width, height: kind.height });
    const show = (svg) => page.evaluate((s) => (document.body.innerHTML = s), svg);
    if (motions) {
      for (let frame = 1; frame <= FRAMES; frame++) {
        await show(frameOf(text, motions, frame));
        await page.screenshot({
          path: join(outDir, `${name}00${frame}.jpg`),
          type: 'jpeg',
          quality: 85,
        });
        count++;
      }
      continue;
    }
    await show(text);
    if (kind.jpeg)
      await page.screenshot({ path: join(outDir, `${name}.jpg`), type: 'jpeg', quality: 90 });
    else await page.screenshot({ path: join(outDir, `${name}.png`), omitBackground: true });
    count++;
    const month = name.startsWith('wom-') ? name.slice(4) : undefined;
    if (!hints[month]) continue;
    const astray = await page.evaluate(
      (list) => list.filter((h) => document.elementFromPoint(h.x, h.y)?.closest('svg > *') == null),
      hints[month],
    );
    if (astray.length) {
      const names = astray.map((h) => `"${h.name}" (${h.x}, ${h.y})`).join(', ');
      throw new SourceError(
        `${hintsSource.file}: in month ${month} ${names} point at nothing drawn in ${name}.svg`,
      );
    }
  }
  console.log(`rendered ${count} pictures in ${((Date.now() - started) / 1000).toFixed(1)} s`);
} catch (error) {
  if (!(error instanceof SourceError)) throw error;
  console.error(`error: ${error.message}`);
  process.exitCode = 1;
} finally {
  await browser.close();
}
