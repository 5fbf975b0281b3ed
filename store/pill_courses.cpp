#include "store/pill_courses.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

#include "core/context.h"
#include "core/db_cells.h"
#include "core/ids.h"
#include "core/json_text.h"
#include "store/records.h"
#include "store/store.h"
#include "store/tables.h"
#include "store/values/reading_forms.h"
#include "store/values/regimen.h"

namespace lad {

namespace {

constexpr std::string_view kPills = "pills";
// The pickers offer at most 100 of any unit: a larger count comes from a damaged value, and
// writing it out would not end in reasonable time.
constexpr std::int64_t kLongestCount = 100;

// Steps by weekday, Sunday first.
constexpr std::array<int, 7> kTwiceAWeek{1, 3, 2, 1, 4, 3, 2};
constexpr std::array<int, 7> kThriceAWeek{2, 1, 2, 1, 3, 2, 1};

List objectsOf(std::string_view value) {
  if (!jsonIs(value)) return {};
  const Value tree = jsonToArray(value);
  return tree.asList() ? *tree.asList() : List{};
}

void writeDay(Store& store, StoreBracket& bracket, const std::string& type, List objects, Date day,
              const std::string& gid) {
  if (objects.empty())
    deleteValue(store, bracket, type, day, gid);
  else
    insertValue(store, bracket, type, jsonFromObject(Value(std::move(objects))), day, gid, true,
                false);
}

void spread(Store& store, StoreBracket& bracket, const std::string& type, Map course,
            const List& listData, const std::string& gid, Date curdate) {
  const Context& context = store.context();
  const DateCodec& dates = context.dates();
  if (course["key"].text().empty()) course.set("key", newID());
  const Regimen regimen = Regimen::fromValue(Value(course));
  // The editor always gives a first day; a value without one is written from the saved day.
  const Date first =
      dates.dateFromStringFormat(regimen.pillsdate, "dd.MM.yyyy").value_or(dates.noTime(curdate));
  const std::string period = checkStringToRead(regimen.pillperiod, listData);
  const Value object(std::move(course));
  const int last = lastCourseOffset(dates, regimen.pilllength, first);
  for (int d = 0; d <= last;) {
    const Date day = dates.addDays(first, d);
    List objects = objectsOf(getDateValue(store, bracket, day, type, gid));
    objects.push_back(object);
    writeDay(store, bracket, type, std::move(objects), day, gid);
    d += courseStep(context, period, dates.decodeDate(day).weekday);
  }
}

struct DayRecord {
  std::string gid;
  Date day;
  std::string value;
};

std::vector<DayRecord> recordsHolding(Store& store, StoreBracket& bracket, const std::string& type,
                                      const std::string& key) {
  const EditionTables& t = tablesFor(store.context().values().appid);
  SqliteStatement st =
      bracket.db()->prepare(std::string("select ") + t.guid + ", sdat, value from " + t.data +
                            " where type=? and value like ?");
  st.bindText(1, type);
  st.bindText(2, "%" + key + "%");
  std::vector<DayRecord> found;
  while (st.step()) {
    const auto day = dateFromBase(st, 1, false, store.context().dates());
    if (day) found.push_back({st.columnText(0).value_or(""), *day, st.columnText(2).value_or("")});
  }
  return found;
}

// A value's courses: the keys in their order, the objects by key, and those without a key.
struct KeyedCourses {
  std::vector<std::string> keys;
  std::map<std::string, Value> byKey;
  List unkeyed;

  explicit KeyedCourses(std::string_view value) {
    for (Value& object : objectsOf(value)) {
      const std::string key = object["key"].text();
      if (key.empty())
        unkeyed.push_back(std::move(object));
      else if (byKey.emplace(key, object).second)
        keys.push_back(key);
    }
  }
  bool holds(const std::string& key) const { return byKey.contains(key); }
};

}  // namespace

int lastCourseOffset(const DateCodec& dates, std::string_view pilllength, Date first) {
  const auto [countText, unit] = pairOf(pilllength);
  const auto k = static_cast<int>(std::min(leadingInteger(countText), kLongestCount));
  if (unit == "дни") return k - 1;
  if (unit == "недели") return 7 * k - 1;
  if (unit == "месяцы") return dates.getDays(first, dates.addDays(dates.addMonths(first, k), -1));
  return 0;
}

int courseStep(const Context& context, std::string_view period, int weekday) {
  const auto is = [&](const char* caption) { return period == context.translate(caption); };
  const auto byWeekday = [&](const std::array<int, 7>& steps) {
    return weekday >= 1 && weekday <= 7 ? steps[static_cast<std::size_t>(weekday - 1)] : 1;
  };
  if (is("Через день")) return 2;
  if (is("Через неделю")) return 7;
  if (is("2 раза в неделю")) return byWeekday(kTwiceAWeek);
  if (is("3 раза в неделю")) return byWeekday(kThriceAWeek);
  return 1;
}

void addNoteComplex(Store& store, StoreBracket& bracket, const std::string& type,
                    const std::string& value, const List& listData, const std::string& gid,
                    Date curdate) {
  if (type != kPills || !bracket.db()) return;
  if (!jsonIs(value)) {
    insertValue(store, bracket, type, value, curdate, gid, true, false);
    return;
  }
  const Value course = jsonToDictionary(value);
  if (const Map* object = course.asMap())
    spread(store, bracket, type, *object, listData, gid, curdate);
}

void removeNoteComplex(Store& store, StoreBracket& bracket, const std::string& type,
                       const std::string& key) {
  // An empty key would match every record.
  if (type != kPills || key.empty() || !bracket.db()) return;
  for (const DayRecord& record : recordsHolding(store, bracket, type, key)) {
    List objects = objectsOf(record.value);
    const auto kept = std::remove_if(objects.begin(), objects.end(),
                                     [&](const Value& o) { return o["key"].text() == key; });
    if (kept == objects.end()) continue;  // the key stood only inside some other text
    objects.erase(kept, objects.end());
    writeDay(store, bracket, type, std::move(objects), record.day, record.gid);
  }
}

void saveNoteComplex(Store& store, StoreBracket& bracket, const std::string& type,
                     const std::string& value, Date curdate, const std::string& gid,
                     const List& listData, const std::string& old) {
  const KeyedCourses now(value), before(old);
  for (const std::string& key : before.keys)
    if (!now.holds(key)) removeNoteComplex(store, bracket, type, key);
  const auto add = [&](const Value& object) {
    addNoteComplex(store, bracket, type, object.toJson(), listData, gid, curdate);
  };
  for (const std::string& key : now.keys)
    if (!before.holds(key)) add(now.byKey.at(key));
  for (const Value& object : now.unkeyed) add(object);
}

}  // namespace lad
