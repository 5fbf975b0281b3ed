// The headless Chromium that renders the pictures at build time and runs the browser tests: the
// system's own, with nothing that reaches out to the network on its own.
import { chromium } from 'playwright-core';

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

export function launchChromium() {
  return chromium.launch({ executablePath: '/usr/bin/chromium', args: CHROMIUM_ARGS });
}
