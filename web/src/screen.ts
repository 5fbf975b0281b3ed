// Puts a view on screen. Redrawing the same screen (same rows) keeps the scroll position.
import { render } from './render.js';
import type { Screen } from './view.js';

export function show(root: HTMLElement, view: Screen): void {
  const next = render(view);
  const scroll = next && rowIds(root) === rowIds(next) ? window.scrollY : 0;
  const message = view.message ? render(view.message) : null;
  root.replaceChildren(...[next, message].filter((node): node is HTMLElement => node !== null));
  window.scrollTo(0, scroll);
  applyTheme(view);
  if (view.kind === 'page') document.title = view.title;
  if (view.kind === 'welcome') document.title = view.caption;
  message?.querySelector<HTMLElement>('button')?.focus();
}

/** The chosen background lies under every screen; its theme colours the texts. */
function applyTheme(view: Screen): void {
  const style = document.body.style;
  if (!view.theme) return;
  style.setProperty('--background-picture', `url(/img/${encodeURIComponent(view.theme.picture)})`);
  style.setProperty('--theme-caption', view.theme.caption);
  style.setProperty('--theme-text', view.theme.text);
  style.setProperty('--theme-accent', view.theme.accent);
  document.body.dataset.background = view.theme.picture;
  document.body.classList.toggle('dark-header', view.theme.darkHeader);
}

function rowIds(node: ParentNode): string {
  return Array.from(node.querySelectorAll<HTMLElement>('.row'), (row) => row.dataset.id).join('\n');
}
