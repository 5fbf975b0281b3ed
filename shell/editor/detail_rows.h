// The rows of the field editor: maps with the row kind "tp", "caption", "field", "required",
// "editcap" and the present value in "source", plus the extras of the scale and list rows.
#pragma once

#include <string_view>

#include "core/context.h"
#include "shell/views/editors.h"

namespace lad::shell {

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
