// Entry point: loads the view, sends the user's taps, follows the server's pushes.
// When the server cannot be reached the last view stays up and loading is retried quietly.
import { type Answer, fetchView, RefusedError, sendEvent } from './api.js';
import { listen } from './events.js';
import { authenticatorEvent, runCeremonies } from './fingerprint.js';
import { showNotice } from './notice.js';
import { askForNotifications, notifyReminder } from './reminders.js';
import { followDrags, followTilt } from './gestures.js';
import { editorValueOf, holdsUnsentValue, markSent } from './editor.js';
import { popupValueOf } from './popup.js';
import { show } from './screen.js';
import { registerWorker } from './update.js';
import type { ClientEvent } from './view.js';
import { onViewportChange, viewportEvent } from './viewport.js';

const RETRY_FIRST_MS = 1000;
const RETRY_MAX_MS = 30000;

const root = document.getElementById('app') ?? document.body;
// The place of the answer on screen: answers made before it are dropped.
let shown = { run: '', seq: 0 };
let viewportSent = false;
let activated = false;
let pendingTaps = 0; // taps sent or waiting: they go out one by one, in order
let tiltOn = false;
let listening = false;
let retryDelay = RETRY_FIRST_MS;
let retryTimer: number | undefined;

/** Runs a request whose answer is a view and shows it. Resolves to whether the server answered. */
async function request(load: () => Promise<Answer>): Promise<boolean> {
  try {
    const { view, run, seq } = await load();
    // The first answer of a server that started again is shown whatever its number.
    if (run !== shown.run || seq > shown.seq) {
      shown = { run, seq };
      show(root, view);
      tiltOn = view.tilt === true;
      runCeremonies(view, send);
    }
    retryDelay = RETRY_FIRST_MS;
    startListening();
    return true;
  } catch (error) {
    if (error instanceof RefusedError) console.warn(error.message);
    else retryLater();
    return false;
  }
}

/** Brings the screen up to date with the server, telling it the viewport size if it lacks it. */
async function sync(): Promise<void> {
  if ((await request(fetchView)) && !viewportSent) {
    viewportSent = await send(viewportEvent());
  }
  if (viewportSent && !activated) activated = await activate();
}

/** The page came up: the shortcut it was opened with waits for this first activation. */
async function activate(): Promise<boolean> {
  const url = new URL(window.location.href);
  const shortcut = url.searchParams.get('shortcut');
  if (shortcut !== null) {
    url.searchParams.delete('shortcut');
    window.history.replaceState(null, '', url);
    await send({ type: 'shortcut', name: shortcut });
  }
  await send(await authenticatorEvent());
  return send({ type: 'visible' });
}

function send(event: ClientEvent): Promise<boolean> {
  return request(() => sendEvent(event));
}

function retryLater(): void {
  if (retryTimer !== undefined) return;
  retryTimer = window.setTimeout(() => {
    retryTimer = undefined;
    void sync();
  }, retryDelay);
  retryDelay = Math.min(retryDelay * 2, RETRY_MAX_MS);
}

// The push channel opens only once a request has succeeded, so that it joins the session
// cookie the server set rather than starting a session of its own.
function startListening(): void {
  if (listening) return;
  listening = true;
  listen({
    refresh: () => void request(fetchView),
    notice: showNotice,
    reminder: (caption, text) => void notifyReminder(caption, text),
    reconnected: () => void sync(),
  });
}

let tapChain: Promise<unknown> = Promise.resolve();

/** Queues the user's event behind those still under way, so quick taps (a code typed fast)
 *  and changed inputs all arrive, in order; one the new screen no longer has is refused by
 *  the server. */
function queue(event: () => Promise<ClientEvent>): void {
  pendingTaps += 1;
  root.classList.add('busy');
  tapChain = tapChain
    .then(async () => send(await event()))
    // An input that cannot be read sends nothing, and the events behind it still go.
    .catch((error: unknown) => console.warn(error))
    .finally(() => {
      pendingTaps -= 1;
      if (pendingTaps === 0) root.classList.remove('busy');
    });
}

function tap(control: HTMLElement): void {
  const id = control.dataset.id;
  if (id === undefined || control.classList.contains('disabled')) return;
  askForNotifications(id);
  const value = popupValueOf(control);
  queue(async () =>
    value === undefined ? { type: 'tap', target: id } : { type: 'tap', target: id, value },
  );
}

/** An editor's input that the user changed sends its field's new value. */
function changed(input: HTMLElement): void {
  const target = input.dataset.field;
  const value = editorValueOf(input);
  if (target === undefined || value === undefined) return;
  markSent(input);
  queue(async () => ({ type: 'change', target, value: await value }));
}

/** The row or button that a click or key press is meant for. */
function controlOf(target: EventTarget | null): HTMLElement | null {
  return target instanceof Element
    ? target.closest<HTMLElement>('.row, .card[data-id], button[data-id]')
    : null;
}

root.addEventListener('click', (event) => {
  const control = controlOf(event.target);
  if (control) tap(control);
});
// Inputs marked submit-only (the search) send on their form's submission alone.
root.addEventListener('change', (event) => {
  if (event.target instanceof HTMLElement && event.target.dataset.submitOnly === undefined) {
    changed(event.target);
  }
});
root.addEventListener('submit', (event) => {
  event.preventDefault();
  const input =
    event.target instanceof HTMLFormElement
      ? event.target.querySelector<HTMLElement>('[data-field]')
      : null;
  if (input) changed(input);
});
root.addEventListener('focusout', (event) => {
  const input = event.target;
  if (
    input instanceof HTMLElement &&
    input.dataset.submitOnly === undefined &&
    holdsUnsentValue(input)
  )
    changed(input);
});
root.addEventListener('keydown', (event) => {
  const control = controlOf(event.target);
  // Buttons turn Enter and Space into clicks themselves.
  if (control && control.tagName !== 'BUTTON' && (event.key === 'Enter' || event.key === ' ')) {
    event.preventDefault();
    tap(control);
  }
});
// Showing and hiding the page is what activates and deactivates the program.
document.addEventListener('visibilitychange', () => {
  if (!activated) return;
  void send({ type: document.visibilityState === 'visible' ? 'visible' : 'hidden' });
});
onViewportChange(() => {
  viewportSent = false;
  void sync();
});
window.addEventListener('online', () => void sync());
followDrags(root, (offset, width) => void send({ type: 'drag', offset, width }));
followTilt(
  () => tiltOn && pendingTaps === 0,
  (x, upsideDown) => void send({ type: 'tilt', x, upsideDown }),
);
registerWorker();
void sync();
