// The renderer of the pictures made at build time: the frames of a moving picture move and close their
// loop, and a fault in a source stops it with the file and line instead of a wrong picture.
//   node --test tests/resources/render_pictures_test.mjs
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { mkdtemp, readFile, readdir, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, test } from 'node:test';
import { promisify } from 'node:util';

const script = new URL('../../resources/images/render-pictures.mjs', import.meta.url).pathname;
const sources = new URL('../../resources/images/src/', import.meta.url).pathname;
const dir = await mkdtemp(join(tmpdir(), 'render-pictures-'));
after(() => rm(dir, { recursive: true, force: true }));

/** Runs the script on the given files, written into a fresh folder: {code, stderr, out}. */
async function render(files) {
  const work = await mkdtemp(join(dir, 'run-'));
  const paths = [];
  for (const [name, text] of Object.entries(files)) {
    paths.push(join(work, name));
    await writeFile(join(work, name), text);
  }
  const out = join(work, 'out');
  try {
    await promisify(execFile)(process.execPath, [script, out, ...paths]);
    return { code: 0, stderr: '', out };
  } catch (error) {
    return { code: error.code, stderr: error.stderr, out };
  }
}

const moving = (body) =>
  `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 640 640">
  <rect width="640" height="640" fill="#fbe9e1"/>
${body}
</svg>
`;
const ball = '  <g data-move="float 0 40"><circle cx="320" cy="320" r="60" fill="#b5533c"/></g>';
const womb = (body) =>
  `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 640 800">\n${body}\n</svg>\n`;
const month1 = await readFile(join(sources, 'week/wom-1.svg'), 'utf8');
const hints = JSON.parse(await readFile(join(sources, 'wom-hints.json'), 'utf8'));

test('the eight frames of a moving picture follow one wave through the loop', async () => {
  const { code, stderr, out } = await render({ '5w.svg': moving(ball) });
  assert.equal(code, 0, stderr);
  const names = (await readdir(out)).sort();
  assert.deepEqual(
    names,
    [1, 2, 3, 4, 5, 6, 7, 8].map((f) => `5w00${f}.jpg`),
  );
  const frames = await Promise.all(names.map((n) => readFile(join(out, n))));
  // The ball sinks to its lowest in frame 3, is back in the middle in 5, at its highest in 7:
  // five places, each passed twice but the lowest and the highest.
  assert.equal(new Set(frames.map((f) => f.toString('base64'))).size, 5);
  assert.deepEqual(frames[1], frames[3]);
  assert.deepEqual(frames[0], frames[4]);
  assert.notDeepEqual(frames[1], frames[5]);
});

test('a faulty source stops the run with its file and line instead of a wrong picture', async () => {
  const withHints = (json) => ({ 'wom-1.svg': month1, 'wom-hints.json': json });
  const only1 = (list) => withHints(JSON.stringify({ 1: list }));
  const astray = hints[1].map((h) => (h.name === 'Яичник' ? { ...h, x: 620, y: 20 } : h));
  const moves = ['float 0', 'spin 4 at 1 1', 'turn 4', 'pulse .1 at 320 320 beats 1.5'];
  const cases = [
    [{ '5w.svg': moving(ball).replace('</g>', '</circle>') }, /^error: 5w\.svg:3: /m],
    // A motion that cannot be read, or would not close the loop.
    ...moves.map((move) => [
      { '5w.svg': moving(ball.replace('float 0 40', move)) },
      /^error: 5w\.svg:3: data-move=/m,
    ]),
    [
      { '5w.svg': moving(ball.replace('<g data-move', '<g transform="scale(2)" data-move')) },
      /5w\.svg:3: .*transform of its own/,
    ],
    [
      { 'wom-1.svg': month1.replace('0 0 640 800', '0 0 640 640') },
      /wom-1\.svg:1: the viewBox must be "0 0 640 800"/,
    ],
    // The hints must be the parts of their month, on a month that has a picture.
    [only1([...hints[1], { name: 'Сердце', x: 320, y: 540 }]), /month 1: "Сердце" is not one/],
    [only1(hints[1].slice(1)), /month 1 lacks "Полость матки"/],
    [only1([...hints[1], hints[1][0]]), /month 1: "Полость матки" twice/],
    [withHints(JSON.stringify({ 1: hints[1], 2: hints[2] })), /month 2 has no picture wom-2\.svg/],
    [only1(astray), /in month 1 "Яичник" \(620, 20\) point at nothing drawn in wom-1\.svg/],
    [{ 'wom-2.svg': womb('<circle cx="1" cy="1" r="1"/>') }, /wom-hints\.json: not given/],
  ];
  for (const [files, message] of cases) {
    const { code, stderr } = await render(files);
    assert.equal(code, 1, String(message));
    assert.match(stderr, message);
  }
});
