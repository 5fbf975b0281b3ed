// Controls shared by the screens: buttons that send a tap, a year between two buttons, rows
// that a swipe offers to delete.
import { element } from './dom.js';
import { bindInput, photoDataUrl } from './editor.js';
import type { ButtonNode, YearNode } from './view.js';

/** A button that sends a tap with its id; a disabled one sends nothing. */
export function renderButton(node: ButtonNode): HTMLElement {
  const button = element('button', 'action', node.caption);
  button.type = 'button';
  button.dataset.id = node.id;
  button.disabled = node.enabled === false;
  return button;
}

/** A year between its two buttons, as the diary and the cycle calendar choose it. */
export function renderYear(year: YearNode): HTMLElement {
  const box = element('div', 'diary-year');
  box.append(
    renderButton(year.back),
    element('span', 'diary-year-caption', year.caption),
    renderButton(year.forward),
  );
  return box;
}

const SWIPE_DISTANCE_PX = 40;

/**
 * A swipe to the left reveals the row's delete button; one to the right hides it again. The
 * row owns the sideways gestures that start on it: the page does not follow them (gestures.ts).
 */
export function addSwipeToDelete(row: HTMLElement, target: string, caption: string): void {
  const remove = renderButton({ id: target, caption });
  remove.classList.add('delete');
  row.classList.add('swipeable');
  row.append(remove);
  keepSidewaysTouches(row);
  let startX: number | null = null;
  row.addEventListener('pointerdown', (event) => (startX = event.clientX));
  row.addEventListener('pointerup', (event) => {
    if (startX === null) return;
    const dx = event.clientX - startX;
    startX = null;
    if (Math.abs(dx) >= SWIPE_DISTANCE_PX) row.classList.toggle('swiped', dx < 0);
  });
}

/**
 * A finger moving sideways on the row moves nothing of the browser's: left to it, the move
 * would start a scroll whose fling swallows the next tap, the one on the delete button.
 */
function keepSidewaysTouches(row: HTMLElement): void {
  let x = 0;
  let y = 0;
  row.addEventListener(
    'touchstart',
    (event) => {
      x = event.touches[0]?.clientX ?? 0;
      y = event.touches[0]?.clientY ?? 0;
    },
    { passive: true },
  );
  row.addEventListener(
    'touchmove',
    (event) => {
      const touch = event.touches[0];
      if (touch && event.cancelable && Math.abs(touch.clientX - x) > Math.abs(touch.clientY - y))
        event.preventDefault();
    },
    { passive: false },
  );
}

/** A button that takes a picture from the camera or the album and sends it. */
export function renderPictureInput(caption: string, target: string, camera: boolean): HTMLElement {
  const label = element('label', 'action day-photo-input', caption);
  const input = element('input', 'editor-photo-input');
  input.type = 'file';
  input.accept = 'image/*';
  if (camera) input.setAttribute('capture', 'environment');
  bindInput(input, target, () => {
    const file = input.files?.[0];
    return file ? photoDataUrl(file) : null;
  });
  label.append(input);
  return label;
}
