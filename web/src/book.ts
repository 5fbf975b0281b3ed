// The photo book on screen: the pages as thumbnails while they are drawn, a page opened large,
// a picture page's editor, and the buttons to add a page from a photo, save and close.
import { renderButton, renderPictureInput } from './controls.js';
import { element } from './dom.js';
import { bindTyped } from './editor.js';
import { renderIcon, renderPicture } from './pictures.js';
import type { BookEdit, BookNode, BookPage } from './view.js';

export function renderBook(node: BookNode): HTMLElement {
  const page = element('div', 'page book');
  const header = element('header', 'page-header book-header');
  header.append(renderButton(node.close), element('h1', 'page-title', node.caption));
  header.append(renderButton(node.save));
  const body = element('main', 'page-body book-body');
  const status = element('p', 'book-status', node.status);
  status.setAttribute('aria-live', 'polite');
  if (node.busy) status.append(element('progress', 'book-progress'));
  const add = renderPictureInput(node.addCaption, node.addId, false);
  add.classList.toggle('disabled', node.busy);
  const grid = element('div', 'book-pages');
  grid.setAttribute('role', 'list');
  grid.append(...node.pages.map(renderBookPage));
  body.append(status, grid, add);
  page.append(header, body);
  if (node.large) page.append(renderLarge(node.large));
  if (node.edit) page.append(renderEdit(node.edit));
  return page;
}

function renderBookPage(p: BookPage): HTMLElement {
  const figure = element('figure', 'book-page');
  figure.setAttribute('role', 'listitem');
  const open = element('button', 'book-thumb');
  open.type = 'button';
  open.dataset.id = p.id;
  open.setAttribute('aria-label', p.label);
  const thumb = renderPicture(p.picture, 'book-thumb-picture');
  thumb.setAttribute('loading', 'lazy');
  open.append(thumb);
  figure.append(open, element('figcaption', 'book-page-label', p.label));
  if (p.deleteId) figure.append(iconButton(p.deleteId, 'ne-delete.png', 'book-delete'));
  if (p.editId) figure.append(iconButton(p.editId, 'ne-edit.png', 'book-edit'));
  return figure;
}

function iconButton(id: string, icon: string, className: string): HTMLElement {
  const button = element('button', `book-icon ${className}`);
  button.type = 'button';
  button.dataset.id = id;
  button.append(renderIcon(icon, 'book-icon-picture'));
  return button;
}

function renderLarge(large: NonNullable<BookNode['large']>): HTMLElement {
  const cover = element('div', 'modal book-large');
  const box = element('figure', 'book-large-box');
  box.setAttribute('role', 'dialog');
  box.setAttribute('aria-label', large.label);
  box.append(
    renderPicture(large.picture, 'book-large-picture'),
    element('figcaption', 'book-page-label', large.label),
    renderButton(large.close),
  );
  cover.append(box);
  return cover;
}

function renderEdit(edit: BookEdit): HTMLElement {
  const cover = element('div', 'modal');
  const box = element('div', 'message book-editor');
  box.setAttribute('role', 'dialog');
  box.setAttribute('aria-modal', 'true');
  const photos = element('div', 'book-photos');
  for (const photo of edit.photos) {
    const row = element('div', 'book-photo');
    const tick = element('button', 'book-photo-tick');
    tick.type = 'button';
    tick.dataset.id = photo.id;
    tick.setAttribute('role', 'checkbox');
    tick.setAttribute('aria-checked', String(photo.use));
    tick.append(renderPicture(photo.picture, 'book-photo-picture'));
    row.append(tick);
    if (photo.earlier) row.append(renderButton({ id: photo.earlier, caption: '↑' }));
    photos.append(row);
  }
  const label = element('input', 'editor-input book-label');
  label.type = 'text';
  label.value = edit.label;
  label.placeholder = edit.placeholder;
  bindTyped(label, edit.labelId, () => label.value);
  const layouts = element('div', 'book-layouts');
  layouts.setAttribute('role', 'radiogroup');
  for (const layout of edit.layouts) {
    const choice = element('button', 'book-layout');
    choice.type = 'button';
    choice.dataset.id = layout.id;
    choice.setAttribute('role', 'radio');
    choice.setAttribute('aria-checked', String(layout.chosen));
    choice.append(renderIcon(layout.icon, 'book-layout-picture'));
    layouts.append(choice);
  }
  const buttons = element('div', 'buttons');
  buttons.append(renderButton(edit.cancel), renderButton(edit.ok));
  box.append(
    element('h2', 'message-caption', edit.caption),
    photos,
    label,
    element('p', 'book-layouts-caption', edit.layoutsCaption),
    layouts,
    buttons,
  );
  cover.append(box);
  return cover;
}
