// The viewport size views are laid out for, and notice of its changes.
import type { ClientEvent } from './view.js';

const SETTLE_MS = 300;

export function viewportEvent(): ClientEvent {
  return { type: 'viewport', width: window.innerWidth, height: window.innerHeight };
}

export function onViewportChange(changed: () => void): void {
  let timer: number | undefined;
  const settle = (): void => {
    window.clearTimeout(timer);
    timer = window.setTimeout(changed, SETTLE_MS);
  };
  window.addEventListener('resize', settle);
  window.addEventListener('orientationchange', settle);
}
