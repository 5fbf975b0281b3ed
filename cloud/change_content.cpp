#include "cloud/change_content.h"

#include "cloud/change_folder.h"
#include "cloud/change_images.h"
#include "core/context.h"
#include "health/child_feeding.h"
#include "store/day_loader.h"
#include "store/dictionary.h"
#include "store/setup_data.h"
#include "store/store.h"
#include "store/values/today_note.h"

namespace lad::cloud {

namespace {

Map withSetup(Store& store, const std::string& gid) {
  Map root;
  root.set("gid", gid);
  root.set("setup", loadSetupData(store, gid));
  return root;
}

std::string isoDay(const Store& store, Date day) {
  return store.context().dates().dateToString(day, "yyyy-MM-dd");
}

// Only "tp", "field" and "source" of each record travel; the rest is made again on arrival.
List dayRecords(Store& store, Date day, const std::string& gid, const List& listData) {
  List rows;
  noteStructToTodayNote(store.context(), todayNoteForDay(store, day, gid), rows, listData);
  List records;
  for (const Value& row : rows) {
    Map record;
    record.set("tp", row["tp"].intValue());
    record.set("field", row["field"].text());
    record.set("source", row["source"].isNull() ? Value("") : row["source"]);
    records.push_back(Value(std::move(record)));
  }
  return records;
}

List feedingRows(Store& store, Date day, const std::string& gid) {
  List rows;
  for (const Value& feeding : health::loadKormForDate(store, day, gid)) {
    Map row;
    for (const char* key : {"kodates", "kotype", "kovalue", "kosum"}) row.set(key, feeding[key]);
    rows.push_back(Value(std::move(row)));
  }
  return rows;
}

}  // namespace

Map profileChange(Store& store, const std::string& gid) {
  Map root = withSetup(store, gid);
  root.set("images", profileImages(store.context(), *root["setup"].asMap(), gid));
  return root;
}

Map dayChange(Store& store, Date day, const std::string& gid) {
  Map root = withSetup(store, gid);
  const List listData = loadConstList(store, 0, std::nullopt);
  List records = dayRecords(store, day, gid, listData);
  root.set("images", dayImages(store.context(), day, gid, records));
  root.set("data", std::move(records));
  root.set("const", listData);
  root.set("date", isoDay(store, day));
  return root;
}

Map feedingChange(Store& store, Date day, const std::string& gid) {
  Map root = withSetup(store, gid);
  root.set("kormdata", feedingRows(store, day, gid));
  root.set("const", loadConstList(store, 0, std::nullopt));
  root.set("date", isoDay(store, day));
  return root;
}

std::optional<std::string> dataToCloud(Store& store, ChangeKind kind, std::optional<Date> day,
                                       const std::string& gid, std::string* error) {
  const bool daily = kind == kChangeDay || kind == kChangeFeedings;
  if (daily != day.has_value() || kind == kChangeTicks) {
    if (error) *error = "a change of this kind is not made from a profile and a day like these";
    return std::nullopt;
  }
  const std::string name = daily ? changeFileName(kind, gid, changeDayPart(store.context(), *day))
                                 : changeFileName(kind, gid);
  const Map root = kind == kChangeProfile ? profileChange(store, gid)
                   : kind == kChangeDay   ? dayChange(store, *day, gid)
                                          : feedingChange(store, *day, gid);
  if (!writeChangeFile(store.context(), name, root, error)) return std::nullopt;
  return name;
}

}  // namespace lad::cloud
