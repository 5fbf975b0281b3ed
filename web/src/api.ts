// Requests to the server. Every successful answer carries the view to show.
import type { ClientEvent, Screen } from './view.js';

/** The server understood the request and refused it; repeating it will not help. */
export class RefusedError extends Error {}

async function call(path: string, init: RequestInit = {}): Promise<Screen> {
  const response = await fetch(path, { ...init, credentials: 'same-origin', cache: 'no-store' });
  const body: unknown = await response.json().catch(() => null);
  const answer = (body ?? {}) as { view?: Screen; error?: unknown };
  if (response.ok && answer.view) return answer.view;
  if (response.status >= 400 && response.status < 500) {
    throw new RefusedError(typeof answer.error === 'string' ? answer.error : `${response.status}`);
  }
  // A 5xx or a garbled answer is treated like a lost connection: worth retrying.
  throw new Error(`${path}: ${response.status}`);
}

export function fetchView(): Promise<Screen> {
  return call('/api/view');
}

// Browsers refuse a keep-alive request whose body is larger than 64 KiB.
const KEEPALIVE_LIMIT = 60 * 1024;

export function sendEvent(event: ClientEvent): Promise<Screen> {
  const body = JSON.stringify(event);
  return call('/api/event', {
    method: 'POST',
    headers: { 'Content-Type': 'application/json' },
    body,
    // A page being hidden may be closing: its last event still goes out. A picture is too
    // large for that and goes out as a plain request.
    keepalive: body.length < KEEPALIVE_LIMIT,
  });
}
