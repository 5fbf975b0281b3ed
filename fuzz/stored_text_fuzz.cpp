// Fuzz target of the texts that a diary stores and reads back: values and their JSON, date
// patterns, lists of times, the old delimited values and their lifting to JSON, and old file
// names. They come from older versions and other installations, so any bytes may arrive. The
// first byte chooses the reader; each one's promise is checked on what it gives back.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/date_pattern.h"
#include "core/ids.h"
#include "core/json_text.h"
#include "core/text_parts.h"
#include "core/time_list.h"
#include "core/value.h"
#include "fuzz/fuzz_input.h"
#include "store/file_names.h"
#include "store/values/value_conversion.h"

namespace {

using lad::fuzz::check;
using lad::fuzz::FuzzInput;

constexpr std::int64_t kIntMax = 2147483647, kIntMin = -2147483648LL;

// The coercions read a leading number within the range of a 32-bit int; JSON that parses writes
// out to a text that parses to the same value.
void value(std::string_view text) {
  const lad::Value v(text);
  check(v.intValue() >= kIntMin && v.intValue() <= kIntMax);
  std::string error;
  const auto parsed = lad::Value::fromJson(text, &error);
  check(parsed.has_value() == error.empty());
  if (!parsed) return;
  const auto again = lad::Value::fromJson(parsed->toJson());
  check(again && *again == *parsed);
}

// The JSON form of a stored value reads as a tree that writes back to the same tree.
void jsonText(std::string_view text) {
  const lad::Value tree = lad::jsonToDictionary(text);
  if (!tree.asList() && !tree.asMap()) {
    check(lad::jsonFromObject(tree).empty());
    return;
  }
  const std::string written = lad::jsonFromObject(tree);
  check(lad::jsonIs(written));
  check(lad::jsonToArray(written) == tree);
}

const lad::MonthNames kMonths{"января", "февраля", "марта",    "апреля",  "мая",    "июня",
                              "июля",   "августа", "сентября", "октября", "ноября", "декабря"};

// A text that fits a pattern of numbers writes back as a text that reads as the same moment (not
// always the same text: a short month reads, and a field the pattern repeats keeps its last value).
void datePattern(FuzzInput& in) {
  const std::string_view pattern = in.field(), text = in.rest();
  const auto local = lad::parseDatePattern(text, pattern);
  if (!local) return;
  const auto written = lad::formatDatePattern(*local, pattern, kMonths);
  if (written) check(lad::parseDatePattern(*written, pattern) == local);
}

// A moment written in a pattern of numbers reads back as the moment, less what the pattern
// leaves out.
void dateFormat(FuzzInput& in) {
  std::int64_t local = 0;
  for (char c : in.field())
    local = static_cast<std::int64_t>(static_cast<std::uint64_t>(local) << 8 |
                                      static_cast<std::uint8_t>(c));
  const std::string_view pattern = in.rest();
  const auto written = lad::formatDatePattern(local, pattern, kMonths);
  if (!written) return;
  const auto read = lad::parseDatePattern(*written, pattern);
  if (read) check(lad::formatDatePattern(*read, pattern, kMonths) == written);
}

// Sorting a list of times keeps its items and puts them in order; the comparison is antisymmetric.
void timeList(FuzzInput& in) {
  const std::string_view a = in.field(), b = in.field(), list = in.rest();
  check(lad::timeCompare(a, b) == -lad::timeCompare(b, a));
  const std::string sorted = lad::sortValueByTime(0, list);
  auto before = lad::splitOn(list, "<end>"), after = lad::splitOn(sorted, "<end>");
  const auto timeOf = [](std::string_view item) { return item.substr(0, item.find("<td>")); };
  for (std::size_t i = 1; before.size() > 1 && i < after.size(); ++i)
    check(lad::timeCompare(timeOf(after[i - 1]), timeOf(after[i])) <= 0);
  std::sort(before.begin(), before.end());
  std::sort(after.begin(), after.end());
  check(before == after);
}

// The keywords whose old values have a form of their own, and one that has none.
constexpr std::array<std::string_view, 20> kKeywords{
    "uzi",      "birthresult", "biosize",  "kovalue",  "temp",      "alarm",     "pressure",
    "zhid",     "sleep",       "walk",     "pills",    "analizy",   "documents", "changes",
    "fillings", "bolezn",      "allergen", "pilldoza", "pillinter", "pilllength"};

// An old value of a structured keyword lifts to JSON that reads back as a list or map; an old
// list of indexes to guids; a value of any other keyword stays as it is.
void oldValue(FuzzInput& in) {
  const int appid = in.byte() % 2 + 1;
  const std::string_view keyword = kKeywords[in.byte() % kKeywords.size()];
  const std::string_view old = in.rest();
  lad::List foods;
  lad::Map food;
  food.set("index", lad::newID2(2, 7));
  food.set("cap", "Каша (г.)");
  foods.push_back(lad::Value(std::move(food)));
  const std::string lifted = lad::oldValueToJson(appid, keyword, old, &foods);
  if (keyword == "pilldoza" || keyword == "pillinter" || keyword == "pilllength") {
    check(old.empty() ? lad::oldList(keyword, old).empty()
                      : lad::oldList(keyword, old).find("<td>") != std::string::npos);
  } else if (keyword == "changes" || keyword == "fillings" || keyword == "bolezn" ||
             keyword == "allergen") {
    // Each index takes the fixed guid of its number in group 2; a damaged negative index keeps
    // its sign among the last 12 characters, as the old program made it.
    for (std::string_view guid : lad::splitOn(lifted, "<tr>"))
      check(guid.empty() || (guid.size() == 36 && guid.starts_with("00000000-0000-0000-0002-")));
  } else {
    const lad::Value tree = lad::jsonToArray(lifted);
    check(tree.asList() || tree.asMap());
    check(lad::oldValueToDic(appid, keyword, old, &foods).asMap());
  }
  check(lad::oldValueToJson(appid, "note", old, &foods) == old);
}

// An old attachment name is renamed only when it is a short numbered pdf or jpg, and keeps its
// extension.
void fileName(std::string_view name) {
  const std::string renamed = lad::oldFileNameToNew(name);
  if (renamed == name) return;
  check(name.size() < 31 && renamed.size() > 36);
  check(renamed.substr(renamed.size() - 4) == name.substr(name.size() - 4));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput in(data, size);
  switch (in.byte() % 7) {
    case 0:
      value(in.rest());
      break;
    case 1:
      jsonText(in.rest());
      break;
    case 2:
      datePattern(in);
      break;
    case 3:
      dateFormat(in);
      break;
    case 4:
      timeList(in);
      break;
    case 5:
      oldValue(in);
      break;
    default:
      fileName(in.rest());
      break;
  }
  return 0;
}
