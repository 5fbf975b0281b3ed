// Puts a view on screen. Redrawing the same screen (same rows) keeps the scroll position.
import { render } from './render.js';
import type { ViewNode } from './view.js';

export function show(root: HTMLElement, view: ViewNode): void {
  const next = render(view);
  const scroll = next && rowIds(root) === rowIds(next) ? window.scrollY : 0;
  root.replaceChildren(...(next ? [next] : []));
  window.scrollTo(0, scroll);
  if (view.kind === 'page') document.title = view.title;
}

function rowIds(node: ParentNode): string {
  return Array.from(node.querySelectorAll<HTMLElement>('.row'), (row) => row.dataset.id).join('\n');
}
