// Turns a view description into DOM. All text shown comes from the description itself.
import { renderBook } from './book.js';
import { addSwipeToDelete, renderButton } from './controls.js';
import { renderCycleCalendar } from './cycle.js';
import { renderDayEditor, renderDiary } from './diary.js';
import { element, modalBox } from './dom.js';
import { renderIcon, renderPicture } from './pictures.js';
import { renderEditor } from './editor.js';
import { renderRing } from './ring.js';
import { renderSchedule } from './schedule.js';
import {
  renderContent,
  renderFacts,
  renderHintPicture,
  renderMovie,
  renderScreens,
} from './week.js';
import type {
  AddressNode,
  ButtonsNode,
  CardNode,
  FingerprintKeyNode,
  ListNode,
  LockNode,
  MessageNode,
  PageNode,
  RingPageNode,
  RowNode,
  SvgNode,
  TextNode,
  TimerNode,
  ViewNode,
  WelcomeNode,
} from './view.js';

export function render(node: ViewNode): HTMLElement | null {
  switch (node.kind) {
    case 'page':
      return renderPage(node);
    case 'list':
      return renderList(node);
    case 'section':
      return element('h2', 'section', node.caption);
    case 'row':
      return renderRow(node);
    case 'welcome':
      return renderWelcome(node);
    case 'text':
      return renderText(node);
    case 'address':
      return renderAddress(node);
    case 'svg':
      return renderSvg(node);
    case 'timer':
      return renderTimer(node);
    case 'buttons':
      return renderButtons(node);
    case 'message':
      return renderMessage(node);
    case 'card':
      return renderCard(node);
    case 'ring':
      return renderRing(node, renderRingPage);
    case 'diary':
      return renderDiary(node);
    case 'cycleCalendar':
      return renderCycleCalendar(node);
    case 'dayEditor':
      return renderDayEditor(node);
    case 'lock':
      return renderLock(node);
    case 'editor':
      return renderEditor(node);
    case 'facts':
      return renderFacts(node);
    case 'screens':
      return renderScreens(node, renderAll);
    case 'movie':
      return renderMovie(node);
    case 'hintPicture':
      return renderHintPicture(node);
    case 'content':
      return renderContent(node);
    case 'schedule':
      return renderSchedule(node);
    case 'book':
      return renderBook(node);
    default:
      return null; // kinds this build does not know are skipped
  }
}

function renderRingPage(page: RingPageNode): HTMLElement {
  switch (page.kind) {
    case 'diary':
      return renderDiary(page);
    case 'cycleCalendar':
      return renderCycleCalendar(page);
    default:
      return renderPage(page);
  }
}

export function renderPage(node: PageNode): HTMLElement {
  const page = element('div', 'page');
  const header = element('header', 'page-header');
  header.append(element('h1', 'page-title', node.title));
  const body = element('main', 'page-body');
  body.append(...renderAll(node.children));
  page.append(header, body);
  return page;
}

function renderList(node: ListNode): HTMLElement {
  const list = element('div', 'list');
  list.setAttribute('role', 'list');
  list.append(...renderAll(node.rows));
  return list;
}

function renderAll(nodes: readonly ViewNode[]): HTMLElement[] {
  return nodes.map(render).filter((child): child is HTMLElement => child !== null);
}

/** A row's badge; one with a target of its own is a button beside the row's own tap. */
function renderBadge(badge: string, target?: string): HTMLElement {
  if (!target) return element('span', 'badge', badge);
  const button = element('button', 'badge week-notice', badge);
  button.type = 'button';
  button.dataset.id = target;
  return button;
}

function renderRow(node: RowNode): HTMLElement {
  const row = element('div', 'row');
  row.dataset.id = node.id;
  row.setAttribute('role', 'listitem');
  if (node.icon) row.append(renderIcon(node.icon, 'icon'));

  // With no caption the comment becomes the main text.
  const caption = node.caption || node.comment || '';
  const text = element('div', 'text');
  text.append(element('div', 'caption', caption));
  if (node.caption && node.comment) text.append(element('div', 'comment', node.comment));
  row.append(text);

  if (node.badge) row.append(renderBadge(node.badge, node.badgeTarget));
  if (node.deleteTarget) addSwipeToDelete(row, node.deleteTarget, node.deleteCaption ?? '');

  // The part a keyboard or screen reader operates: the toggle, or else the text.
  const toggle = typeof node.checked === 'boolean' ? renderSwitch(node.checked, caption) : null;
  const control = toggle ?? text;
  if (toggle) row.append(toggle);
  else text.setAttribute('role', 'button');
  if (node.enabled) {
    control.tabIndex = 0;
  } else {
    row.classList.add('disabled');
    row.setAttribute('aria-disabled', 'true');
    control.setAttribute('aria-disabled', 'true');
  }
  return row;
}

function renderCard(node: CardNode): HTMLElement {
  const card = element('div', node.open ? 'card open' : 'card');
  card.append(
    node.portrait
      ? renderPicture(node.portrait, 'card-picture')
      : renderIcon(node.picture, 'card-picture'),
  );
  const text = element('div', 'card-text');
  const name = element('div', 'card-name', node.name);
  if (node.sex) name.append(renderIcon(node.sex, 'card-sex'));
  text.append(name, ...node.lines.map((line) => element('div', 'card-line', line)));
  card.append(text);
  if (node.id) {
    card.dataset.id = node.id;
    card.setAttribute('role', 'button');
    card.setAttribute('aria-expanded', String(node.open));
    card.tabIndex = 0;
  }
  return card;
}

