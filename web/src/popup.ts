// Popups over the screen as modal sheets: questions, popup menus, list choices and pickers.
// A popup's confirming button carries what was typed or picked; app.ts reads it through
// popupValueOf when it sends the tap.
import { element } from './dom.js';
import { renderIcon } from './pictures.js';
import type { PopupButton, PopupNode, PickerNode, QuestionNode, WheelNode } from './view.js';

const values = new WeakMap<HTMLElement, () => unknown>();

/** What the control sends along with its tap, if it is a popup's confirming button. */
export function popupValueOf(control: HTMLElement): unknown {
  return values.get(control)?.();
}

export function renderPopup(node: PopupNode): HTMLElement {
  const cover = element('div', 'modal popup-cover');
  cover.dataset.kind = node.kind;
  cover.dataset.source = JSON.stringify(node);
  const sheet = element('div', 'sheet');
  sheet.setAttribute('role', 'dialog');
  sheet.setAttribute('aria-modal', 'true');
  switch (node.kind) {
    case 'question':
      fillQuestion(sheet, node);
      break;
    case 'popupMenu':
      sheet.append(
        ...node.items.map((item) =>
          item.gap ? element('div', 'sheet-gap') : button(item, 'sheet-item'),
        ),
      );
      break;
    case 'listChoice':
      sheet.append(...node.entries.map((entry) => button(entry, 'sheet-item')));
      sheet.append(buttonRow(node.buttons));
      break;
    case 'picker':
      fillPicker(sheet, node);
      break;
  }
  cover.append(sheet);
  return cover;
}

function fillQuestion(sheet: HTMLElement, node: QuestionNode): void {
  sheet.append(
    element('h2', 'message-caption', node.caption),
    element('p', 'message-text', node.text),
  );
  const buttons = node.buttons.map((b) => button(b, 'action'));
  if (node.input !== undefined) {
    const input = element('input', 'sheet-input');
    input.type = 'text';
    input.value = node.input;
    sheet.append(input);
    for (const b of buttons) values.set(b, () => input.value);
  }
  const row = element('div', 'buttons');
  row.append(...buttons);
  sheet.append(row);
}

function fillPicker(sheet: HTMLElement, node: PickerNode): void {
  const header = element('div', 'picker-header');
  const [close, ok] = [
    button(node.buttons[0], 'picker-button picker-close'),
    button(node.buttons[1], 'picker-button picker-ok'),
  ];
  header.append(close, element('h2', 'picker-caption', node.caption), ok);
  sheet.append(header);
  const wheels = node.wheels.map(renderWheel);
  const box = element('div', 'wheels');
  box.append(...wheels.map((w) => w.element));
  sheet.append(box);
  values.set(ok, () => wheels.map((w) => w.position()));
  // Wheels can only be scrolled to their rows once they are laid out.
  requestAnimationFrame(() => wheels.forEach((w) => w.scrollToSelected()));
}

interface Wheel {
  element: HTMLElement;
  position(): number;
  scrollToSelected(): void;
}

/** A scroll list with snap: the row in the middle is the chosen one; a tap centres a row. */
function renderWheel(node: WheelNode): Wheel {
  const wheel = element('div', 'wheel');
  const rows = node.rows.map((text) => element('div', 'wheel-row', text));
  wheel.append(...rows);
  const rowHeight = () => rows[0]?.offsetHeight || 1;
  const centre = (index: number, behavior: ScrollBehavior) =>
    wheel.scrollTo({ top: index * rowHeight(), behavior });
  rows.forEach((row, index) => row.addEventListener('click', () => centre(index, 'smooth')));
  return {
    element: wheel,
    position: () =>
      Math.min(rows.length - 1, Math.max(0, Math.round(wheel.scrollTop / rowHeight()))),
    scrollToSelected: () => centre(node.selected, 'instant'),
  };
}

function button(node: PopupButton, className: string): HTMLButtonElement {
  const b = element('button', className);
  b.type = 'button';
  b.dataset.id = node.id;
  if (node.icon) b.append(renderIcon(node.icon, 'sheet-icon'));
  if (node.caption) b.append(element('span', 'sheet-caption', node.caption));
  return b;
}

function buttonRow(buttons: readonly PopupButton[]): HTMLElement {
  const row = element('div', 'buttons');
  row.append(...buttons.map((b) => button(b, 'action')));
  return row;
}
