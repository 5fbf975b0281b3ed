// The field editor's nodes: the editor with its two buttons, and its rows by kind. A row
// carries only the keys named here; what the editor's model keeps beside them (a photo's
// bytes and save code, list settings) never reaches the browser.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "shell/views/pages.h"

namespace lad::shell {

// The kinds of editor rows ("tp"); the browser's renderer names the same ones.
enum RowKind {
  kLine = 1001,
  kText = 1002,
  kDate = 1003,
  kTime = 1004,
  kLength = 1005,
  kTextInput = 1006,
  kNumber = 1007,
  kBodyIndex = 1008,
  kSegments = 1009,
  kPhoto = 1010,
  kNumberWithIndex = 1011,
  kLongText = 1013,
  kScale = 1015,
  kList = 1016,
  kDictionaryChoice = 1017,
  kDose = 1018,
  kFrequency = 1019,
  kCourseLength = 1020,
  kIntakeTimes = 1021,
  kButton = 1023,
  kSwitch = 1025,
  kPicture = 1026,
  kTeeth = 1027,
  kMeasure = 1028,
  kEntryTime = 17,
  kEntryText = 103,
  kEntryNumber = 105,
};

struct EditorRowView {
  int tp = 0;
  std::string id;  // the tap or change target; empty for rows that take nothing
  std::string caption;
  std::string field;
  Value source;  // the present value
  bool required = false;
  std::string editcap;
  std::string pic;
  std::string preview;  // a photo row's picture as a small JPEG data URL
  std::string shown;    // what a picked row shows when its source is not for reading
  std::string scalemin, scalemax;
  std::optional<int> scaletype, listtype;
  Value listdata;  // entries of a list row: id, caption, checked

  Value toValue() const;
};

struct EditorView {
  static constexpr std::string_view kKind = "editor";
  std::string caption;
  std::vector<EditorRowView> rows;
  ButtonView ok;
  ButtonView cancel;

  Value toValue() const;
};

}  // namespace lad::shell
