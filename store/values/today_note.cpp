#include "store/values/today_note.h"

#include "core/context.h"
#include "core/json_text.h"
#include "core/text_fill.h"
#include "store/day_rows.h"
#include "store/keywords.h"
#include "store/values/list_codecs.h"
#include "store/values/pill_reading.h"
#include "store/values/reading_forms.h"

namespace lad {

namespace {

// "Рост: 45.0\nВес: 2.500" of an ultrasound: the measures above 0, one per line.
std::string uziText(const Context& context, const std::string& source) {
  const Value uzi = jsonToDictionary(source);
  std::string text;
  const auto addLine = [&](const char* pattern, const char* key, int decimals) {
    const double value = uzi[key].doubleValue();
    if (value <= 0) return;
    if (!text.empty()) text += "\n";
    text += fillIn(context.translate(pattern), {formatFixed(value, decimals)});
  };
  addLine("Рост: %.1f", "rost", 1);
  addLine("Вес: %.3f", "ves", 3);
  return text;
}

std::string birthText(const Context& context, const std::string& source) {
  const Value birth = jsonToDictionary(source);
  if (!birth.asMap()) return "";
  const char* kind = birth["type"].intValue() == 2 ? "Кесарево сечение" : "Естественные роды";
  return fillIn(
      context.translate("%@\nРост: %@\nВес: %@\nВремя родов: %@"),
      {context.translate(kind), birth["rost"].text(), birth["ves"].text(), birth["time"].text()});
}

std::string textOf(const Context& context, int kind, const std::string& source,
                   const List& listData) {
  switch (kind) {
    case kKindMulti:
    case kKindChoice:
    case kKindIllness:
      return checkStringToRead(source, listData);
    case 9:
      return biosizeStringToRead(context, source);
    case 13:
      return toothStringToRead(context, source);
    case kKindDayType: {
      const std::int64_t type = leadingInteger(source);
      return type < 2 ? "" : womanDayToRead(context, static_cast<int>(type));
    }
    case 15:
      return uziText(context, source);
    case kKindBirth:
      return birthText(context, source);
    case 25:
      return dietaStringToRead(context, source);
    case 26:
      return analizyStringToRead(source, listData);
    case 106:
      return intervalToRead(context, source, true);
    case 107:
      return dozaToRead(context, source);
    case 108:
      return periodToRead(context, source);
  }
  return source;
}

bool isLineKind(int kind) {
  return kind == kKindTemperature || kind == kKindAlarm || kind == 30 || kind == 31;
}

bool isSentenceKind(int kind) {
  return kind == kKindPills || kind == 29;
}

}  // namespace

void updateNoteToday(const Context& context, Map& row, const List& listData,
                     std::optional<Date> forDate) {
  const int kind = static_cast<int>(row["tp"].intValue());
  const std::string source = row["source"].text();
  if (isLineKind(kind)) {
    row.set("text", "");
    row.set("multiarray", multiFromString(source, kind));
  } else if (isSentenceKind(kind)) {
    List lines;
    multi2FromString(context, lines, source, listData, kind, forDate);
    row.set("text", "");
    row.set("multiarray", std::move(lines));
  } else {
    row.set("text", textOf(context, kind, source, listData));
  }
}

void noteStructToTodayNote(const Context& context, const Map& day, List& rows,
                           const List& listData) {
  if (rows.empty()) initTodayNoteStruct(context, rows);
  for (Value& each : rows) {
    Map* row = each.asMap();
    if (!row) continue;
    if ((*row)["tp"].intValue() == kKindPhoto) {
      row->set("isphoto", day["isphoto"]);
      row->set("photopath", day["photopath2"]);
      row->set("changephoto", false);
      continue;
    }
    const Value value = day[(*row)["field"].text()];
    const std::string source = value.isNull() ? "" : value.text();
    row->set("source", source);
    row->set("text", source);
    const std::int64_t kind = (*row)["tp"].intValue();
    if (kind == kKindHeight || kind == kKindWeight) row->set("active", value.doubleValue() > 0);
    updateNoteToday(context, *row, listData, day["dat"].asDate());
  }
}

}  // namespace lad
