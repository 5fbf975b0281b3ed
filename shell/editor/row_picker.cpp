#include "shell/editor/row_picker.h"

#include <charconv>
#include <vector>

#include "core/text_parts.h"
#include "shell/editor/editor_view.h"
#include "shell/views/editors.h"
#include "store/values/picker_lists.h"

namespace lad::shell {

namespace {

constexpr std::string_view kTimeSeparator = "<td>";

std::optional<int> wheelSet(std::int64_t kind) {
  switch (kind) {
    case kDate:
      return kDatePicker;
    case kDose:
      return kDosePicker;
    case kFrequency:
      return kFrequencyPicker;
    case kCourseLength:
      return kLengthPicker;
    default:
      return std::nullopt;
  }
}

std::string pickerCaption(const Map& row) {
  const std::string descr = row["editdescr"].text();
  return descr.empty() ? row["caption"].text() : descr;
}

std::vector<std::string_view> timesOf(const Map& row, const std::string& source) {
  if (row["tp"].intValue() != kIntakeTimes || source.empty()) return {};
  return splitOn(source, kTimeSeparator);
}

}  // namespace

std::unique_ptr<WheelPicker> rowPicker(const Context& context, const Map& row) {
  const auto set = wheelSet(row["tp"].intValue());
  if (!set) return nullptr;
  return std::make_unique<WheelPicker>(context, *set, pickerCaption(row), row["source"].text());
}

std::optional<IntakeTime> intakeTimeOf(std::string_view target) {
  const std::string_view rest = targetField(target);
  const auto colon = rest.rfind(':');
  if (colon == std::string_view::npos) return std::nullopt;
  std::size_t n = 0;
  const char* last = rest.data() + rest.size();
  auto [end, ec] = std::from_chars(rest.data() + colon + 1, last, n);
  if (ec != std::errc() || end != last) return std::nullopt;
  return IntakeTime{std::string(rest.substr(0, colon)), n};
}

std::unique_ptr<WheelPicker> intakeTimePicker(const Context& context, const Map& row,
                                              std::size_t n) {
  const std::string source = row["source"].text();
  const auto times = timesOf(row, source);
  if (n >= times.size()) return nullptr;
  return std::make_unique<WheelPicker>(context, kTimePicker, pickerCaption(row), times[n]);
}

std::optional<std::string> withIntakeTime(const Context& context, const Map& row, std::size_t n,
                                          std::string_view time) {
  const std::string source = row["source"].text();
  const auto times = timesOf(row, source);
  if (n >= times.size() || !context.dates().dateFromStringFormat(time, "HH:mm"))
    return std::nullopt;
  std::string joined;
  for (std::size_t i = 0; i < times.size(); ++i) {
    if (i > 0) joined += kTimeSeparator;
    joined += i == n ? time : times[i];
  }
  return joined;
}

}  // namespace lad::shell
