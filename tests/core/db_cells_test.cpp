#include "core/db_cells.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

using namespace std::string_view_literals;

// An in-memory database with one table of three text cells.
class MemoryTable {
 public:
  MemoryTable() {
    sqlite3_open(":memory:", &db_);
    sqlite3_exec(db_, "create table t (day text, moment text, note text)", nullptr, nullptr,
                 nullptr);
  }
  ~MemoryTable() { sqlite3_close(db_); }
  SqliteStatement prepare(const char* sql) const {
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(db_, sql, -1, &stmt, nullptr);
    return SqliteStatement(stmt);
  }

 private:
  sqlite3* db_ = nullptr;
};

TEST(DbCells, DatesGoInAndOutAsColumnText) {
  const DateCodec berlin("Europe/Berlin", 1);
  const Date moment = *dateFromIso("2026-03-29T01:30:00Z");  // 03:30 summer time
  MemoryTable table;
  {
    SqliteStatement insert = table.prepare("insert into t values (?, ?, ?)");
    dateToBase(insert, 1, moment, false, berlin);
    dateToBase(insert, 2, moment, true, berlin);
    insert.bindText(3, "Заметка"sv);
    ASSERT_TRUE(insert.run());
    insert.reset();
    dateToBase(insert, 1, std::nullopt, false, berlin);
    dateToBase(insert, 2, std::nullopt, true, berlin);
    insert.bindNull(3);
    ASSERT_TRUE(insert.run());
  }
  SqliteStatement rows = table.prepare("select day, moment, note from t order by rowid");
  ASSERT_TRUE(rows.step());
  EXPECT_EQ(rows.columnText(1), "2026-03-29 03:30:00");
  EXPECT_EQ(dateFromBase(rows, 0, false, berlin), berlin.noTime(moment));
  EXPECT_EQ(dateFromBase(rows, 1, true, berlin), moment);
  EXPECT_EQ(dateFromBase(rows, 1, false, berlin), std::nullopt);  // not of the day form
  EXPECT_EQ(stringFromBase(rows, 2), "Заметка");
  ASSERT_TRUE(rows.step());
  EXPECT_TRUE(rows.isNull(0) && rows.isNull(1)) << "no date is stored as NULL";
  EXPECT_EQ(dateFromBase(rows, 0, false, berlin), std::nullopt);
  EXPECT_EQ(stringFromBase(rows, 2), std::nullopt);
}

}  // namespace
}  // namespace lad
