// The field editor: a caption with its two buttons over rows of inputs. A changed input sends
// its field's new value; app.ts reads it through editorValueOf. Rows that open a picker or a
// chooser on the server are plain tap targets.
import { element } from './dom.js';
import { renderIcon } from './pictures.js';
import { RowKind, type EditorNode, type EditorRow } from './view.js';

/** An input the user types in. */
type Typed = HTMLInputElement | HTMLTextAreaElement;

/** Reads an input's value in the form its row keeps ("dd.MM.yyyy", "HH:mm", a number…). */
const readers = new WeakMap<HTMLElement, () => Promise<unknown>>();

export function editorValueOf(input: HTMLElement): Promise<unknown> | undefined {
  return readers.get(input)?.();
}

/**
 * Inputs that the user is still typing in keep what was typed when the server's answer to an
 * earlier change redraws the editor. Returns what gives the redrawn input in use the focus and
 * the selection, to be called as soon as it is on the page so that no key press goes astray.
 */
export function carryUnsentInputs(shown: ParentNode, next: ParentNode): () => void {
  const carried: Array<[Typed, Typed]> = [];
  let refocus = (): void => {};
  for (const input of shown.querySelectorAll<Typed>(
    'input[data-rendered], textarea[data-rendered]',
  )) {
    const field = input.dataset.field;
    const redrawn = field ? next.querySelector<Typed>(`[data-field="${CSS.escape(field)}"]`) : null;
    if (!redrawn) continue;
    if (input.value !== input.dataset.rendered) {
      redrawn.value = input.value;
      carried.push([input, redrawn]);
    }
    if (document.activeElement === input) refocus = keepCaret(input, redrawn);
  }
  carryMovedRulers(shown, next);
  return () => {
    // Read once the old inputs are off the page: taking the one in use away may have sent it.
    for (const [from, to] of carried)
      if (from.dataset.sent !== undefined) to.dataset.sent = from.dataset.sent;
    refocus();
  };
}

/**
 * A ruler moved but not yet at rest has not sent its value: the redrawn one starts where the
 * finger left it, and sends the value once it comes to rest.
 */
function carryMovedRulers(shown: ParentNode, next: ParentNode): void {
  for (const ruler of shown.querySelectorAll<HTMLElement>('.scale-ruler[data-moved]')) {
    const field = ruler.dataset.field;
    const redrawn = field
      ? next.querySelector<HTMLElement>(`.scale-ruler[data-field="${CSS.escape(field)}"]`)
      : null;
    if (redrawn) redrawn.dataset.carried = String(ruler.scrollLeft);
  }
}

function keepCaret(from: Typed, to: Typed): () => void {
  const { selectionStart, selectionEnd, selectionDirection } = from;
  return () => {
    to.focus();
    if (selectionStart !== null && selectionEnd !== null && to.value === from.value) {
      to.setSelectionRange(selectionStart, selectionEnd, selectionDirection ?? undefined);
    }
  };
}

/**
 * Whether a typed input holds a value the server has not been sent. A value carried over a
 * redraw raises no change event when the input is left, so leaving it asks this. (Some
 * browsers send the change as the old input is taken off the page; others never do.)
 */
export function holdsUnsentValue(input: HTMLElement): boolean {
  if (!(input instanceof HTMLInputElement || input instanceof HTMLTextAreaElement)) return false;
  const { rendered, sent } = input.dataset;
  return rendered !== undefined && input.value !== rendered && input.value !== sent;
}

/** Marks what a typed input sent, so that leaving it does not send it twice. */
export function markSent(input: HTMLElement): void {
  if (input instanceof HTMLInputElement || input instanceof HTMLTextAreaElement)
    input.dataset.sent = input.value;
}

