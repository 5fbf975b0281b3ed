#include "health/child_feeding.h"

#include <array>

#include "core/context.h"
#include "core/json_text.h"
#include "core/text_fill.h"
#include "store/dictionary.h"
#include "store/store.h"

namespace lad::health {

namespace {

constexpr std::string_view kListItem = "<tr>";

std::string dayText(const Context& context, Date day) {
  return context.dates().dateToString(day, "yyyy-MM-dd");
}

List readFeedings(SqliteStatement& rows) {
  List feedings;
  while (rows.step()) {
    Map feeding;
    feeding.set("kodates", rows.columnText(0).value_or(""));
    feeding.set("kotype", rows.columnInt(1));
    feeding.set("kovalue", rows.columnText(2).value_or(""));
    feeding.set("kosum", rows.columnInt(3));
    feedings.push_back(Value(std::move(feeding)));
  }
  return feedings;
}

std::string trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// A food's name from the dictionary: before its unit in brackets and its other parts.
std::string foodName(const std::string& guid, const List& listData) {
  const Value* entry = listByIndex(guid, listData);
  if (!entry) return "";
  std::string name = (*entry)["cap"].text();
  name = name.substr(0, name.find('('));
  return trimmed(std::string_view(name).substr(0, name.find(kListItem)));
}

// What a feeding gave: the minutes at both breasts, or the amount of the food.
std::int64_t amountOf(const Value& feeding) {
  const Value value = jsonToDictionary(feeding["kovalue"].text());
  if (value["tp"].intValue() == kFeedBreast)
    return value["left"].intValue() + value["right"].intValue();
  return value["volume"].intValue();
}

std::array<std::int64_t, kFeedOther + 1> sumsByKind(const List& feedings) {
  std::array<std::int64_t, kFeedOther + 1> sums{};
  for (const Value& feeding : feedings) {
    const std::int64_t kind = jsonToDictionary(feeding["kovalue"].text())["tp"].intValue();
    if (kind >= kFeedBreast && kind <= kFeedOther) sums[kind] += amountOf(feeding);
  }
  return sums;
}

const char* unitOf(int kind) {
  if (kind == kFeedBreast) return "мин.";
  return kind == kFeedCottageCheese ? "г." : "мл.";
}

// One line of the totals: a today, b on the last comparable day.
std::string totalLine(const Context& c, int kind, std::int64_t a, std::int64_t b) {
  const std::string caption = feedingCaption(c, kind);
  const std::string unit = c.translate(unitOf(kind));
  if (a > 0 && kind == kFeedOther) return c.translate("Другое: итог не ведется");
  if (a > 0 && b > 0 && a != b)
    return fillIn(c.translate(a > b ? "%@: %d (+%d) %@" : "%@: %d (%d) %@"),
                  {caption, std::to_string(a), std::to_string(a - b), unit});
  if (a > 0) return fillIn(c.translate("%@: %d %@"), {caption, std::to_string(a), unit});
  return fillIn(c.translate("%@: перестали"), {caption});
}

}  // namespace

void saveKormForDate(Store& store, const List& feedings, Date day, const std::string& gid) {
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  SqliteStatement clear =
      bracket.db()->prepare("delete from childkorm where childguid=? and kodates like ?");
  clear.bindText(1, gid);
  clear.bindText(2, dayText(store.context(), day) + "%");
  clear.run();
  for (const Value& feeding : feedings) {
    SqliteStatement insert = bracket.db()->prepare(
        "insert into childkorm (kodates,kotype,kovalue,kosum,childguid) values (?,?,?,?,?)");
    insert.bindText(1, feeding["kodates"].text());
    insert.bindInt(2, feeding["kotype"].intValue());
    insert.bindText(3, feeding["kovalue"].text());
    insert.bindInt(4, feeding["kosum"].intValue());
    insert.bindText(5, gid);
    insert.run();
  }
  bracket.markChanged();
}

List loadKormForDate(Store& store, Date day, const std::string& gid) {
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return {};
  SqliteStatement rows = bracket.db()->prepare(
      "select kodates, kotype, kovalue, kosum from childkorm where childguid=? and kodates like ? "
      "order by koid");
  rows.bindText(1, gid);
  rows.bindText(2, dayText(store.context(), day) + "%");
  return readFeedings(rows);
}

List loadLastKormBefore(Store& store, Date day, const std::string& gid) {
  std::optional<std::string> last;
  {
    StoreBracket bracket = store.connectToBase();
    if (!bracket.db()) return {};
    SqliteStatement row = bracket.db()->prepare(
        "select substr(kodates,1,10) from childkorm where childguid=? and "
        "substr(kodates,1,10)<? order by substr(kodates,1,10) desc limit 1");
    row.bindText(1, gid);
    row.bindText(2, dayText(store.context(), day));
    if (row.step()) last = row.columnText(0);
  }
  const auto lastDay =
      last ? store.context().dates().dateFromStringFormat(*last, "yyyy-MM-dd") : std::nullopt;
  return lastDay ? loadKormForDate(store, *lastDay, gid) : List();
}

std::string kormToString(const Context& c, std::string_view kovalue, const List& listData) {
  if (!jsonIs(kovalue)) return "";
  const Value value = jsonToDictionary(kovalue);
  const std::int64_t kind = value["tp"].intValue();
  if (kind == kFeedBreast) {
    std::string text;
    if (value["left"].intValue() >= 1)
      text = fillIn(c.translate("Левая грудь: %@ мин."), {value["left"].text()});
    if (value["right"].intValue() >= 1)
      text += "\n" + fillIn(c.translate("Правая грудь: %@ мин."), {value["right"].text()});
    return text;
  }
  if (kind < kFeedFormula) return "";
  const std::string tip = value["tip"].text();
  if (tip == "Кефир" || tip == "Творог")
    return fillIn("%@ %@", {value["volume"].text(), value["measure"].text()});
  return fillIn("%@: %@ %@",
                {foodName(tip, listData), value["volume"].text(), value["measure"].text()});
}

std::string kormLine(const Context& c, std::string_view kovalue, const List& listData) {
  const std::string text = kormToString(c, kovalue, listData);
  switch (jsonToDictionary(kovalue)["tp"].intValue()) {
    case kFeedKefir:
      return fillIn(c.translate("Кефир: %@"), {text});
    case kFeedCottageCheese:
      return fillIn(c.translate("Творог: %@"), {text});
    default:
      return text;
  }
}

int foodList(int kind) {
  switch (kind) {
    case kFeedFormula:
      return 6;
    case kFeedPorridge:
      return 7;
    case kFeedPuree:
      return 8;
    case kFeedOther:
      return 9;
    default:
      return 0;
  }
}

std::string feedingCaption(const Context& c, int kind) {
  static constexpr std::array<const char*, kFeedOther> kCaptions = {
      "Грудное молоко", "Смесь", "Кефир", "Творог", "Каша", "Пюре", "Другое"};
  if (kind < kFeedBreast || kind > kFeedOther) return "";
  return c.translate(kCaptions[kind - 1]);
}

std::vector<std::string> kormTotals(const Context& context, const List& today,
                                    const List& lastDay) {
  const auto a = sumsByKind(today);
  const auto b = sumsByKind(lastDay);
  std::vector<std::string> lines;
  for (int kind = kFeedBreast; kind <= kFeedOther; ++kind)
    if (a[kind] > 0 || b[kind] > 0) lines.push_back(totalLine(context, kind, a[kind], b[kind]));
  return lines;
}

}  // namespace lad::health
