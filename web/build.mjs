// Builds the browser app into OUTDIR: one minified script, the minified style sheet, the static
// files, the fonts as WOFF2 subsets, and the service worker that knows them all.
//   node web/build.mjs OUTDIR
// Re-runs are cheap: type checks and fonts are redone only when their inputs changed, and files
// are written only when their content differs.
import { createHash } from 'node:crypto';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { subsetFonts } from './tools/fonts.mjs';
import { BuildError, listFiles, pruneStale, read, writeIfChanged } from './tools/files.mjs';
import { bundleApp, bundleWorker, minifyStyle, typeCheck } from './tools/scripts.mjs';

const WEB = path.dirname(fileURLToPath(import.meta.url));

async function main() {
  const args = process.argv.slice(2);
  if (args.length !== 1) throw new BuildError('usage: node web/build.mjs OUTDIR');
  const out = path.resolve(args[0]);
  const stage = `${out}.stage`; // what is kept between builds, beside OUTDIR
  const [, fonts, app, statics] = await Promise.all([
    typeCheck(stage),
    subsetFonts(stage),
    bundleApp(),
    staticFiles(),
  ]);

  // Served path (relative to OUTDIR) -> content.
  const files = new Map([['app.js', app], ...statics]);
  for (const [rel, file] of fonts) files.set(rel, await read(file));
  const digest = createHash('sha256');
  for (const [rel, content] of [...files].sort(([a], [b]) => (a < b ? -1 : 1))) {
    digest.update(`${rel}\0`).update(content);
    await writeIfChanged(path.join(out, rel), content);
  }

  const build = {
    version: digest.digest('hex').slice(0, 16),
    assets: [...files.keys()]
      .filter(isShell)
      .sort()
      .map((rel) => (rel === 'index.html' ? '/' : `/${rel}`)),
  };
  await writeIfChanged(path.join(out, 'sw.js'), await bundleWorker(build));
  await pruneStale(out, new Set([...files.keys(), 'sw.js']));
}

/** Whether the page itself loads the file, so that the service worker keeps it. The home-screen
 *  icons are fetched by the browser when it installs the app, and are large: they stay out. */
function isShell(rel) {
  return !(rel.startsWith('icons/') && rel.endsWith('.png'));
}

/** web/static as served: style sheets minified, everything else as it is. */
async function staticFiles() {
  const files = [];
  for (const [rel, file] of await listFiles(path.join(WEB, 'static'))) {
    files.push([rel, rel.endsWith('.css') ? await minifyStyle(file) : await read(file)]);
  }
  return files;
}

main().catch((error) => {
  const message = error instanceof BuildError ? error.message : error.stack;
  console.error(`web build: ${message}`);
  process.exit(1);
});