export function renderEditor(node: EditorNode): HTMLElement {
  if (node.nested) return renderEditor(node.nested);
  const editor = element('div', 'page editor');
  const header = element('header', 'page-header editor-header');
  header.append(
    actionButton(node.cancel.id, node.cancel.caption, 'editor-cancel'),
    element('h1', 'page-title', node.caption),
    actionButton(node.ok.id, node.ok.caption, 'editor-ok'),
  );
  const body = element('main', 'page-body editor-body');
  body.append(...node.rows.map(renderEditorRow).filter((row): row is HTMLElement => row !== null));
  editor.append(header, body);
  return editor;
}

function actionButton(id: string, caption: string, className: string): HTMLButtonElement {
  const b = element('button', className, caption);
  b.type = 'button';
  b.dataset.id = id;
  return b;
}

function renderEditorRow(row: EditorRow): HTMLElement | null {
  switch (row.tp) {
    case RowKind.line:
      return element('hr', 'editor-line');
    case RowKind.text:
      return element('p', 'editor-text', row.caption);
    case RowKind.bodyIndex:
      return element('p', 'editor-index', row.caption.trim());
    case RowKind.time:
    case RowKind.length:
    case RowKind.entryTime:
      return labelled(row, timeInput(row));
    case RowKind.textInput:
    case RowKind.entryText:
      return labelled(row, textInput(row, 'text'));
    case RowKind.number:
    case RowKind.numberWithIndex:
    case RowKind.entryNumber:
      return labelled(row, textInput(row, 'decimal'));
    case RowKind.longText:
      return labelled(row, longText(row));
    case RowKind.segments:
      return segments(row);
    case RowKind.photo:
      return photo(row);
    case RowKind.scale:
      return labelled(row, scaleRuler(row));
    case RowKind.list:
      return choiceList(row);
    case RowKind.switch:
      return switchRow(row);
    case RowKind.picture:
      return row.pic ? renderIcon(row.pic, 'editor-picture') : null;
    case RowKind.button:
      return row.id ? actionButton(row.id, row.caption, 'editor-button') : null;
    case RowKind.intakeTimes:
      return intakeTimes(row);
    default:
      return row.id ? pickerRow(row) : null;
  }
}

/** A caption over the input, tied to it for screen readers. */
function labelled(row: EditorRow, input: HTMLElement): HTMLElement {
  const label = element('label', 'editor-field');
  if (row.pic) label.append(renderIcon(row.pic, 'editor-field-pic'));
  label.append(element('span', 'editor-caption', row.caption), input);
  if (row.required) label.classList.add('required');
  if (input.classList.contains('scale')) label.classList.add('stacked');
  return label;
}

function bind(input: HTMLElement, row: EditorRow, read: () => unknown): void {
  bindInput(input, row.id, read);
}

/** Makes an input send its value to the target when it changes; read gives the value. */
export function bindInput(
  input: HTMLElement,
  target: string | undefined,
  read: () => unknown,
): void {
  if (target) input.dataset.field = target;
  readers.set(input, async () => read());
}

/** A typed input remembers the value it was drawn with, so that a redraw can tell it was changed. */
export function bindTyped(input: Typed, target: string | undefined, read: () => unknown): void {
  bindInput(input, target, read);
  input.dataset.rendered = input.value;
}

function sourceText(row: EditorRow): string {
  return typeof row.source === 'string' ? row.source : row.source == null ? '' : String(row.source);
}

function timeInput(row: EditorRow): HTMLInputElement {
  const input = element('input', 'editor-input');
  input.type = 'time';
  input.value = sourceText(row);
  bindTyped(input, row.id, () => input.value);
  return input;
}

function textInput(row: EditorRow, mode: 'text' | 'decimal'): HTMLInputElement {
  const input = element('input', 'editor-input');
  input.type = 'text';
  input.inputMode = mode;
  input.value = sourceText(row);
  if (row.editcap) input.placeholder = row.editcap;
  bindTyped(input, row.id, () => input.value);
  return input;
}

function longText(row: EditorRow): HTMLTextAreaElement {
  const area = element('textarea', 'editor-input editor-long');
  area.value = sourceText(row);
  if (row.editcap) area.placeholder = row.editcap;
  bindTyped(area, row.id, () => area.value);
  return area;
}

