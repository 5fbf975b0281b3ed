// The diary on screen: the list of days with its search, year and sections, and the editor of
// one day. The list comes a window at a time: when an end of it comes near, it asks for more.
import { addSwipeToDelete, renderButton, renderPictureInput, renderYear } from './controls.js';
import { renderCycleMark } from './cycle.js';
import { element } from './dom.js';
import { bindTyped } from './editor.js';
import { renderIcon, renderPicture } from './pictures.js';
import type {
  DayCellNode,
  DayEditorNode,
  DayLine,
  DayRow,
  DiaryNode,
  DiarySectionNode,
} from './view.js';

export function renderDiary(node: DiaryNode): HTMLElement {
  const page = element('div', 'page diary');
  const header = element('header', 'page-header');
  const add = renderButton({ id: node.add, caption: '+' });
  add.classList.add('diary-add');
  add.setAttribute('aria-label', node.title);
  header.append(element('h1', 'page-title', node.title), add);
  const tools = element('div', 'diary-tools');
  if (node.year) tools.append(renderYear(node.year));
  tools.append(renderSearch(node));
  const body = element('main', 'page-body diary-days');
  if (node.message) body.append(element('p', 'diary-message', node.message));
  if (node.earlier) body.append(moreSentinel(node.earlier));
  body.append(...node.items.map((item) => renderItem(item, node.scrollTo)));
  if (node.more) body.append(moreSentinel(node.more));
  page.append(header, tools, body);
  return page;
}

/** The search runs on its button (or Enter) and on cancel, never on each key. */
function renderSearch(node: DiaryNode): HTMLElement {
  const form = element('form', 'diary-search');
  form.setAttribute('role', 'search');
  const input = element('input', 'diary-search-input');
  input.type = 'search';
  input.value = node.search;
  input.placeholder = node.searchHint;
  input.setAttribute('aria-label', node.searchHint);
  input.dataset.submitOnly = '';
  bindTyped(input, node.searchTarget, () => input.value);
  const run = element('button', 'diary-search-run', '⌕');
  run.type = 'submit';
  run.setAttribute('aria-label', node.searchHint);
  const cancel = element('button', 'diary-search-cancel', '✕');
  cancel.type = 'button';
  cancel.hidden = node.search === '';
  cancel.addEventListener('click', () => {
    input.value = '';
    form.requestSubmit();
  });
  form.append(input, run, cancel);
  return form;
}

function renderItem(item: DiarySectionNode | DayCellNode, scrollTo: string): HTMLElement {
  if (item.kind === 'diarySection') {
    const heading = element('h2', 'diary-section', item.caption);
    if (item.span) heading.append(element('span', 'diary-section-span', item.span));
    return heading;
  }
  return renderCell(item, item.id === scrollTo);
}

function renderCell(cell: DayCellNode, scrollTarget: boolean): HTMLElement {
  const row = element('div', 'row day-cell');
  row.dataset.id = cell.id;
  row.setAttribute('role', 'listitem');
  row.classList.toggle('today', cell.today);
  row.classList.toggle('illness', cell.illness);
  if (scrollTarget) row.dataset.scrollTo = '';
  const date = element('div', 'day-date');
  date.append(element('div', 'day-number', cell.day), element('div', 'day-weekday', cell.weekday));
  if (cell.state) date.append(element('div', 'day-state', cell.state));
  if (cell.cycle) date.append(renderCycleMark(cell.cycle));
  const rows = element('div', 'day-rows');
  rows.append(...cell.rows.map((r) => renderDayRow(r, 'div')));
  row.append(date, rows);
  if (cell.photo) {
    const photo = renderPicture(cell.photo, 'day-thumbnail');
    (photo as HTMLImageElement).loading = 'lazy';
    row.append(photo);
  }
  const text = rows;
  text.setAttribute('role', 'button');
  text.tabIndex = 0;
  addSwipeToDelete(row, cell.deleteTarget, cell.deleteCaption);
  return row;
}

