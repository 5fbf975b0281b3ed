// A Chromium of its own that tools speaking the DevTools protocol (Lighthouse) can drive.
import { spawn } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { CHROMIUM_ARGS } from '../../web/tools/chromium.mjs';
import { sleep, START_TIMEOUT_MS, STOP_TIMEOUT_MS } from './harness.mjs';

/**
 * Runs `use(port)` with Chromium listening for the DevTools protocol on `port`, in a fresh
 * profile that is removed afterwards.
 */
export async function withDevtoolsChromium(use) {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'ladaneya-e2e-chromium-'));
  const args = [
    ...CHROMIUM_ARGS,
    '--remote-debugging-port=0',
    `--user-data-dir=${profile}`,
    'about:blank',
  ];
  // A group of its own, so that its helper processes end with it.
  const child = spawn('/usr/bin/chromium', args, { stdio: 'ignore', detached: true });
  const signal = (name) => {
    try {
      process.kill(-child.pid, name);
    } catch {} // the group has already gone
  };
  const exited = new Promise((resolve) => child.on('exit', resolve).on('error', resolve));
  try {
    return await use(await debuggingPort(profile, exited));
  } finally {
    signal('SIGTERM');
    await Promise.race([exited, sleep(STOP_TIMEOUT_MS)]);
    signal('SIGKILL'); // what is left of the group
    fs.rmSync(profile, { recursive: true, force: true, maxRetries: 10, retryDelay: 100 });
  }
}

/** The port Chromium chose, which it writes into its profile once it listens. */
async function debuggingPort(profile, exited) {
  let gone = false;
  exited.then(() => (gone = true));
  const file = path.join(profile, 'DevToolsActivePort');
  const deadline = Date.now() + START_TIMEOUT_MS;
  while (Date.now() < deadline && !gone) {
    const text = fs.existsSync(file) ? fs.readFileSync(file, 'utf8') : '';
    const port = Number.parseInt(text.split('\n')[0], 10);
    if (port > 0) return port;
    await sleep(100);
  }
  throw new Error(
    gone ? 'chromium exited before listening' : 'chromium did not open its DevTools port',
  );
}
