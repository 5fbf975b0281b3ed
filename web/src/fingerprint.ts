// The fingerprint key of the lock, through the browser's platform authenticator. The server
// puts a one-time challenge in the view; the browser runs the ceremony once per challenge and
// sends back what the authenticator answered. All checking is the server's.
import type { AssertionRequest, ClientEvent, RegistrationRequest, Screen } from './view.js';

type Send = (event: ClientEvent) => Promise<unknown>;

const started = new Set<string>(); // challenges whose ceremony has run

function bytes(text: string): ArrayBuffer {
  const standard = text.replace(/-/g, '+').replace(/_/g, '/');
  const binary = atob(standard + '='.repeat((4 - (standard.length % 4)) % 4));
  return Uint8Array.from(binary, (c) => c.charCodeAt(0)).buffer;
}

function text(buffer: ArrayBuffer): string {
  let binary = '';
  for (const b of new Uint8Array(buffer)) binary += String.fromCharCode(b);
  return btoa(binary).replace(/\+/g, '-').replace(/\//g, '_').replace(/=+$/, '');
}

function errorName(error: unknown): string {
  return error instanceof DOMException ? error.name : 'UnknownError';
}

/** Whether this browser has a reader that verifies its user; said once to the server. */
export async function authenticatorEvent(): Promise<ClientEvent> {
  const credential = window.PublicKeyCredential as typeof PublicKeyCredential | undefined;
  const available =
    typeof credential?.isUserVerifyingPlatformAuthenticatorAvailable === 'function'
      ? await credential.isUserVerifyingPlatformAuthenticatorAvailable().catch(() => false)
      : false;
  return { type: 'authenticator', available };
}

async function assert(request: AssertionRequest): Promise<ClientEvent> {
  try {
    const credential = (await navigator.credentials.get({
      publicKey: {
        challenge: bytes(request.challenge),
        rpId: request.rpId,
        allowCredentials: request.allow.map((id) => ({ type: 'public-key', id: bytes(id) })),
        userVerification: 'required',
        timeout: request.timeout,
      },
    })) as PublicKeyCredential | null;
    if (!credential) return { type: 'fingerprint', error: 'NotAllowedError' };
    const response = credential.response as AuthenticatorAssertionResponse;
    return {
      type: 'fingerprint',
      id: text(credential.rawId),
      clientDataJSON: text(response.clientDataJSON),
      authenticatorData: text(response.authenticatorData),
      signature: text(response.signature),
    };
  } catch (error) {
    return { type: 'fingerprint', error: errorName(error) };
  }
}

async function register(request: RegistrationRequest): Promise<ClientEvent> {
  try {
    const credential = (await navigator.credentials.create({
      publicKey: {
        challenge: bytes(request.challenge),
        rp: { id: request.rpId, name: request.rpName },
        user: { id: bytes(request.userId), name: request.userName, displayName: request.userName },
        pubKeyCredParams: [
          { type: 'public-key', alg: -7 },
          { type: 'public-key', alg: -257 },
        ],
        authenticatorSelection: {
          authenticatorAttachment: 'platform',
          residentKey: 'discouraged',
          userVerification: 'required',
        },
        attestation: 'none',
        timeout: request.timeout,
      },
    })) as PublicKeyCredential | null;
    if (!credential) return { type: 'fingerprintRegister', error: 'NotAllowedError' };
    const response = credential.response as AuthenticatorAttestationResponse;
    return {
      type: 'fingerprintRegister',
      clientDataJSON: text(response.clientDataJSON),
      attestationObject: text(response.attestationObject),
    };
  } catch (error) {
    return { type: 'fingerprintRegister', error: errorName(error) };
  }
}

/** Runs the ceremony the view asks for, once per challenge. */
export function runCeremonies(view: Screen, send: Send): void {
  const check = view.kind === 'lock' ? view.fingerprint?.request : undefined;
  if (check && !started.has(check.challenge)) {
    started.add(check.challenge);
    void assert(check).then(send);
  }
  const enrol = view.fingerprintRegister;
  if (enrol && !started.has(enrol.challenge)) {
    started.add(enrol.challenge);
    void register(enrol).then(send);
  }
}
