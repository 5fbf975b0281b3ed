#include "store/day_rows.h"

#include <gtest/gtest.h>

#include "store/values/today_note.h"
#include "tests/store/day_fixture.h"

namespace lad {
namespace {

class DayRowsTest : public testing::DayTest {
 protected:
  std::string textFor(int tp, const std::string& source, const List& entries = {}) {
    Map row;
    row.set("tp", tp);
    row.set("source", source);
    updateNoteToday(*context, row, entries, std::nullopt);
    return row["text"].text();
  }
  // The stored rows of the day, sorted, as "type=value;".
  std::string storedDay(const char* sdat) {
    SqliteConnection db(store->liveFile(), SqliteConnection::Mode::ReadOnly);
    SqliteStatement st = db.prepare(
        std::string("select group_concat(type || '=' || value, ';') from (select type, value "
                    "from ") +
        tablesFor(context->values().appid).data + " where sdat=? order by type, value)");
    st.bindText(1, sdat);
    return st.step() ? st.columnText(0).value_or("") : "";
  }
};

TEST_F(DayRowsTest, EachKindShowsItsValue) {
  openEdition(1);
  List entries;
  addToList(entries, "6F9619FF-8B86-D011-B42D-00C04FC964AA", "Тошнота<tr>1", 2, false);
  addToList(entries, "6F9619FF-8B86-D011-B42D-00C04FC964BB", "Слабость", 2, false);
  struct Case {
    int tp;
    const char* source;
    const char* text;
  } const cases[] = {
      {1, "6F9619FF-8B86-D011-B42D-00C04FC964AA<tr>6F9619FF-8B86-D011-B42D-00C04FC964BB",
       "Тошнота\nСлабость"},
      {3, "просто текст", "просто текст"},
      {7, "61.5", "61.5"},
      {14, "1", ""},
      {14, "2", "Первый день месячных"},
      {15, R"({"rost":"45","ves":"2.5"})", "Рост: 45.0\nВес: 2.500"},
      {15, R"({"rost":"0","ves":"2.5"})", "Вес: 2.500"},
      {16, R"({"type":"2","rost":"51","ves":"3.4","time":"10:20"})",
       "Кесарево сечение\nРост: 51\nВес: 3.4\nВремя родов: 10:20"},
      {16, R"({"type":"1","rost":"50"})", "Естественные роды\nРост: 50\nВес: \nВремя родов: "},
      {16, "51<tr>3.4", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(textFor(c.tp, c.source, entries), c.text) << c.source;
}

TEST_F(DayRowsTest, ADayThroughItsRowsAndBackIsUnchanged) {
  openEdition(1);
  const Date on = day(12, 3, 2026);
  testing::addPregnancy(*store, kGid, day(1, 1, 2026), "60", on, R"({"type":"1","rost":"50"})");
  const std::pair<std::string, std::string> records[] = {
      {"note", "Заметка<tr>в две строки"},
      {"ves", "61,5"},
      {"temp", R"([{"time":"08:00","temp":"36.6"}])"},
      {"pressure", R"([{"time":"07:30","pressure1":"120","pressure2":"80","comment":""}])"},
      {"bolezn", recovery},
      {"uzi", R"({"rost":"45","ves":"2.5"})"},
  };
  for (const auto& [type, value] : records) put(type, value, on);
  testing::addPhoto(*context, on, kGid);
  const std::string before = storedDay("2026-03-12");

  const Map loaded = todayNoteForDay(*store, on, kGid);
  List rows;
  noteStructToTodayNote(*context, loaded, rows, listData);
  ASSERT_EQ(rows.size(), 15u);
  EXPECT_EQ(rows[12]["source"].text(), R"({"type":"1","rost":"50"})") << "the birth of that day";
  EXPECT_TRUE(rows[14]["isphoto"].boolValue());
  EXPECT_EQ(rows[14]["photopath"], loaded["photopath2"]);

  saveNoteData(*store, kNoteFromEditor, rows, listData, kGid, on);
  EXPECT_EQ(storedDay("2026-03-12"), before);
  // The same keys and values; the order of the keys follows the order of the stored rows.
  EXPECT_EQ(nlohmann::json::parse(Value(todayNoteForDay(*store, on, kGid)).toJson()),
            nlohmann::json::parse(Value(loaded).toJson()));
}

}  // namespace
}  // namespace lad
