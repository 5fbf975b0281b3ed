#include "store/first_launch.h"

#include <chrono>

#include "core/context.h"
#include "store/restore.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

std::int64_t secondsOf(Date date) {
  return std::chrono::duration_cast<std::chrono::seconds>(date.time_since_epoch()).count();
}

// A new child file: the first child's birthday and sex come from the settings of a very old
// version when they are there, else the birthday is today.
void fromOldVersionChild1(Store& store) {
  Context& context = store.context();
  SettingsStore& settings = context.settings();
  settings.set("FirstStart", true);
  const Date day = settings.dateForKey("Date").value_or(context.clock().now());
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  SqliteStatement update = bracket.db()->prepare("update child set birthday=?, sex=? where chid=1");
  update.bindInt(1, secondsOf(day));
  update.bindInt(2, settings.integerForKey("Sex"));
  update.run();
  // The template's row carries the date columns already, empty: they get the same day.
  SqliteStatement dates =
      bracket.db()->prepare("update child set sbirthdate=? where chid=1 and sbirthdate is null");
  dates.bindText(1, context.dates().dateToString(day, "yyyy-MM-dd"));
  dates.run();
  bracket.markChanged();
}

// Without the old setting "Date" every launch counts as a first start, and the first
// pregnancy's old date columns are set from today.
void fromOldVersionPregFirstStart(Store& store) {
  Context& context = store.context();
  if (context.settings().contains("Date")) return;
  context.settings().set("FirstStart", true);
  const DateCodec& dates = context.dates();
  const Date now = context.clock().now();
  const Date days[] = {now, dates.addDays(now, 13), dates.addDays(now, 280)};
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  SqliteStatement update =
      bracket.db()->prepare("update preg set dat1=?,dat2=?, birthdate=? where pregid=1");
  for (int i = 0; i < 3; ++i) update.bindInt(i + 1, secondsOf(days[i]));
  update.run();
  // The template's row carries the text date columns already, empty: they get the same days.
  SqliteStatement fill = bracket.db()->prepare(
      "update preg set sdat1=?, sdat2=?, sbirthdate=? where pregid=1 and sdat1 is null");
  for (int i = 0; i < 3; ++i) fill.bindText(i + 1, dates.dateToString(days[i], "yyyy-MM-dd"));
  fill.run();
  bracket.markChanged();
}

// The day of first use: the earliest recorded one, else today, which is then recorded.
void fromOldVersionStartUse(Store& store) {
  Context& context = store.context();
  ProcessValues& values = context.values();
  values.startUse = context.dates().dateToString(context.clock().now(), "yyyy-MM-dd");
  const std::string table = tablesFor(values.appid).profile;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  const SqliteConnection& db = *bracket.db();
  if (!db.prepare("select startuse from " + table).ready())
    db.execute("ALTER TABLE " + table + " ADD COLUMN startuse text");
  SqliteStatement first =
      db.prepare("select startuse from " + table + " where startuse is not null limit 1");
  if (first.step()) {
    values.startUse = first.columnText(0).value_or(values.startUse);
    return;
  }
  SqliteStatement write = db.prepare("update " + table + " set startuse=?");
  write.bindText(1, values.startUse);
  write.run();
  bracket.markChanged();
}

}  // namespace

void fromOldVersion(Store& store) {
  const int appid = store.context().values().appid;
  const bool isNew = fromOldVersionNewRestore(store);
  if (isChildEdition(appid) && isNew) fromOldVersionChild1(store);
  if (isPregnancyEdition(appid)) fromOldVersionPregFirstStart(store);
  fromOldVersionStartUse(store);
  store.context().settings().synchronize();
}

}  // namespace lad