/** One choice among the captions joined by "|", kept as the chosen one's number. */
function segments(row: EditorRow): HTMLElement {
  const group = element('div', 'editor-segments');
  group.setAttribute('role', 'radiogroup');
  const chosen = Number(row.source ?? 0);
  row.caption.split('|').forEach((caption, n) => {
    const label = element('label', 'segment');
    const radio = element('input', 'segment-input');
    radio.type = 'radio';
    radio.name = row.id ?? 'segments';
    radio.checked = n === chosen;
    bind(radio, row, () => n);
    label.append(radio, element('span', 'segment-caption', caption));
    group.append(label);
  });
  return group;
}

const PHOTO_MAX_SIDE = 2048;
const PHOTO_QUALITY = 0.92;

/** The portrait: a picture to touch, which opens the phone's camera or album. */
function photo(row: EditorRow): HTMLElement {
  const label = element('label', 'editor-photo');
  const picture = renderIcon('clear-photo2.png', 'editor-photo-picture');
  if (row.preview) (picture as HTMLImageElement).src = row.preview;
  label.append(picture);
  const input = element('input', 'editor-photo-input');
  input.type = 'file';
  input.accept = 'image/*';
  bind(input, row, () => {
    const file = input.files?.[0];
    return file ? photoDataUrl(file) : null;
  });
  label.append(input);
  return label;
}

/** The picture upright and no larger than the server needs, as a JPEG data URL. A picture
 *  the browser cannot decode goes as it is, for the server to say why it cannot take it. */
export async function photoDataUrl(file: Blob): Promise<string> {
  const bitmap = await createImageBitmap(file).catch(() => null);
  if (!bitmap) return fileDataUrl(file);
  const scale = Math.min(1, PHOTO_MAX_SIDE / Math.max(bitmap.width, bitmap.height));
  const canvas = document.createElement('canvas');
  canvas.width = Math.round(bitmap.width * scale);
  canvas.height = Math.round(bitmap.height * scale);
  canvas.getContext('2d')?.drawImage(bitmap, 0, 0, canvas.width, canvas.height);
  return canvas.toDataURL('image/jpeg', PHOTO_QUALITY);
}

function fileDataUrl(file: Blob): Promise<string> {
  return new Promise((resolve, reject) => {
    const reader = new FileReader();
    reader.onload = () => resolve(String(reader.result));
    reader.onerror = () => reject(reader.error);
    reader.readAsDataURL(file);
  });
}

/** Entries to tick: one (radio) or many (check boxes); the row keeps the ticked ids. */
function choiceList(row: EditorRow): HTMLElement {
  const list = element('div', 'editor-list');
  if (row.caption) list.append(element('span', 'editor-caption', row.caption));
  const many = row.listtype === 2;
  const boxes: Array<[HTMLInputElement, string]> = [];
  for (const entry of row.listdata ?? []) {
    const label = element('label', 'editor-entry');
    const box = element('input', 'editor-entry-input');
    box.type = many ? 'checkbox' : 'radio';
    box.name = row.id ?? 'list';
    box.checked = entry.checked === true;
    boxes.push([box, entry.id]);
    label.append(box, element('span', 'editor-entry-caption', entry.caption));
    list.append(label);
  }
  for (const [box] of boxes) {
    bind(box, row, () => {
      const ticked = boxes.filter(([b]) => b.checked).map(([, id]) => id);
      return many ? ticked : (ticked[0] ?? '');
    });
  }
  return list;
}

function switchRow(row: EditorRow): HTMLElement {
  const label = element('label', 'editor-switch');
  const box = element('input', 'editor-switch-input');
  box.type = 'checkbox';
  box.setAttribute('role', 'switch');
  box.checked = row.source === '1';
  bind(box, row, () => (box.checked ? '1' : ''));
  label.append(element('span', 'editor-caption', row.caption), box);
  return label;
}

