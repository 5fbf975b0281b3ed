// An installation on a temporary folder with the program's real database templates, a clock
// pinned in a zone with daylight saving, and a way to look into the live file directly.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "core/context.h"
#include "core/launch.h"
#include "store/first_launch.h"
#include "store/records.h"
#include "store/store.h"
#include "tests/support/test_files.h"

namespace lad::testing {

// The first launch's own profile.
inline const std::string kFirstProfile = "00000000-0000-0000-0001-000000000001";

class StoreTest : public ::testing::Test {
 protected:
  // 2026-03-30 10:00 in Berlin: the day after the change to summer time.
  static Date testNow() { return *dateFromIso("2026-03-30T08:00:00Z"); }

  // The program's resources may be replaced by a folder of the test's own.
  void open(int appid = 1, int langid = 1,
            const std::filesystem::path& resources = LADANEYA_RESOURCES_DIR) {
    store.reset();
    context.reset();
    clock = std::make_shared<ManualClock>(testNow(), "Europe/Berlin");
    context = std::make_unique<Context>(
        ContextOptions{appid, langid, dir.path(), "1.0", clock, resources});
    launch(*context);
    store = std::make_unique<Store>(*context);
  }

  // An installation whose first launch has set up its diary.
  void openDiary(int appid = 1) {
    open(appid);
    fromOldVersion(*store);
  }
  Date day(int d, int m = 3, int y = 2026) const { return context->dates().encodeDate(d, m, y); }
  // SQL run on the live file in a bracket of its own.
  void execute(const std::string& sql) {
    StoreBracket bracket = store->connectToBase();
    ASSERT_TRUE(bracket.db()->execute(sql)) << sql;
  }

  // A record of the day written as the screens write one, and a record's value read back.
  void put(const std::string& type, const std::string& value, Date on,
           const std::string& gid = kFirstProfile) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, type, value, on, gid, true, false);
  }
  std::string valueOn(const std::string& type, Date on, const std::string& gid = kFirstProfile) {
    StoreBracket bracket = store->connectToBase();
    return getDateValue(*store, bracket, on, type, gid);
  }
  // A row of the day's editor.
  static Value row(int tp, const char* field, Value source) {
    Map m;
    m.set("tp", tp);
    m.set("field", field);
    m.set("source", std::move(source));
    return Value(std::move(m));
  }

  std::filesystem::path reserv() const { return dir.path() / "Documents" / "reserv"; }

  // One text cell of the live file, read past the store.
  std::optional<std::string> cell(const std::string& sql) {
    SqliteConnection db(store->liveFile(), SqliteConnection::Mode::ReadOnly);
    SqliteStatement st = db.prepare(sql);
    return st.step() ? st.columnText(0) : std::nullopt;
  }

  TempDir dir;
  std::shared_ptr<ManualClock> clock;
  std::unique_ptr<Context> context;
  std::unique_ptr<Store> store;
};

}  // namespace lad::testing
