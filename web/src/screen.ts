// Puts a view on screen. Redrawing the same screen (the same rows, or more) keeps the scroll
// position.
import { carryUnsentInputs } from './editor.js';
import { renderPopup } from './popup.js';
import { render } from './render.js';
import { renderReport } from './report.js';
import type { PopupNode, Screen } from './view.js';

export function show(root: HTMLElement, view: Screen): void {
  const next = render(view);
  // The same rows, or the list grown at either end: the row at the top of the screen stays
  // where it is on the screen.
  const shown = rowIds(root);
  const coming = new Set(next ? rowIds(next) : []);
  const same = shown.length > 0 && shown.every((id) => coming.has(id));
  const anchor = same ? topRow(root) : null;
  const scroll = same || (shown.length === 0 && coming.size === 0) ? window.scrollY : 0;
  const popup = view.popup ? (keptPopup(root, view.popup) ?? renderPopup(view.popup)) : null;
  const message = view.message ? render(view.message) : null;
  const report = view.report ? renderReport(view.report) : null;
  // Taking a kept popup out of the page loses its wheels' places: they are put back.
  const wheels = Array.from(
    popup?.querySelectorAll<HTMLElement>('.wheel') ?? [],
    (w) => [w, w.scrollTop] as const,
  );
  const refocus = next ? carryUnsentInputs(root, next) : null;
  root.replaceChildren(
    ...[next, report, popup, message].filter((node): node is HTMLElement => node !== null),
  );
  refocus?.();
  for (const [wheel, top] of wheels) wheel.scrollTop = top;
  window.scrollTo(0, scroll);
  const anchored = anchor ? reachableRows(root).find((row) => row.dataset.id === anchor.id) : null;
  if (anchor && anchored) window.scrollBy(0, anchored.getBoundingClientRect().top - anchor.top);
  // A new list opens at the row it names, the day edited last or today.
  if (!same)
    root.querySelector<HTMLElement>('[data-scroll-to]')?.scrollIntoView({ block: 'center' });
  applyTheme(view);
  if (view.kind === 'page' || view.kind === 'diary') document.title = view.title;
  if (view.kind === 'welcome') document.title = view.caption;
  (message ?? popup)?.querySelector<HTMLElement>('input, button')?.focus();
}

/**
 * The chosen background lies under every screen; its theme colours the texts. Whether the
 * text is light or dark picks the tint of the translucent surfaces (style.css).
 */
function applyTheme(view: Screen): void {
  const style = document.body.style;
  if (!view.theme) return;
  style.setProperty('--background-picture', `url(/img/${encodeURIComponent(view.theme.picture)})`);
  style.setProperty('--theme-caption', view.theme.caption);
  style.setProperty('--theme-text', view.theme.text);
  style.setProperty('--theme-accent', view.theme.accent);
  document.body.dataset.background = view.theme.picture;
  document.body.dataset.ink = isLight(view.theme.text) ? 'light' : 'dark';
  document.body.classList.toggle('dark-header', view.theme.darkHeader);
}

/** Whether a CSS colour "rgba(r,g,b,a)" is a light one (perceived brightness). */
function isLight(colour: string): boolean {
  const [r = 0, g = 0, b = 0] = (colour.match(/[\d.]+/g) ?? []).map(Number);
  return 0.299 * r + 0.587 * g + 0.114 * b > 127.5;
}

/** The rows the user can reach: those of the pages behind the front one (inert) are left out. */
function reachableRows(node: ParentNode): HTMLElement[] {
  return Array.from(node.querySelectorAll<HTMLElement>('.row')).filter(
    (row) => !row.closest('[inert]'),
  );
}

function rowIds(node: ParentNode): string[] {
  return reachableRows(node).map((row) => row.dataset.id ?? '');
}

/** The first row on the screen, and where its top is. */
function topRow(root: HTMLElement): { id: string; top: number } | null {
  const row = reachableRows(root).find((r) => r.getBoundingClientRect().bottom > 0);
  return row?.dataset.id ? { id: row.dataset.id, top: row.getBoundingClientRect().top } : null;
}

/** The popup on screen if it is the one described: what the user typed or scrolled stays. */
function keptPopup(root: HTMLElement, node: PopupNode): HTMLElement | null {
  const shown = root.querySelector<HTMLElement>(':scope > .popup-cover');
  return shown?.dataset.source === JSON.stringify(node) ? shown : null;
}
