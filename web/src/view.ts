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
  /** Present on rows that a swipe to the left offers to delete: the tap target and its caption. */
  deleteTarget?: string;
  deleteCaption?: string;
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

export interface ButtonNode {
  id: string;
  caption: string;
  enabled?: boolean;
}

export interface TextNode {
  kind: 'text';
  text: string;
  id?: string;
  /** 1 normal, 2 a hint (dimmed), 3 an alarm. */
  regim?: number;
}

/** A picture the server drew (SVG), in CSS pixels. */
export interface SvgNode {
  kind: 'svg';
  id: string;
  svg: string;
  width: number;
  height: number;
}

/** The running time of something being timed; the server sends it at every tick. */
export interface TimerNode {
  kind: 'timer';
  text: string;
  running: boolean;
  visible: boolean;
}

/** Buttons side by side, sharing the width. */
export interface ButtonsNode {
  kind: 'buttons';
  buttons: ButtonNode[];
}

/** The greeting that covers the whole screen once per version. */
export interface WelcomeNode {
  kind: 'welcome';
  icon: string;
  caption: string;
  /** Names the edition's colour of the buttons. */
  accent: string;
  children: ViewNode[];
  close: ButtonNode;
}

/** A message over the screen, closed by its one button. */
export interface MessageNode {
  kind: 'message';
  id: string;
  caption: string;
  text: string;
  button: string;
}

export type ViewNode =
  | PageNode
  | ListNode
  | SectionNode
  | RowNode
  | WelcomeNode
  | TextNode
  | ButtonsNode
  | MessageNode
  | SvgNode
  | TimerNode;

/** What the server sends: the screen on top, with a message over it while one is open. */
export type Screen = ViewNode & { message?: MessageNode };

export type ClientEvent =
  | { type: 'tap'; target: string }
  | { type: 'viewport'; width: number; height: number }
  | { type: 'visible' }
  | { type: 'hidden' }
  | { type: 'shortcut'; name: string };
