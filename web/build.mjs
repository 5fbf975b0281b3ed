// Builds the browser app into OUTDIR: compiled scripts, static files, fonts.
//   node web/build.mjs OUTDIR
// Re-runs are cheap: TypeScript is compiled only when its inputs changed, and files are
// written only when their content differs.
import { spawn } from 'node:child_process';
import { createHash } from 'node:crypto';
import { promises as fs } from 'node:fs';
import path from 'node:path';
import { fileURLToPath } from 'node:url';

const WEB = path.dirname(fileURLToPath(import.meta.url));
const TSC = path.join(WEB, '..', 'node_modules', 'typescript', 'bin', 'tsc');
const PROJECTS = { app: 'tsconfig.json', sw: 'tsconfig.sw.json' };
const FONT_DIR = '/usr/share/fonts/truetype/dejavu';
const FONTS = ['DejaVuSans.ttf', 'DejaVuSans-Bold.ttf'];

class BuildError extends Error {}

async function main() {
  const args = process.argv.slice(2);
  if (args.length !== 1) throw new BuildError('usage: node web/build.mjs OUTDIR');
  const out = path.resolve(args[0]);
  const stage = `${out}.tsc`; // compiler output and the stamp of its inputs, beside OUTDIR
  await compile(stage);

  // Served path (relative to OUTDIR) -> source file.
  const files = new Map([
    ...(await listFiles(path.join(stage, 'app'))),
    ...(await listFiles(path.join(WEB, 'static'))),
    ...FONTS.map((name) => [`fonts/${name}`, path.join(FONT_DIR, name)]),
  ]);
  const digest = createHash('sha256');
  for (const [rel, source] of [...files].sort()) {
    const content = await read(source);
    digest.update(`${rel}\0`).update(content);
    await writeIfChanged(path.join(out, rel), content);
  }

  const build = {
    version: digest.digest('hex').slice(0, 16),
    assets: [...files.keys()].sort().map((rel) => (rel === 'index.html' ? '/' : `/${rel}`)),
  };
  const worker = String(await read(path.join(stage, 'sw', 'sw.js')));
  // After the "use strict" directive, which only counts as the script's first statement.
  const script = worker.replace(/^("use strict";\n)?/, (directive) =>
    `${directive}const BUILD = ${JSON.stringify(build)};\n`);
  await writeIfChanged(path.join(out, 'sw.js'), script);
  await pruneStale(out, new Set([...files.keys(), 'sw.js']));
}

/** Runs tsc for both projects unless the sources are unchanged since the last run. */
async function compile(stage) {
  const stampFile = path.join(stage, 'stamp');
  const stamp = await inputsStamp();
  if ((await fs.readFile(stampFile, 'utf8').catch(() => '')) === stamp) return;
  await fs.rm(stage, { recursive: true, force: true });
  await Promise.all(
    Object.entries(PROJECTS).map(([name, config]) =>
      run(process.execPath, [TSC, '-p', path.join(WEB, config), '--outDir', path.join(stage, name)]),
    ),
  );
  await fs.writeFile(stampFile, stamp);
}

async function inputsStamp() {
  const hash = createHash('sha256');
  const inputs = [
    path.join(TSC, '..', '..', 'package.json'),
    ...Object.values(PROJECTS).map((config) => path.join(WEB, config)),
    ...[...(await listFiles(path.join(WEB, 'src'))).values()].sort(),
  ];
  for (const file of inputs) hash.update(`${file}\0`).update(await read(file));
  return hash.digest('hex');
}

function run(command, args) {
  return new Promise((resolve, reject) => {
    const child = spawn(command, args, { stdio: ['ignore', 'pipe', 'pipe'] });
    let output = '';
    child.stdout.on('data', (chunk) => (output += chunk));
    child.stderr.on('data', (chunk) => (output += chunk));
    child.on('error', (error) => reject(new BuildError(`cannot run ${command}: ${error.message}`)));
    child.on('close', (code) => {
      if (code === 0) resolve();
      else reject(new BuildError(`TypeScript compilation failed (${args.join(' ')}):\n${output}`));
    });
  });
}

/** All files under dir, as [path relative to dir with '/' separators, absolute path]. */
async function listFiles(dir, prefix = '') {
  const entries = await fs.readdir(dir, { withFileTypes: true }).catch((error) => {
    throw new BuildError(`cannot read ${dir}: ${error.message}`);
  });
  const files = new Map();
  for (const entry of entries) {
    const file = path.join(dir, entry.name);
    const rel = prefix + entry.name;
    if (entry.isDirectory()) for (const pair of await listFiles(file, `${rel}/`)) files.set(...pair);
    else if (entry.isFile()) files.set(rel, file);
  }
  return files;
}

/** Removes files of an earlier build that this build no longer makes. */
async function pruneStale(out, keep) {
  const present = await listFiles(out).catch(() => new Map());
  for (const [rel, file] of present) if (!keep.has(rel)) await fs.rm(file);
}

async function read(file) {
  return fs.readFile(file).catch((error) => {
    throw new BuildError(`cannot read ${file}: ${error.message}`);
  });
}

async function writeIfChanged(file, content) {
  const old = await fs.readFile(file).catch(() => null);
  if (old && old.equals(Buffer.from(content))) return;
  await fs.mkdir(path.dirname(file), { recursive: true });
  await fs.writeFile(file, content);
}

main().catch((error) => {
  const message = error instanceof BuildError ? error.message : error.stack;
  console.error(`web build: ${message}`);
  process.exit(1);
});
