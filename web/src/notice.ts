// Boxes with messages pushed by the server; a tap on a box dismisses it.
import { element } from './dom.js';

export function showNotice(caption: string, text: string): void {
  let stack = document.querySelector<HTMLElement>('.notices');
  if (!stack) {
    stack = element('div', 'notices');
    document.body.append(stack);
  }
  const box = element('div', 'notice');
  box.setAttribute('role', 'alert');
  const close = element('span', 'notice-close', '×');
  close.setAttribute('aria-hidden', 'true');
  box.append(close, element('div', 'notice-caption', caption), element('div', 'notice-text', text));
  box.addEventListener('click', () => box.remove());
  stack.append(box);
}
