// A small helper for building elements.

export function element<K extends keyof HTMLElementTagNameMap>(
  tag: K,
  className: string,
  text?: string,
): HTMLElementTagNameMap[K] {
  const node = document.createElement(tag);
  node.className = className;
  if (text !== undefined) node.textContent = text;
  return node;
}

/** A box over the whole screen, which takes the page's touches until it goes. */
export function modalBox(
  className: string,
  role: 'dialog' | 'alertdialog',
): { cover: HTMLElement; box: HTMLElement } {
  const cover = element('div', 'modal');
  const box = element('div', className);
  box.setAttribute('role', role);
  box.setAttribute('aria-modal', 'true');
  cover.append(box);
  return { cover, box };
}
