// The app's scripts and style sheet: type-checked by tsc, bundled and minified by esbuild.
// Every esbuild warning fails the build too, reported with its file and line.
import * as esbuild from 'esbuild';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { BuildError, digestOf, listFiles, read, run, unlessStamped } from './files.mjs';

const WEB = fileURLToPath(new URL('..', import.meta.url));
const ROOT = path.dirname(WEB);
const TSC = path.join(ROOT, 'node_modules', 'typescript', 'bin', 'tsc');
const CONFIGS = ['tsconfig.json', 'tsconfig.sw.json'].map((name) => path.join(WEB, name));
const TARGET = 'es2020'; // as the tsconfig's

/** Type-checks the app and the service worker, unless nothing they read changed since. */
export async function typeCheck(stage) {
  const sources = [...(await listFiles(path.join(WEB, 'src'))).values()].sort();
  const stamp = await digestOf([
    path.join(TSC, '..', '..', 'package.json'),
    ...CONFIGS,
    ...sources,
  ]);
  await unlessStamped(path.join(stage, 'types'), stamp, () =>
    Promise.all(
      CONFIGS.map((config) =>
        run(`type check (${path.relative(ROOT, config)})`, process.execPath, [
          TSC,
          '--noEmit',
          '-p',
          config,
        ]),
      ),
    ),
  );
}

/** The page's script: web/src/app.ts and everything it imports, as one minified module. */
export function bundleApp() {
  return bundle('app.ts', { format: 'esm' });
}

/** The service worker, with `BUILD` (the build's version and files) written into it. */
export function bundleWorker(build) {
  return bundle('sw.ts', { format: 'iife', define: { BUILD: JSON.stringify(build) } });
}

/** A minified copy of a style sheet. */
export async function minifyStyle(file) {
  const css = String(await read(file));
  const sourcefile = path.relative(ROOT, file);
  const result = await esbuild
    .transform(css, { loader: 'css', minify: true, sourcefile, logLevel: 'silent' })
    .catch(reportFailure);
  await failOnWarnings(result);
  return result.code;
}

async function bundle(entry, options) {
  const result = await esbuild
    .build({
      entryPoints: [path.join(WEB, 'src', entry)],
      absWorkingDir: ROOT,
      bundle: true,
      minify: true,
      target: TARGET,
      write: false,
      logLevel: 'silent',
      ...options,
    })
    .catch(reportFailure);
  await failOnWarnings(result);
  return result.outputFiles[0].contents;
}

async function failOnWarnings(result) {
  if (result.warnings.length) throw new BuildError(await describe(result.warnings, 'warning'));
}

async function reportFailure(error) {
  if (!Array.isArray(error?.errors)) throw error;
  throw new BuildError(await describe([...error.errors, ...error.warnings], 'error'));
}

async function describe(messages, kind) {
  const lines = await esbuild.formatMessages(messages, { kind, color: false });
  return `esbuild:\n${lines.join('')}`;
}