function renderSwitch(checked: boolean, label: string): HTMLElement {
  const toggle = element('span', 'switch');
  toggle.setAttribute('role', 'switch');
  toggle.setAttribute('aria-checked', String(checked));
  toggle.setAttribute('aria-label', label);
  return toggle;
}

function renderWelcome(node: WelcomeNode): HTMLElement {
  const welcome = element('div', 'welcome');
  welcome.dataset.accent = node.accent;
  const body = element('main', 'welcome-body');
  body.append(
    renderIcon(node.icon, 'welcome-icon'),
    element('h1', 'welcome-caption', node.caption),
  );
  body.append(...renderAll(node.children));
  const footer = element('footer', 'welcome-footer');
  footer.append(renderButton(node.close));
  welcome.append(body, footer);
  return welcome;
}

function renderButtons(node: ButtonsNode): HTMLElement {
  const row = element('div', 'buttons');
  row.append(...node.buttons.map(renderButton));
  return row;
}

function renderMessage(node: MessageNode): HTMLElement {
  const { cover, box } = modalBox('message', 'alertdialog');
  const caption = element('h2', 'message-caption', node.caption);
  caption.id = 'message-caption';
  box.setAttribute('aria-labelledby', caption.id);
  box.append(caption, element('p', 'message-text', node.text));
  box.append(renderButton({ id: node.id, caption: node.button }));
  return cover;
}

const PAD_ORDER = ['1', '2', '3', '4', '5', '6', '7', '8', '9', '', '0', 'delete'];

function renderLock(node: LockNode): HTMLElement {
  const lock = element('div', 'lock');
  const caption = element('h1', 'lock-caption', node.caption);
  caption.setAttribute('aria-live', 'polite');
  if (node.captionColor) caption.style.color = node.captionColor;
  const dots = element('div', 'lock-dots');
  dots.append(...node.dots.map((dot) => renderIcon(dot, 'lock-dot')));
  const pad = element('div', 'lock-pad');
  pad.append(...PAD_ORDER.map((key) => renderPadKey(node, key)));
  lock.append(caption, dots, pad);
  return lock;
}

/** A key of the pad; left of zero stands the fingerprint key when it is offered. */
function renderPadKey(node: LockNode, key: string): HTMLElement {
  if (key === '')
    return node.fingerprint
      ? renderFingerprintKey(node.fingerprint, node.wait)
      : element('span', 'lock-gap');
  const button = element('button', 'lock-key');
  button.type = 'button';
  const erase = key === 'delete';
  button.dataset.id = erase ? node.deleteId : node.digitPrefix + key;
  button.style.backgroundImage = `url(/img/${encodeURIComponent(erase ? node.deleteKey : node.key)})`;
  if (!erase) button.textContent = key;
  else button.setAttribute('aria-label', '⌫');
  button.disabled = node.wait > 0 && !erase;
  return button;
}

function renderFingerprintKey(key: FingerprintKeyNode, wait: number): HTMLElement {
  const button = element('button', 'lock-key lock-fingerprint');
  button.type = 'button';
  button.dataset.id = key.id;
  button.style.backgroundImage = `url(/img/${encodeURIComponent(key.key)})`;
  button.setAttribute('aria-label', key.hint);
  button.disabled = wait > 0;
  return button;
}

function renderText(node: TextNode): HTMLElement {
  const text = element('p', node.regim === undefined ? 'welcome-text' : 'info', node.text);
  if (node.id) text.dataset.info = node.id;
  if (node.regim !== undefined) text.dataset.regim = String(node.regim);
  return text;
}

/** The whole address to read or copy, and a link that hands it to the phone's calendar. */
function renderAddress(node: AddressNode): HTMLElement {
  const url = new URL(node.path, window.location.origin);
  const box = element('div', 'address');
  const field = element('input', 'address-text');
  field.readOnly = true;
  field.value = url.href;
  field.addEventListener('focus', () => field.select());
  const copy = element('button', 'address-copy', node.copy);
  copy.type = 'button';
  copy.addEventListener('click', () => {
    field.select();
    navigator.clipboard?.writeText(url.href).catch(() => document.execCommand('copy'));
  });
  const subscribe = element('a', 'address-subscribe', node.subscribe);
  subscribe.href = `webcal://${url.host}${url.pathname}`;
  box.append(field, copy, subscribe);
  return box;
}

/**
 * The drawing goes into the page itself, so that its texts use the page's web font, which the
 * server measured them with. The server writes only shapes, pictures as data and escaped text;
 * a parser error or a foreign root leaves the slot empty.
 */
function renderSvg(node: SvgNode): HTMLElement {
  const box = element('div', 'chart');
  box.dataset.chart = node.id;
  box.style.width = `${Math.round(node.width)}px`;
  box.style.height = `${Math.round(node.height)}px`;
  const root = new DOMParser().parseFromString(node.svg, 'image/svg+xml').documentElement;
  if (root.namespaceURI === 'http://www.w3.org/2000/svg' && root.localName === 'svg') {
    root.setAttribute('width', '100%');
    root.setAttribute('height', '100%');
    box.append(document.importNode(root, true));
  }
  return box;
}

function renderTimer(node: TimerNode): HTMLElement {
  const timer = element('div', 'timer', node.text);
  timer.setAttribute('role', 'timer');
  timer.classList.toggle('running', node.running);
  timer.hidden = !node.visible;
  return timer;
}
