// The rows of the field editor: maps with the row kind "tp", "caption", "field", "required",
// "editcap" and the present value in "source", plus the extras of the scale and list rows.
#pragma once

#include <string_view>

#include "core/context.h"

namespace lad::shell {

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

// A row with a translated caption and an empty source.
Value detailRow(const Context& context, int kind, std::string_view caption, std::string_view field,
                bool required = false, std::string_view editcap = "");

// The forms a scale row writes its value in, by "scaletype".
enum ScaleType { kScaleLength = 1, kScaleTemperature = 2, kScaleWeight = 3 };

// A scale from min to max; a value at or below 0 on it means nothing was measured.
Value scaleRow(const Context& context, std::string_view field, std::string_view caption, int min,
               int max, ScaleType type, bool required = false);

// A list row: one tick (listtype 1) or many (2), entries added by the dialog listedittype.
Value listRow(const Context& context, std::string_view field, std::string_view caption,
              int listtype, int listedittype, bool required = false);

// The row's source is empty: null, an empty text or an empty list.
bool emptySource(const Value& row);

}  // namespace lad::shell
