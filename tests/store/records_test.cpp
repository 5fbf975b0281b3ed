#include "store/records.h"

#include <gtest/gtest.h>

#include "store/dictionary.h"
#include "store/store.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

const std::string kFirst = testing::kFirstProfile;
const std::string kOther = "OTHER-PROFILE";

class RecordsTest : public testing::StoreTest {
 protected:
  void SetUp() override { openDiary(1); }
  std::string rowsOf(const std::string& sdat, const std::string& gid = kFirst) {
    SqliteConnection db(store->liveFile(), SqliteConnection::Mode::ReadOnly);
    SqliteStatement st = db.prepare(
        "select group_concat(type || '=' || value, ';') from (select type, value from pregdata "
        "where sdat=? and pregguid=? order by type)");
    st.bindText(1, sdat);
    st.bindText(2, gid);
    return st.step() ? st.columnText(0).value_or("") : "";
  }
};

TEST_F(RecordsTest, SavingADayReplacesItWholeAndLeavesOtherProfilesAlone) {
  put("note", "старая запись", day(29));
  put("ves", "70", day(29), kOther);
  put("note", "вчера", day(28));
  const List rows{row(3, "note", "Первое шевеление<tr>и радость"), row(7, "ves", "60,5"),
                  row(1, "changes", ""), row(100, "photo", "x.jpg"),
                  row(3, "unknownfield", "kept as given")};
  saveNoteData(*store, kNoteFromEditor, rows, {}, kFirst, day(29));
  EXPECT_EQ(rowsOf("2026-03-29"),
            "note=Первое шевеление<tr>и радость;unknownfield=kept as given;ves=60,5");
  EXPECT_EQ(rowsOf("2026-03-29", kOther), "ves=70");
  EXPECT_EQ(rowsOf("2026-03-28"), "note=вчера");

  saveNoteData(*store, kNoteFromEditor, {row(3, "note", ""), row(7, "ves", "")}, {}, kFirst,
               day(29));
  EXPECT_EQ(rowsOf("2026-03-29"), "") << "a day saved empty keeps no rows";
  EXPECT_EQ(rowsOf("2026-03-29", kOther), "ves=70");
}

TEST_F(RecordsTest, AFailureHalfWayLeavesTheDayAsItWas) {
  put("note", "до", day(29));
  execute(
      "create trigger refuse before insert on pregdata when new.value='сбой' "
      "begin select raise(abort, 'refused'); end");
  saveNoteData(*store, kNoteFromEditor, {row(3, "note", "после"), row(3, "doctor", "сбой")}, {},
               kFirst, day(29));
  EXPECT_EQ(rowsOf("2026-03-29"), "note=до");
}

TEST_F(RecordsTest, KindsWithRulesOfTheirOwn) {
  openDiary(3);
  saveNoteData(*store, kNoteFromEditor, {row(14, "daytype", "1"), row(3, "note", "x")}, {}, kFirst,
               day(29));
  EXPECT_EQ(valueOn("daytype", day(29)), "") << "an ordinary day is not stored";
  EXPECT_EQ(cell("select womid from womdata where type='note'"), "1")
      << "the cycle queries find new rows by the first woman's number";
  saveNoteData(*store, kNoteFromEditor, {row(14, "daytype", "3")}, {}, kFirst, day(29));
  EXPECT_EQ(valueOn("daytype", day(29)), "3");
}

TEST_F(RecordsTest, ABirthIsRecordedOnTheProfileAndUndoneOnlyOnItsDay) {
  saveNoteData(*store, kNoteFromEditor, {row(16, "birthresult", "{\"ves\":\"3.2\"}")}, {}, kFirst,
               day(29));
  EXPECT_EQ(cell("select sbirthdate2 from preg where pregid=1"), "2026-03-29");
  EXPECT_EQ(rowsOf("2026-03-29"), "") << "the birth is no diary record";
  saveNoteData(*store, kNoteFromEditor, {row(16, "birthresult", "")}, {}, kFirst, day(30));
  EXPECT_EQ(cell("select birthresult from preg where pregid=1"), "{\"ves\":\"3.2\"}");
  saveNoteData(*store, kNoteFromEditor, {row(16, "birthresult", "")}, {}, kFirst, day(29));
  EXPECT_EQ(cell("select coalesce(sbirthdate2, birthresult) from preg where pregid=1"),
            std::nullopt);
}

TEST_F(RecordsTest, TheLastValueFallsBackOnTheProfileAndKeepsItsDay) {
  execute("update preg set ves='58.5' where pregid=1");
  put("ves", "61.2", day(10));
  put("ves", "0", day(20));
  EXPECT_FLOAT_EQ(getLastValue(*store, day(15), "ves", kFirst), 61.2f);
  EXPECT_FLOAT_EQ(getLastValue(*store, day(25), "ves", kFirst), 58.5f)
      << "a stored 0 is passed over to the profile";
  EXPECT_EQ(getLastValueDate(*store), day(20));

  StoreBracket bracket = store->connectToBase();
  EXPECT_EQ(getLastDateValue(*store, bracket, day(10), "ves", kFirst), "")
      << "the day itself is not before itself";
  EXPECT_EQ(getLastDateValue(*store, bracket, day(11), "ves", kFirst), "61.2");
}

TEST_F(RecordsTest, InsertAndDeleteOfSingleRecords) {
  put("note", "a", day(29));
  {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, "note", "b", day(29), kFirst, false, true);
    insertValue(*store, bracket, "doctor", "", day(29), kFirst, true, false);
  }
  EXPECT_EQ(rowsOf("2026-03-29"), "note=a")
      << "justNew keeps the row; an empty value writes nothing";
  put("doctor", "вопрос", day(29));
  put("note", "b", day(29), kOther);
  noteDeleteValue(*store, day(29), std::string("note"), kFirst);
  EXPECT_EQ(rowsOf("2026-03-29"), "doctor=вопрос");
  noteDeleteValue(*store, day(29), std::nullopt, kFirst);
  EXPECT_EQ(rowsOf("2026-03-29"), "");
  EXPECT_EQ(rowsOf("2026-03-29", kOther), "note=b");
}

TEST_F(RecordsTest, ADayFromAnotherDeviceBringsTheDictionaryEntriesItUses) {
  List listData;
  addToList(listData, "NEW-ENTRY-GUID", "Отеки ног", 2, false);
  saveNoteData(*store, kNoteFromCloud, {row(1, "fillings", "NEW-ENTRY-GUID")}, listData, kFirst,
               day(29));
  EXPECT_EQ(valueOn("fillings", day(29)), "NEW-ENTRY-GUID");
  EXPECT_EQ(cell("select coname from pregconst where coguid='NEW-ENTRY-GUID'"), "Отеки ног");
}

}  // namespace
}  // namespace lad
