// The nodes of the diary: the list of days with its sections and day cells, and the editor of
// one day with its field rows and photograph.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/value.h"
#include "shell/views/cycle.h"
#include "shell/views/pages.h"

namespace lad::shell {

// One line of a multi-line row: its time (may be empty) and its text; in the editor a line is
// a target that offers to edit or remove its entry.
struct DayLineView {
  std::string time;
  std::string text;
  std::string id;

  Value toValue() const;
};

// A field of a day: its icon and its text, or its lines. In the editor a row is a target; a
// weight or height row carries its number, which is edited in place.
struct DayRowView {
  std::string id;
  std::string icon;
  std::string caption;
  std::string text;
  std::vector<DayLineView> lines;
  bool enabled = true;
  std::optional<std::string> number;

  Value toValue() const;
};

struct DiarySectionView {
  static constexpr std::string_view kKind = "diarySection";
  std::string caption;
  std::string span;  // the dates the section covers, or ""

  Value toValue() const;
};

// A day in the list. Tapping it opens the day; a swipe offers to delete it.
struct DayCellView {
  static constexpr std::string_view kKind = "dayCell";
  std::string id;
  std::string day;      // the day of the month, or the whole date
  std::string weekday;  // its short name
  std::string state;    // the cycle's state of the day, or ""
  std::optional<CycleMarkView> cycle;
  bool today = false;
  bool illness = false;
  std::vector<DayRowView> rows;
  std::string photo;  // the small picture's address, or ""
  std::string deleteTarget;
  std::string deleteCaption;

  Value toValue() const;
};

// The list of days: the search field, the year, the "+" button and sections with their days;
// a message stands instead of the days while there are none. A window of the days comes at
// once: `earlier` and `more` ask for the days before and after it.
struct DiaryView {
  static constexpr std::string_view kKind = "diary";
  std::string title;
  std::string add;
  std::string search;
  std::string searchTarget;
  std::string searchHint;
  std::optional<YearView> year;
  std::string message;
  List items;  // DiarySectionView and DayCellView values in order
  std::string earlier;
  std::string more;
  std::string scrollTo;  // the id of the cell to bring into view

  Value toValue() const;
};

// The photograph row of the day editor: the picture (or none) and the three ways to change it.
struct DayPhotoView {
  std::string caption;
  std::string picture;  // an address or a data URL, or ""
  std::string change;   // the change target that takes a new picture
  ButtonView camera;
  ButtonView album;
  ButtonView clear;

  Value toValue() const;
};

// The editor of one day: its date with the ways to the day before, after and any day, its field
// rows and its photograph.
struct DayEditorView {
  static constexpr std::string_view kKind = "dayEditor";
  std::string title;
  ButtonView close;
  ButtonView prev;
  ButtonView next;
  ButtonView date;
  std::vector<DayRowView> rows;
  DayPhotoView photo;

  Value toValue() const;
};

}  // namespace lad::shell
