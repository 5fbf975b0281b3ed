// Browser test of the lock's fingerprint key with the browser's virtual platform authenticator.
import assert from 'node:assert/strict';
import * as e2e from './harness.mjs';

const CODE = '2580';
const PASSWORD_SWITCH = 'menu:52';
const KEY = 'button[data-id="lock:fingerprint"]';

// A phone's reader: verifies its user, and the user is always at hand.
async function addReader(page) {
  const cdp = await page.context().newCDPSession(page);
  await cdp.send('WebAuthn.enable');
  const { authenticatorId } = await cdp.send('WebAuthn.addVirtualAuthenticator', {
    options: {
      protocol: 'ctap2',
      transport: 'internal',
      hasResidentKey: true,
      hasUserVerification: true,
      isUserVerified: true,
      automaticPresenceSimulation: true,
    },
  });
  return { cdp, authenticatorId };
}

await e2e.runBrowserTest('fingerprint', async ({ browser, base, outDir, server }) => {
  // Keys are bound to a host name; an address does not take them.
  const site = base.replace('127.0.0.1', 'localhost');
  let reader;
  const { context, page, errors } = await e2e.openPastGreeting(browser, site, {
    prepare: async (p) => {
      reader = await addReader(p);
    },
  });
  const { cdp, authenticatorId } = reader;
  const keysOnReader = async () =>
    (await cdp.send('WebAuthn.getCredentials', { authenticatorId })).credentials.length;

  // Setting a code registers the reader's key.
  await page.tap(`[data-id="${PASSWORD_SWITCH}"]`);
  await e2e.typeCode(page, CODE + CODE);
  await page.waitForSelector('.message');
  await e2e.until('the key to be registered', async () => (await keysOnReader()) === 1);
  await page.tap('.message button');

  // A new browser session is locked; the check that starts at once fails (the finger is not
  // recognised) and the lock stays with the key.
  await cdp.send('WebAuthn.setUserVerified', { authenticatorId, isUserVerified: false });
  await context.clearCookies();
  await page.reload();
  await page.waitForSelector(KEY);
  await e2e.until('the first check to fail', () =>
    /Authentication Failed|User pressed Cancel button/.test(server.log),
  );
  assert.equal(await page.$('.row'), null, 'nothing of the diary behind the lock');
  await e2e.snap(page, outDir, 'fingerprint-key');

  // The key asks again, and the recognised finger opens the diary.
  await cdp.send('WebAuthn.setUserVerified', { authenticatorId, isUserVerified: true });
  await page.tap(KEY);
  await page.waitForSelector('.row[data-id]');
  await e2e.snap(page, outDir, 'fingerprint-open');
  await e2e.closeClean({ context, errors });
});
