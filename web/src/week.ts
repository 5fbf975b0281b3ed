// The nodes of the week, body and baby pages: fact cards, the moving picture of the week, the
// body picture with its named points, and reading matter.
import { element } from './dom.js';
import { renderIcon } from './pictures.js';
import type {
  ContentNode,
  ContentRow,
  FactsNode,
  HintPictureNode,
  MovieNode,
  ScreensNode,
  ViewNode,
} from './view.js';

export function renderFacts(node: FactsNode): HTMLElement {
  const facts = element('div', 'facts');
  for (const fact of node.facts) {
    const card = element('div', 'fact');
    card.append(element('div', 'fact-caption', fact.caption));
    card.append(element('div', 'fact-value', fact.value));
    facts.append(card);
  }
  return facts;
}

/**
 * The screens stand in a column that snaps screen by screen; the dot of the screen in sight is
 * marked, and a tap on a dot brings its screen.
 */
export function renderScreens(
  node: ScreensNode,
  renderAll: (nodes: readonly ViewNode[]) => HTMLElement[],
): HTMLElement {
  const box = element('div', 'screens');
  const column = element('div', 'screens-column');
  const dots = element('div', 'page-control');
  const sections = node.screens.map((screen, i) => {
    const section = element('section', 'screen');
    section.append(...renderAll(screen.children));
    const dot = element('button', 'page-dot');
    dot.setAttribute('aria-label', String(i + 1));
    dot.addEventListener('click', () => section.scrollIntoView({ behavior: 'smooth' }));
    dots.append(dot);
    return section;
  });
  column.append(...sections);
  const mark = () => {
    const shown = Math.round(column.scrollTop / Math.max(1, column.clientHeight));
    [...dots.children].forEach((dot, i) => dot.classList.toggle('current', i === shown));
    box.dataset.screen = String(shown + 1);
  };
  column.addEventListener('scroll', mark, { passive: true });
  mark();
  box.append(column, dots);
  return box;
}

/** Steps through the frames until the picture leaves the page. */
export function renderMovie(node: MovieNode): HTMLElement {
  const movie = renderIcon(node.frames[0] ?? '', 'movie') as HTMLImageElement;
  // The other frames load now, so that no step waits for its picture.
  for (const frame of node.frames.slice(1)) new Image().src = `/img/${encodeURIComponent(frame)}`;
  let frame = 0;
  const timer = window.setInterval(() => {
    if (!movie.isConnected) {
      window.clearInterval(timer);
      return;
    }
    frame = (frame + 1) % node.frames.length;
    movie.src = `/img/${encodeURIComponent(node.frames[frame])}`;
    movie.dataset.frame = String(frame + 1);
  }, node.intervalMs);
  movie.dataset.frame = '1';
  return movie;
}

/**
 * The picture scales to the width; its points are numbered marks that keep their places as
 * shares of its size, named in the list under it, so that no name covers the picture.
 */
export function renderHintPicture(node: HintPictureNode): HTMLElement {
  const box = element('div', 'hint-picture');
  const picture = element('div', 'hint-frame');
  picture.style.aspectRatio = `${node.width} / ${node.height}`;
  picture.append(renderIcon(node.picture, 'hint-image'));
  const legend = element('ol', 'hint-legend');
  node.hints.forEach((hint, i) => {
    const mark = element('span', 'hint', String(i + 1));
    mark.title = hint.name;
    mark.style.left = `${(100 * hint.x) / node.width}%`;
    mark.style.top = `${(100 * hint.y) / node.height}%`;
    picture.append(mark);
    legend.append(element('li', 'hint-name', hint.name));
  });
  box.append(picture, legend);
  return box;
}

function tapTarget(tag: 'button', className: string, target: string, text = ''): HTMLElement {
  const button = element(tag, className, text);
  button.type = 'button';
  button.dataset.id = target;
  return button;
}

/**
 * A row that links elsewhere and has no tick box is a button as a whole; one with a box has the
 * box before its text and an arrow after it.
 */
function renderContentRow(row: ContentRow, highlight: number): HTMLElement {
  const whole = row.link !== undefined && (row.button || row.tick === undefined);
  const line = whole
    ? tapTarget('button', `content-row tp${row.tp} content-link`, row.link ?? '')
    : element('div', `content-row tp${row.tp}`);
  if (row.button) line.classList.add('content-button');
  line.dataset.group = String(row.group);
  if (row.tick !== undefined && row.target) {
    const box = tapTarget('button', 'content-tick', row.target, row.tick === 1 ? '✓' : '');
    box.setAttribute('aria-pressed', String(row.tick === 1));
    line.classList.add('content-check');
    line.classList.toggle('ticked', row.tick === 1);
    line.append(box);
  }
  if (row.pic) line.append(renderIcon(row.pic, row.tp === 6 ? 'content-picture' : 'content-pic'));
  if (row.tp !== 6) line.append(element('span', 'content-text', row.text));
  if (row.link !== undefined && !row.button)
    line.append(
      whole
        ? element('span', 'content-arrow', '›')
        : tapTarget('button', 'content-arrow', row.link, '›'),
    );
  if (row.alpha < 1) line.style.opacity = String(row.alpha);
  if (highlight > 0 && row.group === highlight) line.classList.add('highlight');
  return line;
}

export function renderContent(node: ContentNode): HTMLElement {
  const content = element('div', 'content');
  content.dataset.content = node.id;
  content.append(...node.rows.map((row) => renderContentRow(row, node.highlight)));
  if (node.highlight > 0) {
    // Once on the page, the marked group comes into sight.
    requestAnimationFrame(() =>
      content.querySelector('.highlight')?.scrollIntoView({ block: 'center' }),
    );
  }
  return content;
}
