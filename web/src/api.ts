// Requests to the server. Every successful answer carries the view to show.
import type { ClientEvent, Screen } from './view.js';

/** A view and its place among the server's answers: `seq` grows with every request the server
 *  takes during one `run`, so that answers arriving out of order can be put back in order. */
export interface Answer {
  view: Screen;
  run: string;
  seq: number;
}

/** The server understood the request and refused it; repeating it will not help. */
export class RefusedError extends Error {}

async function call(path: string, init: RequestInit = {}): Promise<Answer> {
  const response = await fetch(path, { ...init, credentials: 'same-origin', cache: 'no-store' });
  const body: unknown = await response.json().catch(() => null);
  const answer = (body ?? {}) as Partial<Answer> & { error?: unknown };
  const { view, run, seq } = answer;
  if (response.ok && view && typeof run === 'string' && typeof seq === 'number')
    return { view, run, seq };
  if (response.status >= 400 && response.status < 500) {
    throw new RefusedError(typeof answer.error === 'string' ? answer.error : `${response.status}`);
  }
  // A 5xx or a garbled answer is treated like a lost connection: worth retrying.
  throw new Error(`${path}: ${response.status}`);
}

export function fetchView(): Promise<Answer> {
  return call('/api/view');
}

// Browsers refuse a keep-alive request whose body is larger than 64 KiB.
const KEEPALIVE_LIMIT = 60 * 1024;

export function sendEvent(event: ClientEvent): Promise<Answer> {
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
