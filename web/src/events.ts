// The server's push channel: it says when the view changed and sends notices.

export interface PushHandlers {
  refresh(): void;
  notice(caption: string, text: string): void;
  /** A reminder's minute came; the server's box shows it on the screen. */
  reminder(caption: string, text: string): void;
  /** The channel came back after a break, so pushes may have been missed. */
  reconnected(): void;
}

const REOPEN_DELAY_MS = 5000;

export function listen(handlers: PushHandlers): void {
  open(handlers, false);
}

function open(handlers: PushHandlers, broken: boolean): void {
  const source = new EventSource('/api/events');
  source.addEventListener('refresh', () => handlers.refresh());
  source.addEventListener('notice', (event) => {
    const data = parse((event as MessageEvent<string>).data);
    if (data) handlers.notice(data.caption, data.text);
  });
  source.addEventListener('reminder', (event) => {
    const data = parse((event as MessageEvent<string>).data);
    if (data) handlers.reminder(data.caption, data.text);
  });
  source.addEventListener('open', () => {
    if (broken) handlers.reconnected();
    broken = false;
  });
  source.addEventListener('error', () => {
    broken = true;
    // The browser reconnects by itself unless the server answered with an error. The stream
    // is refused to a session the server no longer knows (it restarted): a view request
    // brings a new session before the next try.
    if (source.readyState === EventSource.CLOSED) {
      handlers.refresh();
      setTimeout(() => open(handlers, true), REOPEN_DELAY_MS);
    }
  });
}

function parse(data: string): { caption: string; text: string } | null {
  try {
    const value: unknown = JSON.parse(data);
    const { caption, text } = (value ?? {}) as Record<string, unknown>;
    return typeof caption === 'string' && typeof text === 'string' ? { caption, text } : null;
  } catch {
    return null;
  }
}
