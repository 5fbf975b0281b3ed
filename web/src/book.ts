// The photo book on screen: the pages as thumbnails while they are drawn, a page opened large,
// a picture page's editor, and the buttons to add a page from a photo, save and close.
import { renderButton, renderPictureInput } from './controls.js';
import { element, modalBox } from './dom.js';
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

/** A picture that sends a tap; one of a choice tells whether it is chosen. */
function pictureButton(
  id: string,
  className: string,
  picture: HTMLElement,
  choice?: { role: 'checkbox' | 'radio'; checked: boolean },
): HTMLElement {
  const button = element('button', className);
  button.type = 'button';
  button.dataset.id = id;
  if (choice) {
    button.setAttribute('role', choice.role);
    button.setAttribute('aria-checked', String(choice.checked));
  }
  button.append(picture);
  return button;
}

function renderBookPage(p: BookPage): HTMLElement {
  const figure = element('figure', 'book-page');
  figure.setAttribute('role', 'listitem');
  const thumb = renderPicture(p.picture, 'book-thumb-picture');
  thumb.setAttribute('loading', 'lazy');
  const open = pictureButton(p.id, 'book-thumb', thumb);
  open.setAttribute('aria-label', p.label);
  figure.append(open, element('figcaption', 'book-page-label', p.label));
  if (p.deleteId) figure.append(iconButton(p.deleteId, 'ne-delete.png', 'book-delete'));
  if (p.editId) figure.append(iconButton(p.editId, 'ne-edit.png', 'book-edit'));
  return figure;
}

function iconButton(id: string, icon: string, className: string): HTMLElement {
  return pictureButton(id, `book-icon ${className}`, renderIcon(icon, 'book-icon-picture'));
}

function renderLarge(large: NonNullable<BookNode['large']>): HTMLElement {
  const { cover, box } = modalBox('book-large-box', 'dialog');
  cover.classList.add('book-large');
  box.setAttribute('aria-label', large.label);
  box.append(
    renderPicture(large.picture, 'book-large-picture'),
    element('p', 'book-page-label', large.label),
    renderButton(large.close),
  );
  return cover;
}

function renderEdit(edit: BookEdit): HTMLElement {
  const { cover, box } = modalBox('message book-editor', 'dialog');
  const photos = element('div', 'book-photos');
  for (const photo of edit.photos) {
    const row = element('div', 'book-photo');
    const picture = renderPicture(photo.picture, 'book-photo-picture');
    row.append(
      pictureButton(photo.id, 'book-photo-tick', picture, { role: 'checkbox', checked: photo.use }),
    );
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
  layouts.append(
    ...edit.layouts.map((layout) =>
      pictureButton(layout.id, 'book-layout', renderIcon(layout.icon, 'book-layout-picture'), {
        role: 'radio',
        checked: layout.chosen,
      }),
    ),
  );
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
  return cover;
}
