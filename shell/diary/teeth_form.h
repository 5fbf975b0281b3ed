// The "Молочные зубы" form of a day: the twenty milk teeth by their dental names, those present
// ticked (the teeth of the days before with this day's changes), and back from the ticks the
// day's changes.
#pragma once

#include <string>

#include "shell/editor/field_editor.h"

namespace lad::shell {

// before: the teeth present before the day, joined by "<tr>"; dayValue: the day's own changes.
FieldEditor teethForm(const Context& context, std::string_view caption, std::string_view descr,
                      std::string_view before, std::string_view dayValue);

// The day's changes that the ticks make of the teeth present before it: a tooth that came
// through by its number, one that fell out by 100 plus its number.
std::string teethValue(const FieldEditor& form);

}  // namespace lad::shell
