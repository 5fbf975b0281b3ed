// The program's pictures and the profiles' portraits, as image elements.
import { element } from './dom.js';

/** One of the program's pictures, by name. */
export function renderIcon(name: string, className: string): HTMLElement {
  return renderPicture(`/img/${encodeURIComponent(name)}`, className);
}

/** A picture at an address of this server. */
export function renderPicture(address: string, className: string): HTMLElement {
  const img = element('img', className);
  img.alt = '';
  // A missing picture leaves its slot empty so the rows stay aligned.
  img.addEventListener('error', () => img.classList.add('broken'), { once: true });
  img.src = address;
  return img;
}
