// The woman's cycle on screen: a day's mark in its diary cell, and the calendar of a year with
// each day in the colour of its phase.
import { renderButton, renderYear } from './controls.js';
import { element } from './dom.js';
import type { CycleCalendarNode, CycleDay, CycleMark, CyclePhase } from './view.js';

function phaseClasses(box: HTMLElement, phase: CyclePhase, open: boolean): void {
  if (phase) box.classList.add(`phase-${phase}`);
  box.classList.toggle('phase-open', open);
}

/** The mark of a diary cell: the day of the cycle in its phase's colour, a way to the calendar. */
export function renderCycleMark(mark: CycleMark): HTMLElement {
  const button = renderButton({ id: mark.target, caption: mark.caption });
  button.className = 'cycle-mark';
  phaseClasses(button, mark.phase, mark.open);
  return button;
}

export function renderCycleCalendar(node: CycleCalendarNode): HTMLElement {
  const page = element('div', 'page cycle-calendar');
  const header = element('header', 'page-header');
  header.append(element('h1', 'page-title', node.title));
  if (node.close) header.append(renderButton(node.close));
  const body = element('main', 'page-body');
  body.append(renderYear(node.year));
  if (node.summary) body.append(element('p', 'cycle-summary', node.summary));
  if (node.empty) body.append(element('p', 'cycle-empty', node.empty));
  const months = element('div', 'cycle-months');
  const captions = new Map(node.legend.filter((l) => !l.open).map((l) => [l.phase, l.caption]));
  months.append(...node.months.map((m) => renderMonth(m, node.weekdays, captions)));
  body.append(months, renderLegend(node), element('p', 'cycle-note', node.note));
  page.append(header, body);
  return page;
}

function renderMonth(
  month: CycleCalendarNode['months'][number],
  weekdays: string[],
  captions: Map<CyclePhase, string>,
): HTMLElement {
  const box = element('section', 'cycle-month');
  box.append(element('h2', 'cycle-month-name', month.name));
  const grid = element('div', 'cycle-grid');
  grid.setAttribute('role', 'grid');
  grid.append(...weekdays.map((w) => element('div', 'cycle-weekday', w)));
  for (let i = 0; i < month.offset; i += 1) grid.append(element('div', 'cycle-blank'));
  grid.append(...month.days.map((d) => renderDay(d, month.name, captions)));
  box.append(grid);
  return box;
}

function renderDay(
  day: CycleDay,
  monthName: string,
  captions: Map<CyclePhase, string>,
): HTMLElement {
  const button = element('button', 'cycle-day');
  button.type = 'button';
  button.dataset.id = day.target;
  phaseClasses(button, day.phase, day.open);
  button.classList.toggle('marked', day.marked);
  button.classList.toggle('today', day.today);
  button.append(element('span', 'cycle-day-number', String(day.day)));
  if (day.cycleDay > 0) button.append(element('span', 'cycle-day-count', String(day.cycleDay)));
  const phase = captions.get(day.phase);
  button.setAttribute('aria-label', `${day.day} ${monthName}${phase ? `: ${phase}` : ''}`);
  return button;
}

function renderLegend(node: CycleCalendarNode): HTMLElement {
  const list = element('ul', 'cycle-legend');
  for (const item of node.legend) {
    const entry = element('li', 'cycle-legend-item');
    const swatch = element('span', 'cycle-swatch');
    phaseClasses(swatch, item.phase, item.open);
    entry.append(swatch, element('span', '', item.caption));
    list.append(entry);
  }
  return list;
}