/** A row whose value is picked on the server (wheels, dictionaries): shows it, opens on touch. */
function pickerRow(row: EditorRow): HTMLElement {
  const b = actionButton(row.id ?? '', row.caption, 'editor-picker');
  if (row.pic) b.prepend(renderIcon(row.pic, 'editor-field-pic'));
  const shown = row.shown ?? sourceText(row).split('<td>').join(' ');
  b.append(element('span', 'editor-picker-value', shown));
  return b;
}

/** The hours of a course: one button per time, each picked on its own ("field:pilltime:1"). */
function intakeTimes(row: EditorRow): HTMLElement {
  const group = element('div', 'editor-field editor-times');
  if (row.pic) group.append(renderIcon(row.pic, 'editor-field-pic'));
  group.append(element('span', 'editor-caption', row.caption));
  const times = element('div', 'editor-time-list');
  sourceText(row)
    .split('<td>')
    .filter((time) => time !== '')
    .forEach((time, n) => times.append(actionButton(`${row.id}:${n}`, time, 'editor-time')));
  group.append(times);
  return group;
}

/**
 * The scale: a ruler that slides under a fixed needle, in steps of the scale's kind. Its
 * value goes out when the ruler comes to rest; a place at or below 0 means nothing measured.
 */
function scaleRuler(row: EditorRow): HTMLElement {
  const min = Number(row.scalemin ?? 0);
  const max = Number(row.scalemax ?? 100);
  const step = row.scaletype === 3 ? 0.01 : 0.1;
  const digits = row.scaletype === 3 ? 3 : 1;
  const tick = 8; // pixels between two steps
  const scale = element('div', 'scale');
  const shown = element('output', 'scale-value');
  const ruler = element('div', 'scale-ruler');
  ruler.tabIndex = 0;
  ruler.setAttribute('role', 'slider');
  ruler.setAttribute('aria-valuemin', String(min));
  ruler.setAttribute('aria-valuemax', String(max));
  const track = element('div', 'scale-track');
  track.style.width = `${Math.round((max - min) / step) * tick}px`;
  track.style.setProperty('--tick', `${tick}px`);
  ruler.append(track);
  const valueAt = (): number => min + Math.round(ruler.scrollLeft / tick) * step;
  const showValue = (): void => {
    const v = valueAt();
    shown.textContent = v > 0 ? v.toFixed(digits) : '—';
    ruler.setAttribute('aria-valuenow', v.toFixed(digits));
  };
  const start = Number(sourceText(row)) > 0 ? Number(sourceText(row)) : min;
  // Where the ruler was placed when drawn: only a move away from it is the user's.
  let placedAt = -1;
  requestAnimationFrame(() => {
    const carried = ruler.dataset.carried;
    ruler.scrollLeft = carried !== undefined ? Number(carried) : ((start - min) / step) * tick;
    if (carried === undefined) placedAt = ruler.scrollLeft;
    else ruler.dataset.moved = '';
    showValue();
  });
  ruler.addEventListener('scroll', showValue);
  // Only a value other than the one drawn goes out: placing the ruler at the start sends none.
  let rest: number | undefined;
  let settled = sourceText(row);
  ruler.addEventListener('scroll', () => {
    window.clearTimeout(rest);
    if (ruler.scrollLeft !== placedAt) ruler.dataset.moved = '';
    rest = window.setTimeout(() => {
      delete ruler.dataset.moved;
      const v = valueAt();
      const now = v > 0 ? v.toFixed(digits) : '';
      if (now === settled) return;
      settled = now;
      ruler.dispatchEvent(new Event('change', { bubbles: true }));
    }, 250);
  });
  ruler.addEventListener('keydown', (event) => {
    const by = event.key === 'ArrowRight' ? tick : event.key === 'ArrowLeft' ? -tick : 0;
    if (by !== 0) ruler.scrollLeft += by;
  });
  bind(ruler, row, () => {
    const v = valueAt();
    return v > 0 ? v.toFixed(digits) : '';
  });
  scale.append(shown, ruler, element('div', 'scale-needle'));
  return scale;
}
