#include "shell/wheel_picker.h"

#include <algorithm>

#include "core/text_parts.h"
#include "store/picker_lists.h"

namespace lad::shell {

namespace {

constexpr std::string_view kStoredDate = "dd.MM.yyyy";
constexpr std::string_view kInputDate = "yyyy-MM-dd";
constexpr std::string_view kTime = "HH:mm";

const char* modeOf(int set) {
  switch (set) {
    case kDatePicker:
      return "date";
    case kTimePicker:
      return "time";
    case kCountDownPicker:
      return "countdown";
    default:
      return "wheels";
  }
}

// The text in one pattern written in another; nullopt when it does not read.
std::optional<std::string> recode(const DateCodec& dates, std::string_view text,
                                  std::string_view from, std::string_view to) {
  const auto date = dates.dateFromStringFormat(text, from);
  if (!date) return std::nullopt;
  return dates.dateToString(*date, to);
}

std::string icon(const Context& context, std::string_view name) {
  return (context.values().themeDarkIcons ? "b-" : "") + std::string(name);
}

}  // namespace

WheelPicker::WheelPicker(const Context& context, int set, std::string_view caption,
                         std::string_view old, std::vector<std::string> rowCaptions)
    : context_(context), set_(set), caption_(context.translate(caption)) {
  const DateCodec& dates = context.dates();
  if (set == kDatePicker || set == kTimePicker) {
    const std::string_view from = set == kDatePicker ? kStoredDate : kTime;
    const std::string_view to = set == kDatePicker ? kInputDate : kTime;
    value_ = recode(dates, old, from, to).value_or(dates.dateToString(context.clock().now(), to));
    return;
  }
  if (set == kCountDownPicker) {
    value_ = recode(dates, old, kTime, kTime).value_or("00:00");
    return;
  }
  if (set == kRowListPicker) {
    wheels_.push_back(std::move(rowCaptions));
  } else {
    for (int wheel = 0; !listFor(set, wheel).empty(); ++wheel)
      wheels_.push_back(listFor(set, wheel));
  }
  const auto olds = splitOn(old, "<td>");
  for (std::size_t w = 0; w < wheels_.size(); ++w) {
    const auto& rows = wheels_[w];
    const auto found = w < olds.size() ? std::find(rows.begin(), rows.end(), olds[w]) : rows.end();
    positions_.push_back(found == rows.end() ? 0 : static_cast<int>(found - rows.begin()));
  }
}

Value WheelPicker::view() const {
  Map m;
  m.set("kind", "picker");
  m.set("mode", modeOf(set_));
  m.set("caption", caption_);
  if (wheels_.empty()) {
    m.set("value", value_);
  } else {
    List wheels;
    for (std::size_t w = 0; w < wheels_.size(); ++w) {
      Map wheel;
      List rows(wheels_[w].begin(), wheels_[w].end());
      wheel.set("rows", Value(std::move(rows)));
      wheel.set("selected", positions_[w]);
      wheels.push_back(Value(std::move(wheel)));
    }
    m.set("wheels", Value(std::move(wheels)));
  }
  Map close, ok;
  close.set("id", popupTarget(0));
  close.set("icon", icon(context_, "cap-close.png"));
  ok.set("id", popupTarget(1));
  ok.set("icon", icon(context_, "cap-ok2.png"));
  m.set("buttons", Value(List{Value(std::move(close)), Value(std::move(ok))}));
  return Value(std::move(m));
}

std::optional<PopupAnswer> WheelPicker::answer(std::string_view target, const Value& input) const {
  const int n = popupIndex(target);
  if (n == 0) return PopupAnswer{0, "", Value()};
  if (n != 1) return std::nullopt;
  auto value = readInput(input);
  if (!value) return std::nullopt;
  return PopupAnswer{1, "", Value(std::move(*value))};
}

std::optional<std::string> WheelPicker::readInput(const Value& input) const {
  if (!wheels_.empty()) return readWheels(input);
  const auto* text = input.asText();
  if (!text) return std::nullopt;
  if (set_ == kDatePicker) return recode(context_.dates(), *text, kInputDate, kStoredDate);
  return recode(context_.dates(), *text, kTime, kTime);
}

// The wheels send the positions of their rows; the answer is the rows' texts.
std::optional<std::string> WheelPicker::readWheels(const Value& input) const {
  const auto* positions = input.asList();
  if (!positions || positions->size() != wheels_.size()) return std::nullopt;
  std::string joined;
  for (std::size_t w = 0; w < wheels_.size(); ++w) {
    const Value& p = (*positions)[w];
    if (p.type() != Value::Type::Integer || p.intValue() < 0 ||
        p.intValue() >= static_cast<std::int64_t>(wheels_[w].size()))
      return std::nullopt;
    if (w > 0) joined += "<td>";
    joined += wheels_[w][p.intValue()];
  }
  return joined;
}

}  // namespace lad::shell
