// The view description the server sends, and the events the browser sends back.

export interface RowNode {
  kind: 'row';
  id: string;
  caption: string;
  enabled: boolean;
  icon?: string;
  comment?: string;
  badge?: string;
  /** Set: the badge is a button with this tap target. */
  badgeTarget?: string;
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

/** An address of this server for another app: the page puts its own origin before the path. */
export interface AddressNode {
  kind: 'address';
  path: string;
  copy: string;
  subscribe: string;
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

/** The report a browser asked for: its progress, then the finished PDF to open, save or share. */
export interface ReportNode {
  kind: 'report';
  caption: string;
  text: string;
  state: 'running' | 'done' | 'failed';
  done: number;
  /** 0 when there is nothing to count. */
  total: number;
  /** The finished PDF's address. */
  file?: string;
  fileName: string;
  open: string;
  download: string;
  share: string;
  close: string;
}

/** A profile's card at the top of the main menu; touching it opens or closes the profile. */
export interface CardNode {
  kind: 'card';
  /** Empty on the card that only invites to add a profile. */
  id: string;
  picture: string;
  /** The address of the profile's portrait, when it has one: shown instead of the picture. */
  portrait?: string;
  name: string;
  sex?: string;
  lines: string[];
  open: boolean;
}

/** A page of the ring in front of the menu, the page waiting behind it, and the menu. */
export interface RingNode {
  kind: 'ring';
  page: RingPageNode;
  next?: RingPageNode;
  menu: PageNode;
  /** The tap that slides the page aside to uncover the menu. */
  toMenu: string;
}

/** The four-digit lock: a caption, four dots and a digit pad. */
export interface LockNode {
  kind: 'lock';
  caption: string;
  /** Set while the caption warns of a wrong code. */
  captionColor?: string;
  /** Pictures of the four dots, empty or full. */
  dots: string[];
  /** Picture of a digit key, of the delete key, and the tap ids. */
  key: string;
  deleteKey: string;
  deleteId: string;
  digitPrefix: string;
  /** Seconds before the pad takes keys again after wrong codes. */
  wait: number;
  /** Present when the key of the fingerprint reader is offered. */
  fingerprint?: FingerprintKeyNode;
}

/** The fingerprint key of the lock: its tap id, picture, spoken label and pending check. */
export interface FingerprintKeyNode {
  id: string;
  key: string;
  hint: string;
  request?: AssertionRequest;
}

/** A one-time check by the platform authenticator; binary fields are base64url. */
export interface AssertionRequest {
  challenge: string;
  rpId: string;
  allow: string[];
  timeout: number;
}

/** A one-time registration of a key with the platform authenticator. */
export interface RegistrationRequest {
  challenge: string;
  rpId: string;
  rpName: string;
  userId: string;
  userName: string;
  timeout: number;
}

/** The chosen background and the colours of its theme. */
export interface Theme {
  picture: string;
  darkHeader: boolean;
  caption: string;
  text: string;
  accent: string;
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

/** A picker of wheels the server fills (a date, a time, units); buttons close (first) and confirm. */
export interface PickerNode {
  kind: 'picker';
  caption: string;
  wheels: WheelNode[];
  buttons: PopupButton[];
}

export interface EditorButton {
  id: string;
  caption: string;
}

export interface EditorEntry {
  id: string;
  caption: string;
  checked?: boolean;
}

/** The kinds of the field editor's rows, as the server names them. */
export const RowKind = {
  line: 1001,
  text: 1002,
  date: 1003,
  time: 1004,
  length: 1005,
  textInput: 1006,
  number: 1007,
  bodyIndex: 1008,
  segments: 1009,
  photo: 1010,
  numberWithIndex: 1011,
  longText: 1013,
  scale: 1015,
  list: 1016,
  dictionaryChoice: 1017,
  dose: 1018,
  frequency: 1019,
  courseLength: 1020,
  intakeTimes: 1021,
  button: 1023,
  switch: 1025,
  picture: 1026,
  teeth: 1027,
  measure: 1028,
  entryTime: 17,
  entryText: 103,
  entryNumber: 105,
} as const;

/** One input row of the field editor; tp is the row kind, source its present value. */
export interface EditorRow {
  tp: number;
  id?: string;
  caption: string;
  field?: string;
  source?: unknown;
  required?: boolean;
  editcap?: string;
  pic?: string;
  preview?: string;
  /** What a picked row shows in place of its source (a dictionary entry's name). */
  shown?: string;
  scalemin?: string;
  scalemax?: string;
  scaletype?: number;
  listtype?: number;
  listdata?: EditorEntry[];
}

export interface EditorNode {
  kind: 'editor';
  caption: string;
  rows: EditorRow[];
  ok: EditorButton;
  cancel: EditorButton;
  nested?: EditorNode;
}

/** The first-use hint in a screen's header: its icon, the moving hand, the tap that ends it. */
export interface HelpHintNode {
  kind: 'helpHint';
  icon: string;
  hand: string;
  id: string;
}

/** One line of a multi-line field of a day; in the day editor a target for its entry. */
export interface DayLine {
  time: string;
  text: string;
  id?: string;
}

/** A field of a day: its icon and text or lines; weight and height carry an in-place number. */
export interface DayRow {
  id?: string;
  icon: string;
  caption: string;
  text: string;
  lines: DayLine[];
  enabled: boolean;
  number?: string;
}

export interface DiarySectionNode {
  kind: 'diarySection';
  caption: string;
  span: string;
}

/** A phase of the woman's cycle, as its colour names it; '' is an ordinary day. */
export type CyclePhase = 'period' | 'ovulation' | 'pregnancy' | '';

/** A day's place in the cycle in its diary cell; tapping it opens the calendar. */
export interface CycleMark {
  phase: CyclePhase;
  open: boolean;
  caption: string;
  target: string;
}

/** A day in the diary's list: tapping opens it, a swipe to the left offers to delete it. */
export interface DayCellNode {
  kind: 'dayCell';
  id: string;
  day: string;
  weekday: string;
  state: string;
  cycle?: CycleMark;
  today: boolean;
  illness: boolean;
  rows: DayRow[];
  photo: string;
  deleteTarget: string;
  deleteCaption: string;
}

/** One text of a schedule row: 0 a notice, 1 a doctor's item, 5 a reminder, 23 a medicine,
 * 25 a diet's menu. */
export interface ScheduleEntry {
  kind: number;
  text: string;
}

export interface ScheduleRow {
  style: 'meal' | 'relation' | 'heading' | 'blank' | 'plain';
  right: string;
  entries: ScheduleEntry[];
}

/** The day schedule: the day between its buttons, the meal times, the rows of the day. */
export interface ScheduleNode {
  kind: 'schedule';
  day: YearNode;
  meals: ButtonNode;
  rows: ScheduleRow[];
}

/** A year chosen with the buttons on either side of its caption. */
export interface YearNode {
  caption: string;
  back: ButtonNode;
  forward: ButtonNode;
}

/** The diary: search, year, "+" and a window of the days under their sections; `earlier` and
 *  `more` ask for the days before and after it. */
export interface DiaryNode {
  kind: 'diary';
  title: string;
  add: string;
  search: string;
  searchTarget: string;
  searchHint: string;
  year?: YearNode;
  message: string;
  items: Array<DiarySectionNode | DayCellNode>;
  earlier: string;
  more: string;
  scrollTo: string;
}

/** The editor of one day: its date with the ways to other days, its fields and its photograph. */
export interface DayEditorNode {
  kind: 'dayEditor';
  title: string;
  close: ButtonNode;
  prev: ButtonNode;
  next: ButtonNode;
  date: ButtonNode;
  rows: DayRow[];
  photo: {
    caption: string;
    picture: string;
    change: string;
    camera: ButtonNode;
    album: ButtonNode;
    clear: ButtonNode;
  };
}

/** A day of the cycle calendar: `open` when its phase's closing day is not marked yet,
 *  `marked` when the woman marked this very day. */
export interface CycleDay {
  day: number;
  phase: CyclePhase;
  open: boolean;
  marked: boolean;
  cycleDay: number;
  today: boolean;
  target: string;
}

/** The woman's calendar of one year, month by month in weeks from Monday. */
export interface CycleCalendarNode {
  kind: 'cycleCalendar';
  title: string;
  year: YearNode;
  summary: string;
  empty: string;
  weekdays: string[];
  months: Array<{ name: string; offset: number; days: CycleDay[] }>;
  legend: Array<{ phase: CyclePhase; open: boolean; caption: string }>;
  note: string;
  close?: ButtonNode;
}

/** A card of a fact: a caption over its value. */
export interface Fact {
  caption: string;
  value: string;
}

/** Cards of facts side by side, wrapping on a narrow screen. */
export interface FactsNode {
  kind: 'facts';
  facts: Fact[];
}

/** A column of screens as high as the page, scrolled one at a time, with a page control. */
export interface ScreensNode {
  kind: 'screens';
  screens: { children: ViewNode[] }[];
}

/** Pictures of the program shown in turn, from the first again after the last. */
export interface MovieNode {
  kind: 'movie';
  frames: string[];
  intervalMs: number;
}

/** A named point of a picture, in the picture's own pixels. */
export interface Hint {
  name: string;
  x: number;
  y: number;
}

/** A picture of the program with named points on it. */
export interface HintPictureNode {
  kind: 'hintPicture';
  picture: string;
  width: number;
  height: number;
  hints: Hint[];
}

/** One row of reading matter; tp decides its type size and colour. */
export interface ContentRow {
  tp: number;
  text: string;
  pic?: string;
  group: number;
  alpha: number;
  /** 0 or 1: the row's tick box, clear or ticked; `target` is the box's tap target. */
  tick?: number;
  target?: string;
  /** The tap target of the row's link. */
  link?: string;
  /** The link is the whole row, shown as a button. */
  button?: boolean;
}

/** Reading matter; the highlighted group (0: none) is marked and scrolled into sight. */
export interface ContentNode {
  kind: 'content';
  id: string;
  rows: ContentRow[];
  highlight: number;
}

/** A page of the photo book as a thumbnail; a picture page can be deleted and edited. */
export interface BookPage {
  id: string;
  label: string;
  picture: string;
  deleteId?: string;
  editId?: string;
}

/** The editor of a picture page: which photos, in which order, their line and layout. */
export interface BookEdit {
  caption: string;
  photos: Array<{ id: string; picture: string; use: boolean; earlier?: string }>;
  labelId: string;
  label: string;
  placeholder: string;
  layoutsCaption: string;
  layouts: Array<{ id: string; icon: string; chosen: boolean }>;
  ok: ButtonNode;
  cancel: ButtonNode;
}

/** The photo book: its pages as they are drawn, one opened large, a picture page edited. */
export interface BookNode {
  kind: 'book';
  caption: string;
  status: string;
  busy: boolean;
  pages: BookPage[];
  large?: { label: string; picture: string; close: ButtonNode };
  edit?: BookEdit;
  addId: string;
  addCaption: string;
  save: ButtonNode;
  close: ButtonNode;
}

/** What a page of the ring can be. */
export type RingPageNode = PageNode | DiaryNode | CycleCalendarNode;

export type PopupNode = QuestionNode | PopupMenuNode | ListChoiceNode | PickerNode;

export type ViewNode =
  | PageNode
  | ListNode
  | SectionNode
  | RowNode
  | WelcomeNode
  | TextNode
  | AddressNode
  | ButtonsNode
  | MessageNode
  | CardNode
  | RingNode
  | LockNode
  | SvgNode
  | TimerNode
  | EditorNode
  | DiaryNode
  | DiarySectionNode
  | DayCellNode
  | DayEditorNode
  | CycleCalendarNode
  | FactsNode
  | ScreensNode
  | MovieNode
  | HintPictureNode
  | ContentNode
  | ScheduleNode
  | BookNode;

/**
 * What the server sends: the screen on top, with a popup and a message over it while open,
 * the chosen background, and whether tilting the device moves between pages.
 */
export type Screen = ViewNode & {
  popup?: PopupNode;
  message?: MessageNode;
  report?: ReportNode;
  theme?: Theme;
  tilt?: boolean;
  fingerprintRegister?: RegistrationRequest;
};

export type ClientEvent =
  | { type: 'tap'; target: string; value?: unknown }
  | { type: 'change'; target: string; value: unknown }
  | { type: 'viewport'; width: number; height: number }
  | { type: 'visible' }
  | { type: 'hidden' }
  | { type: 'shortcut'; name: string }
  | { type: 'drag'; offset: number; width: number }
  | { type: 'tilt'; x: number; upsideDown: boolean }
  | { type: 'authenticator'; available: boolean }
  | { type: 'fingerprint'; error: string }
  | {
      type: 'fingerprint';
      id: string;
      clientDataJSON: string;
      authenticatorData: string;
      signature: string;
    }
  | { type: 'fingerprintRegister'; error: string }
  | { type: 'fingerprintRegister'; clientDataJSON: string; attestationObject: string };
