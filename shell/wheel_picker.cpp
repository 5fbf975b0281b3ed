#include "shell/wheel_picker.h"

#include <algorithm>

#include "core/text_parts.h"
#include "shell/views/popups.h"
#include "store/values/picker_lists.h"

namespace lad::shell {

namespace {

constexpr std::string_view kStoredDate = "dd.MM.yyyy";
constexpr std::string_view kTime = "HH:mm";
// The year wheel reaches this far back (birth dates) and ahead (due dates).
constexpr int kYearsBack = 100, kYearsAhead = 2;

std::string twoDigits(int n) {
  return (n < 10 ? "0" : "") + std::to_string(n);
}

std::vector<std::string> numbers(int from, int to, bool padded) {
  std::vector<std::string> rows;
  for (int n = from; n <= to; ++n) rows.push_back(padded ? twoDigits(n) : std::to_string(n));
  return rows;
}

std::string icon(const Context& context, std::string_view name) {
  return (context.values().themeDarkIcons ? "b-" : "") + std::string(name);
}

}  // namespace

WheelPicker::WheelPicker(const Context& context, int set, std::string_view caption,
                         std::string_view old, std::vector<std::string> rowCaptions)
    : context_(context), set_(set), caption_(context.translate(caption)) {
  if (set == kDatePicker) {
    dateWheels(old);
    return;
  }
  if (set == kTimePicker || set == kCountDownPicker) {
    timeWheels(old);
    return;
  }
  if (set == kRowListPicker) {
    wheels_.push_back(std::move(rowCaptions));
  } else {
    for (int wheel = 0; !listFor(set, wheel).empty(); ++wheel)
      wheels_.push_back(listFor(set, wheel));
  }
  positionAt(splitOn(old, "<td>"));
}

// Day, month by its name as a date is written ("24 ноября 2026"), year.
void WheelPicker::dateWheels(std::string_view old) {
  const DateCodec& dates = context_.dates();
  const Date now = context_.clock().now();
  const DateParts today = dates.decodeDate(now);
  std::vector<std::string> months;
  for (int m = 1; m <= 12; ++m)
    months.push_back(dates.dateToString(dates.encodeDate(1, m, 2001), "MMMM"));
  wheels_ = {numbers(1, 31, false), std::move(months),
             numbers(today.year - kYearsBack, today.year + kYearsAhead, false)};
  const DateParts shown =
      dates.decodeDate(dates.dateFromStringFormat(old, kStoredDate).value_or(now));
  const int year = std::clamp(shown.year, today.year - kYearsBack, today.year + kYearsAhead);
  positions_ = {shown.day - 1, shown.month - 1, year - (today.year - kYearsBack)};
}

// Hours and minutes; a time starts at now, a count-down at nought.
void WheelPicker::timeWheels(std::string_view old) {
  wheels_ = {numbers(0, 23, true), numbers(0, 59, true)};
  const DateCodec& dates = context_.dates();
  auto shown = dates.dateFromStringFormat(old, kTime);
  if (!shown && set_ == kTimePicker) shown = context_.clock().now();
  const std::string time = shown ? dates.dateToString(*shown, kTime) : "";
  positionAt(splitOn(time, ":"));
}

// Each wheel on its old row; an unknown one falls to the first row.
void WheelPicker::positionAt(const std::vector<std::string_view>& olds) {
  positions_.clear();
  for (std::size_t w = 0; w < wheels_.size(); ++w) {
    const auto& rows = wheels_[w];
    const auto found = w < olds.size() ? std::find(rows.begin(), rows.end(), olds[w]) : rows.end();
    positions_.push_back(found == rows.end() ? 0 : static_cast<int>(found - rows.begin()));
  }
}

Value WheelPicker::view() const {
  PickerView view{caption_, {}, {}};
  for (std::size_t w = 0; w < wheels_.size(); ++w) {
    // The words of a wheel are shown in the user's language; the answer keeps them as stored.
    WheelView wheel{{}, positions_[w]};
    for (const std::string& row : wheels_[w]) wheel.rows.push_back(context_.translate(row));
    view.wheels.push_back(std::move(wheel));
  }
  view.buttons = {{popupTarget(0), "", icon(context_, "cap-close.png"), false},
                  {popupTarget(1), "", icon(context_, "cap-ok2.png"), false}};
  return view.toValue();
}

std::optional<PopupAnswer> WheelPicker::answer(std::string_view target, const Value& input) const {
  const int n = popupIndex(target);
  if (n == 0) return PopupAnswer{0, "", Value()};
  if (n != 1) return std::nullopt;
  const auto positions = readPositions(input);
  if (!positions) return std::nullopt;
  return PopupAnswer{1, "", Value(compose(*positions))};
}

// The browser sends one row position per wheel.
std::optional<std::vector<int>> WheelPicker::readPositions(const Value& input) const {
  const auto* sent = input.asList();
  if (!sent || sent->size() != wheels_.size()) return std::nullopt;
  std::vector<int> positions;
  for (std::size_t w = 0; w < wheels_.size(); ++w) {
    const Value& p = (*sent)[w];
    if (p.type() != Value::Type::Integer || p.intValue() < 0 ||
        p.intValue() >= static_cast<std::int64_t>(wheels_[w].size()))
      return std::nullopt;
    positions.push_back(static_cast<int>(p.intValue()));
  }
  return positions;
}

// The answer in the stored form. A day past the end of its month is that month's last day,
// as a date wheel settles on 28 when 31 is turned to February.
std::string WheelPicker::compose(const std::vector<int>& positions) const {
  const auto row = [&](std::size_t w) { return wheels_[w][positions[w]]; };
  if (set_ == kDatePicker) {
    const DateCodec& dates = context_.dates();
    const int month = positions[1] + 1, year = std::stoi(row(2));
    const int last = dates.lastDateOfMonth(dates.encodeDate(1, month, year));
    const int day = std::min(positions[0] + 1, last);
    return twoDigits(day) + "." + twoDigits(month) + "." + row(2);
  }
  if (set_ == kTimePicker || set_ == kCountDownPicker) return row(0) + ":" + row(1);
  std::string joined;
  for (std::size_t w = 0; w < wheels_.size(); ++w) joined += (w > 0 ? "<td>" : "") + row(w);
  return joined;
}

}  // namespace lad::shell
