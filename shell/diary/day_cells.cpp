#include "shell/diary/day_cells.h"

#include <filesystem>

#include "core/context.h"
#include "store/keywords.h"

namespace lad::shell {

namespace {

bool hasLines(const Value& row) {
  const List* lines = row["multiarray"].asList();
  return lines && !lines->empty();
}

DayLineView lineView(const Value& line) {
  return {line["time"].text(),
          line.asMap()->contains("cap") ? line["cap"].text() : line["text"].text(), ""};
}

// Whether the row holds anything to show.
bool rowFilled(const Value& row) {
  if (row["tp"].intValue() == kKindPhoto) return false;
  return hasLines(row) || !row["text"].text().empty();
}

}  // namespace

DayRowView dayRowView(const Value& row) {
  DayRowView v;
  v.icon = row["pic"].text();
  v.caption = row["caption"].text();
  v.text = row["text"].text();
  if (const List* lines = row["multiarray"].asList())
    for (const Value& line : *lines)
      if (line.asMap()) v.lines.push_back(lineView(line));
  return v;
}

std::string pictureAddress(const std::string& path) {
  std::error_code error;
  const auto stamp = std::filesystem::last_write_time(path, error).time_since_epoch().count();
  return std::string(kPictureAddress) + std::filesystem::path(path).filename().string() +
         "?v=" + std::to_string(error ? 0 : stamp);
}

DayCellView dayCell(const Context& context, const Map& day, const List& rows) {
  DayCellView cell;
  cell.day = day["day"].text();
  cell.weekday = day["weekday"].text();
  cell.state = day["womantype"].text();
  cell.today = day["istoday"].boolValue();
  cell.illness = day["isbolezn"].boolValue();
  for (const Value& row : rows)
    if (rowFilled(row)) cell.rows.push_back(dayRowView(row));
  if (day["isphoto"].boolValue()) cell.photo = pictureAddress(day["photopath"].text());
  cell.deleteCaption = context.translate("Удалить");
  return cell;
}

}  // namespace lad::shell
