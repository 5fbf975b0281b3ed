// What the browser tests share: starting and stopping the server, and the browser's settings.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import net from 'node:net';

export const CHROMIUM_ARGS = [
  '--headless',
  '--no-sandbox',
  '--disable-gpu',
  '--disable-background-networking',
  '--disable-component-update',
  '--disable-sync',
  '--no-first-run',
  '--disable-quic',
];
export const START_TIMEOUT_MS = 20000;
export const STOP_TIMEOUT_MS = 10000;
export const STEP_TIMEOUT_MS = 10000;

/** A running server process with its output kept for failure reports. */
export function startServer(executable, dataDir, port, lang = 'ru', extraArgs = [], env = process.env, host = '127.0.0.1') {
  const args = ['serve', '--data', dataDir, '--listen', `${host}:${port}`, '--lang', lang, ...extraArgs];
  const child = spawn(executable, args, { stdio: ['ignore', 'pipe', 'pipe'], env });
  const server = { child, log: '', exit: null };
  const keep = (chunk) => (server.log = (server.log + chunk).slice(-8000));
  child.stdout.on('data', keep);
  child.stderr.on('data', keep);
  server.exited = new Promise((resolve) => {
    child.on('error', (error) => {
      server.exit = { error };
      resolve(server.exit);
    });
    child.on('exit', (code, signal) => {
      server.exit = { code, signal };
      resolve(server.exit);
    });
  });
  return server;
}

export function freePort() {
  return new Promise((resolve, reject) => {
    const probe = net.createServer();
    probe.on('error', reject);
    probe.listen(0, '127.0.0.1', () => {
      const { port } = probe.address();
      probe.close(() => resolve(port));
    });
  });
}

export const sleep = (ms) => new Promise((resolve) => setTimeout(resolve, ms));

export function describeExit(exit) {
  return exit.error ? `failed to start: ${exit.error.message}` : `exited (code ${exit.code}, signal ${exit.signal})`;
}

// Probes with the manifest: the first view of a launch belongs to the browser, which is greeted.
export async function waitUntilServing(server, base) {
  const deadline = Date.now() + START_TIMEOUT_MS;
  while (Date.now() < deadline) {
    if (server.exit) throw new Error(`server ${describeExit(server.exit)} before answering`);
    const status = await fetch(`${base}/manifest.webmanifest`).then((r) => r.status, () => 0);
    if (status === 200) return;
    await sleep(100);
  }
  throw new Error(`the server did not answer within ${START_TIMEOUT_MS / 1000} s`);
}

export const PHONE = { viewport: { width: 390, height: 844 }, isMobile: true, hasTouch: true, deviceScaleFactor: 2 };

export async function stopServer(server) {
  server.child.kill('SIGTERM');
  const exit = await Promise.race([server.exited, sleep(STOP_TIMEOUT_MS).then(() => null)]);
  if (!exit) throw new Error(`server still running ${STOP_TIMEOUT_MS / 1000} s after SIGTERM`);
  assert.deepEqual(exit, { code: 0, signal: null }, 'server exit after SIGTERM');
}
