#include "store/values/picker_lists.h"

#include <algorithm>

namespace lad {

namespace {

using Rows = std::vector<std::string>;

// The numbers first to last as texts, after the given leading rows.
Rows numbered(Rows rows, int first, int last) {
  for (int n = first; n <= last; ++n) rows.push_back(std::to_string(n));
  return rows;
}

struct PickerSet {
  int set;
  Rows wheels[2];
};

const std::vector<PickerSet>& pickerSets() {
  static const std::vector<PickerSet> sets{
      {kLengthPicker, {numbered({}, 1, 100), {"дни", "недели", "месяцы"}}},
      {kDosePicker,
       {numbered({"1/8", "1/4", "1/2"}, 1, 200),
        {"мл.", "мг.", "шт.", "мерн.лож.", "ч.лож.", "ст.лож.", "куб.см.", "впрыск", "капля"}}},
      {kFrequencyPicker, {numbered({}, 1, 24), {"раз в день", "раз в сутки"}}},
  };
  return sets;
}

}  // namespace

const std::vector<std::string>& listFor(int set, int wheel) {
  static const Rows kNone;
  if (wheel < 0 || wheel > 1) return kNone;
  for (const PickerSet& p : pickerSets())
    if (p.set == set) return p.wheels[wheel];
  return kNone;
}

std::string valueFromList(int set, int wheel, std::int64_t row) {
  const Rows& rows = listFor(set, wheel);
  if (row < 0 || row >= static_cast<std::int64_t>(rows.size())) return "";
  return rows[static_cast<std::size_t>(row)];
}

int posFromList(int set, int wheel, std::string_view value) {
  const Rows& rows = listFor(set, wheel);
  const auto at = std::find(rows.begin(), rows.end(), value);
  return at == rows.end() ? 0 : static_cast<int>(at - rows.begin());
}

}  // namespace lad
