#include "core/db_cells.h"

namespace lad {

namespace {

const char* patternFor(bool time) {
  return time ? "yyyy-MM-dd HH:mm:ss" : "yyyy-MM-dd";
}

}  // namespace

std::optional<Date> dateFromBase(const SqliteStatement& statement, int column, bool time,
                                 const DateCodec& codec) {
  const auto text = statement.columnText(column);
  if (!text) return std::nullopt;
  return codec.dateFromStringFormat(*text, patternFor(time));
}

void dateToBase(SqliteStatement& statement, int index, std::optional<Date> date, bool time,
                const DateCodec& codec) {
  std::optional<std::string> text;
  if (date) text = codec.dateToString(*date, patternFor(time));
  statement.bindText(index, text);
}

std::optional<std::string> stringFromBase(const SqliteStatement& statement, int column) {
  return statement.columnText(column);
}

}  // namespace lad
