// The view description the server sends, and the events the browser sends back.

export interface RowNode {
  kind: 'row';
  id: string;
  caption: string;
  enabled: boolean;
  icon?: string;
  comment?: string;
  badge?: string;
  /** Present only on switch rows. */
  checked?: boolean;
}

export interface ListNode {
  kind: 'list';
  rows: RowNode[];
}

export interface SectionNode {
  kind: 'section';
  caption: string;
}

export interface PageNode {
  kind: 'page';
  title: string;
  children: ViewNode[];
}

export type ViewNode = PageNode | ListNode | SectionNode | RowNode;

export type ClientEvent =
  | { type: 'tap'; target: string }
  | { type: 'viewport'; width: number; height: number };