/** A field of a day: its icon, then its text or its lines with their times. */
function renderDayRow(r: DayRow, tag: 'div' | 'button'): HTMLElement {
  const row = element(tag, 'day-row');
  if (r.icon) row.append(renderIcon(r.icon, 'day-row-icon'));
  const body = element('div', 'day-row-body');
  if (r.text) body.append(element('div', 'day-row-text', r.text));
  if (r.lines.length > 0) {
    const lines = element('div', 'day-lines');
    lines.append(...r.lines.map(renderLine));
    body.append(lines);
  }
  row.append(body);
  return row;
}

function renderLine(line: DayLine): HTMLElement {
  const item = line.id ? element('button', 'day-line') : element('div', 'day-line');
  if (item instanceof HTMLButtonElement) {
    item.type = 'button';
    item.dataset.id = line.id;
  }
  item.append(
    element('span', 'day-line-time', line.time),
    element('span', 'day-line-text', line.text),
  );
  return item;
}

/** An end of the list: scrolled near, it asks once for the days beyond it. */
function moreSentinel(target: string): HTMLElement {
  const more = element('button', 'diary-more', '…');
  more.type = 'button';
  more.dataset.id = target;
  const watch = new IntersectionObserver(
    (entries) => {
      if (!entries.some((entry) => entry.isIntersecting)) return;
      watch.disconnect();
      more.click();
    },
    { rootMargin: '600px 0px' },
  );
  requestAnimationFrame(() => watch.observe(more));
  return more;
}

export function renderDayEditor(node: DayEditorNode): HTMLElement {
  const page = element('div', 'page day-editor');
  const header = element('header', 'page-header day-editor-header');
  const prev = renderButton(node.prev);
  const next = renderButton(node.next);
  const date = renderButton(node.date);
  date.classList.add('day-editor-date');
  const close = renderButton(node.close);
  close.classList.add('editor-ok');
  header.append(prev, date, next, close);
  const body = element('main', 'page-body day-editor-body');
  body.append(...node.rows.map(renderField), renderPhoto(node.photo));
  page.append(header, body);
  return page;
}

/** A field of the day editor: a row to touch, or a number typed in place. */
function renderField(r: DayRow): HTMLElement {
  if (r.number !== undefined) {
    const label = element('label', 'day-field day-number-field');
    if (r.icon) label.append(renderIcon(r.icon, 'day-row-icon'));
    label.append(element('span', 'day-field-caption', r.caption));
    const input = element('input', 'editor-input day-number-input');
    input.type = 'text';
    input.inputMode = 'decimal';
    input.value = r.number;
    bindTyped(input, r.id, () => input.value);
    label.append(input);
    return label;
  }
  const row = element('div', 'row day-field');
  if (r.id) row.dataset.id = r.id;
  if (!r.enabled) {
    row.classList.add('disabled');
    row.setAttribute('aria-disabled', 'true');
  } else {
    row.tabIndex = 0;
    row.setAttribute('role', 'button');
  }
  const shown = renderDayRow(r, 'div');
  shown.querySelector('.day-row-body')?.prepend(element('div', 'day-field-caption', r.caption));
  row.append(shown);
  return row;
}

/** The day's photograph: the camera, the album, or none. */
function renderPhoto(photo: DayEditorNode['photo']): HTMLElement {
  const box = element('div', 'day-photo');
  box.append(element('div', 'day-field-caption', photo.caption));
  if (photo.picture) box.append(renderPicture(photo.picture, 'day-photo-picture'));
  else box.append(renderIcon('clear-photo2.png', 'day-photo-picture'));
  const buttons = element('div', 'buttons day-photo-buttons');
  buttons.append(
    renderPictureInput(photo.camera.caption, photo.change, true),
    renderPictureInput(photo.album.caption, photo.change, false),
    renderButton(photo.clear),
  );
  box.append(buttons);
  return box;
}
