// File helpers of the web build: reading, listing, writing only what changed, running tools.
import { spawn } from 'node:child_process';
import { createHash } from 'node:crypto';
import { promises as fs } from 'node:fs';
import path from 'node:path';

/** A fault the build reports in one line (or a tool's own report) and fails on. */
export class BuildError extends Error {}

export async function read(file) {
  return fs.readFile(file).catch((error) => {
    throw new BuildError(`cannot read ${file}: ${error.message}`);
  });
}

/** All files under dir, as [path relative to dir with '/' separators, absolute path]. */
export async function listFiles(dir, prefix = '') {
  const entries = await fs.readdir(dir, { withFileTypes: true }).catch((error) => {
    throw new BuildError(`cannot read ${dir}: ${error.message}`);
  });
  const files = new Map();
  for (const entry of entries) {
    const file = path.join(dir, entry.name);
    const rel = prefix + entry.name;
    if (entry.isDirectory())
      for (const pair of await listFiles(file, `${rel}/`)) files.set(...pair);
    else if (entry.isFile()) files.set(rel, file);
  }
  return files;
}

export async function writeIfChanged(file, content) {
  const old = await fs.readFile(file).catch(() => null);
  if (old && old.equals(Buffer.from(content))) return;
  await fs.mkdir(path.dirname(file), { recursive: true });
  await fs.writeFile(file, content);
}

/** Removes files of an earlier build that this build no longer makes. */
export async function pruneStale(out, keep) {
  const present = await listFiles(out).catch(() => new Map());
  for (const [rel, file] of present) if (!keep.has(rel)) await fs.rm(file);
}

/** Digest of the given files' names and contents, plus any extra texts (tool versions, options). */
export async function digestOf(files, extras = []) {
  const hash = createHash('sha256');
  for (const file of files) hash.update(`${file}\0`).update(await read(file));
  for (const extra of extras) hash.update(`${extra}\0`);
  return hash.digest('hex');
}

/**
 * Runs `make(dir)` into a fresh `dir` unless the stamp kept there equals `stamp`: the stamp is
 * written last, so a run that failed half-way is redone next time.
 */
export async function unlessStamped(dir, stamp, make) {
  const stampFile = path.join(dir, 'stamp');
  if ((await fs.readFile(stampFile, 'utf8').catch(() => '')) === stamp) return;
  await fs.rm(dir, { recursive: true, force: true });
  await fs.mkdir(dir, { recursive: true });
  await make(dir);
  await fs.writeFile(stampFile, stamp);
}

/** Runs a command; fails with its output, headed by `what`, when it exits with an error. */
export function run(what, command, args) {
  return new Promise((resolve, reject) => {
    const child = spawn(command, args, { stdio: ['ignore', 'pipe', 'pipe'] });
    let output = '';
    child.stdout.on('data', (chunk) => (output += chunk));
    child.stderr.on('data', (chunk) => (output += chunk));
    child.on('error', (error) => reject(new BuildError(`cannot run ${command}: ${error.message}`)));
    child.on('close', (code) => {
      if (code === 0) resolve(output);
      else reject(new BuildError(`${what} failed:\n${output}`));
    });
  });
}
