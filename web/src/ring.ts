// The page ring on screen: the menu at the back, the page waiting behind the front one, and
// the front page, which the finger drags (see gestures.ts).
import { element } from './dom.js';
import type { RingNode, RingPageNode } from './view.js';

export function renderRing(
  node: RingNode,
  renderPage: (page: RingPageNode) => HTMLElement,
): HTMLElement {
  const ring = element('div', 'ring');
  const menu = element('div', 'ring-menu');
  menu.setAttribute('aria-hidden', 'true');
  menu.inert = true;
  menu.append(renderPage(node.menu));
  ring.append(menu);
  if (node.next) {
    const next = element('div', 'ring-next');
    next.setAttribute('aria-hidden', 'true');
    next.inert = true;
    next.append(renderPage(node.next));
    ring.append(next);
  }
  const front = element('div', 'ring-page');
  const page = renderPage(node.page);
  // The way back to the menu is named after it, as the menu's own title.
  const back = element('button', 'to-menu', node.menu.title);
  back.type = 'button';
  back.dataset.id = node.toMenu;
  page.querySelector('.page-header')?.prepend(back);
  front.append(page);
  ring.append(front);
  return ring;
}
