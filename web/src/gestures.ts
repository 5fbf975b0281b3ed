// Gestures that move between pages: dragging the front page sideways, and tilting the device.
// The browser only moves the page under the finger; the server decides where it lands.

const DRAG_START_PX = 12; // a shorter move is a tap
const TILT_INTERVAL_MS = 300;
const GRAVITY = 9.81;

/** Drags of the front page: calls `ended` with how far its left edge moved and the width. */
export function followDrags(
  root: HTMLElement,
  ended: (offset: number, width: number) => void,
): void {
  let startX = 0;
  let startY = 0;
  let page: HTMLElement | null = null;
  let dragging = false;
  let draggedJustNow = false;

  // The click that follows a drag must not tap what lies under the finger.
  root.addEventListener(
    'click',
    (click) => {
      if (draggedJustNow) click.stopPropagation();
      draggedJustNow = false;
    },
    { capture: true },
  );
  root.addEventListener('pointerdown', (event) => {
    draggedJustNow = false;
    // A row that is swiped to delete keeps its gesture to itself.
    const target = event.target instanceof Element ? event.target : null;
    page =
      target && !target.closest('.swipeable') ? target.closest<HTMLElement>('.ring-page') : null;
    startX = event.clientX;
    startY = event.clientY;
    dragging = false;
  });
  root.addEventListener('pointermove', (event) => {
    if (!page) return;
    const dx = event.clientX - startX;
    if (!dragging) {
      // Vertical moves scroll the page; only a mainly sideways move drags it.
      if (Math.abs(dx) < DRAG_START_PX || Math.abs(dx) < Math.abs(event.clientY - startY)) return;
      dragging = true;
      page.setPointerCapture(event.pointerId);
      page.classList.add('dragging');
    }
    page.style.transform = `translateX(${dx}px)`;
  });
  const finish = (event: PointerEvent): void => {
    if (!page) return;
    const moved = page;
    page = null;
    if (!dragging) return;
    moved.classList.remove('dragging');
    moved.style.transform = '';
    draggedJustNow = true;
    ended(event.clientX - startX, root.clientWidth || window.innerWidth);
  };
  root.addEventListener('pointerup', finish);
  root.addEventListener('pointercancel', () => {
    if (page) page.style.transform = '';
    page = null;
    dragging = false;
  });
}

/** Sideways acceleration in g every 0.3 s while `wanted` says tilting moves pages. */
export function followTilt(
  wanted: () => boolean,
  sample: (x: number, upsideDown: boolean) => void,
): void {
  if (typeof DeviceMotionEvent === 'undefined') return;
  let last = 0;
  window.addEventListener('devicemotion', (event) => {
    const x = event.accelerationIncludingGravity?.x;
    if (x === null || x === undefined || !wanted()) return;
    const now = performance.now();
    if (now - last < TILT_INTERVAL_MS) return;
    last = now;
    sample(x / GRAVITY, screen.orientation?.angle === 180);
  });
}
