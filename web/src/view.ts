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

export interface ButtonNode {
  id: string;
  caption: string;
  enabled?: boolean;
}

export interface TextNode {
  kind: 'text';
  text: string;
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

/** A button or item of a popup: a caption, an icon, or both. */
export interface PopupButton {
  id: string;
  caption?: string;
  icon?: string;
}

export interface QuestionNode {
  kind: 'question';
  caption: string;
  text: string;
  /** Present: the question has a text field, starting with this text. */
  input?: string;
  buttons: PopupButton[];
}

export interface PopupMenuNode {
  kind: 'popupMenu';
  items: (PopupButton & { gap?: boolean })[];
}

export interface ListChoiceNode {
  kind: 'listChoice';
  entries: PopupButton[];
  buttons: PopupButton[];
}

export interface WheelNode {
  rows: string[];
  selected: number;
}

/** A picker: native date and time inputs, or wheels; buttons close (first) and confirm. */
export interface PickerNode {
  kind: 'picker';
  mode: 'date' | 'time' | 'countdown' | 'wheels';
  caption: string;
  value?: string;
  wheels?: WheelNode[];
  buttons: PopupButton[];
}

export type PopupNode = QuestionNode | PopupMenuNode | ListChoiceNode | PickerNode;

export type ViewNode =
  | PageNode
  | ListNode
  | SectionNode
  | RowNode
  | WelcomeNode
  | TextNode
  | ButtonsNode
  | MessageNode;

/** What the server sends: the screen on top, with a popup and a message over it while open. */
export type Screen = ViewNode & { popup?: PopupNode; message?: MessageNode };

export type ClientEvent =
  | { type: 'tap'; target: string; value?: unknown }
  | { type: 'viewport'; width: number; height: number }
  | { type: 'visible' }
  | { type: 'hidden' }
  | { type: 'shortcut'; name: string };
