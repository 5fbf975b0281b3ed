// The day schedule on screen: the day between its two buttons, the meal times button, and the
// rows of the day, each with its texts on the left and its time, meal or relation at the right.
import { renderButton, renderYear } from './controls.js';
import { element } from './dom.js';
import type { ScheduleNode, ScheduleRow } from './view.js';

export function renderSchedule(node: ScheduleNode): HTMLElement {
  const box = element('div', 'schedule');
  const meals = renderButton(node.meals);
  meals.classList.add('schedule-meals');
  const rows = element('div', 'schedule-rows');
  rows.setAttribute('role', 'list');
  rows.append(...node.rows.map(renderScheduleRow));
  box.append(renderYear(node.day), meals, rows);
  return box;
}

function renderScheduleRow(row: ScheduleRow): HTMLElement {
  const box = element('div', `schedule-row schedule-${row.style}`);
  box.setAttribute('role', 'listitem');
  if (row.style === 'blank') return box;
  if (row.style === 'heading') {
    box.append(element('h2', 'schedule-heading', row.right));
    return box;
  }
  const texts = element('div', 'schedule-texts');
  texts.append(
    ...row.entries.map((entry) => element('p', `schedule-entry entry-${entry.kind}`, entry.text)),
  );
  box.append(texts, element('span', 'schedule-right', row.right));
  return box;
}
