// The panel of a report being made: its progress, then the PDF opened in the browser's own
// viewer, saved, or handed to another app through the share sheet where the browser has one.
import { renderButton } from './controls.js';
import { element, modalBox } from './dom.js';
import type { ReportNode } from './view.js';

const REPORT_CLOSE = 'report:close';

export function renderReport(node: ReportNode): HTMLElement {
  const { cover, box } = modalBox('message report', 'dialog');
  box.dataset.state = node.state;
  const caption = element('h2', 'message-caption', node.caption);
  caption.id = 'report-caption';
  box.setAttribute('aria-labelledby', caption.id);
  const text = element('p', 'message-text', node.text);
  text.setAttribute('aria-live', 'polite');
  box.append(caption, text);
  if (node.state === 'running') {
    const bar = element('progress', 'report-progress');
    if (node.total > 0) {
      bar.max = node.total;
      bar.value = node.done;
    }
    box.append(bar);
  }
  if (node.file) box.append(fileActions(node, node.file));
  box.append(renderButton({ id: REPORT_CLOSE, caption: node.close }));
  return cover;
}

function fileActions(node: ReportNode, file: string): HTMLElement {
  const row = element('div', 'report-actions');
  const open = link(node.open, file);
  open.target = '_blank';
  open.rel = 'noopener';
  const download = link(node.download, file);
  download.download = node.fileName;
  row.append(open, download);
  if (typeof navigator.share === 'function') row.append(shareButton(node, file));
  return row;
}

function link(caption: string, file: string): HTMLAnchorElement {
  const a = element('a', 'action report-link', caption);
  a.href = file;
  return a;
}

/** Hands the PDF itself to the share sheet; a browser that cannot share files shares its address. */
function shareButton(node: ReportNode, file: string): HTMLElement {
  const button = element('button', 'action report-share', node.share);
  button.type = 'button';
  button.addEventListener('click', async (event) => {
    event.stopPropagation();
    const response = await fetch(file, { credentials: 'same-origin' });
    const pdf = new File([await response.blob()], node.fileName, { type: 'application/pdf' });
    const data: ShareData = navigator.canShare?.({ files: [pdf] })
      ? { files: [pdf], title: node.fileName }
      : { url: new URL(file, location.href).href, title: node.fileName };
    await navigator.share(data).catch(() => undefined);
  });
  return button;
}
