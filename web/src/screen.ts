// Puts a view on screen. Redrawing the same screen (same rows) keeps the scroll position.
import { render } from './render.js';
import type { Screen } from './view.js';

export function show(root: HTMLElement, view: Screen): void {
  const next = render(view);
  const scroll = next && rowIds(root) === rowIds(next) ? window.scrollY : 0;
  const message = view.message ? render(view.message) : null;
  root.replaceChildren(...[next, message].filter((node): node is HTMLElement => node !== null));
  window.scrollTo(0, scroll);
  if (view.kind === 'page') document.title = view.title;
  if (view.kind === 'welcome') document.title = view.caption;
  message?.querySelector<HTMLElement>('button')?.focus();
}

function rowIds(node: ParentNode): string {
  return Array.from(node.querySelectorAll<HTMLElement>('.row'), (row) => row.dataset.id).join('\n');
}
