#include "store/pill_courses.h"

#include <gtest/gtest.h>

#include <set>

#include "core/ids.h"
#include "core/json_text.h"
#include "store/dictionary.h"
#include "store/records.h"
#include "store/values/regimen.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

const std::string kGid = testing::kFirstProfile;

class PillCoursesTest : public testing::StoreTest {
 protected:
  void SetUp() override {
    openDiary(1);
    list = loadConstList(*store, 0, std::nullopt);
  }
  static std::string period(int n) { return newID2(4, n); }

  static Value course(const std::string& key, const std::string& first, const std::string& length,
                      int periodNumber = 10) {
    Regimen r;
    r.pillname = newID2(4, 4);
    r.pillperiod = period(periodNumber);
    r.pilllength = length;
    r.pillsdate = first;
    r.key = key;
    return r.toValue();
  }
  static std::string array(std::initializer_list<Value> objects) {
    return jsonFromObject(Value(List(objects)));
  }

  // The days holding a pills record of the profile, "dd.MM" each, and how many courses each has.
  std::string days(const std::string& gid = kGid) {
    SqliteConnection db(store->liveFile(), SqliteConnection::Mode::ReadOnly);
    SqliteStatement st = db.prepare(
        "select strftime('%d.%m', sdat), value from pregdata where type='pills' and pregguid=? "
        "order by date(sdat)");
    st.bindText(1, gid);
    std::string out;
    while (st.step()) {
      const Value tree = jsonToArray(st.columnText(1));
      out += (out.empty() ? "" : " ") + *st.columnText(0) +
             (tree.asList() ? "x" + std::to_string(tree.asList()->size()) : "?");
    }
    return out;
  }
  void add(const Value& object, const std::string& gid = kGid) {
    StoreBracket bracket = store->connectToBase();
    addNoteComplex(*store, bracket, "pills", object.toJson(), list, gid, day(30));
  }
  void saveDay(Date on, const std::string& value) {
    saveNoteData(*store, kNoteFromEditor, {row(23, "pills", value)}, list, kGid, on);
  }

  List list;
};

TEST_F(PillCoursesTest, TheLastDayAndStepsOfACourse) {
  const DateCodec& dates = context->dates();
  // One month from 31 January ends on 27 February: the month step stops on 28 February.
  EXPECT_EQ(lastCourseOffset(dates, "1<td>месяцы", day(31, 1)), 27);
  EXPECT_EQ(lastCourseOffset(dates, "3<td>годы", day(30)), 0);
  EXPECT_EQ(lastCourseOffset(dates, "0<td>дни", day(30)), -1);
  EXPECT_EQ(lastCourseOffset(dates, "99999999<td>дни", day(30)), 99);
  EXPECT_EQ(courseStep(*context, "Через неделю", 3), 7);
  EXPECT_EQ(courseStep(*context, "", 3), 1);
}

TEST_F(PillCoursesTest, ACourseLandsOnTheDaysItsPeriodicityPicks) {
  // 30 March 2026 is a Monday.
  add(course("K3", "30.03.2026", "2<td>недели", 14));
  EXPECT_EQ(days(), "30.03x1 31.03x1 02.04x1 05.04x1 07.04x1 09.04x1 12.04x1");
  add(course("K2", "30.03.2026", "1<td>недели", 13));
  EXPECT_EQ(days(), "30.03x2 31.03x1 02.04x2 05.04x1 07.04x1 09.04x1 12.04x1");

  // A course without a key gets one, and the same on each of its days.
  add(course("", "01.05.2026", "3<td>дни"));
  std::set<std::string> keys;
  for (int d = 1; d <= 3; ++d)
    keys.insert((*jsonToArray(valueOn("pills", day(d, 5))).asList())[0]["key"].text());
  ASSERT_EQ(keys.size(), 1u);
  EXPECT_TRUE(isID(*keys.begin()));

  // Only the pills keyword spreads; a value in the old form replaces the day as it stands.
  StoreBracket bracket = store->connectToBase();
  addNoteComplex(*store, bracket, "alarm", course("A", "01.06.2026", "3<td>дни").toJson(), list,
                 kGid, day(1, 6));
  EXPECT_EQ(getDateValue(*store, bracket, day(1, 6), "alarm", kGid), "");
  addNoteComplex(*store, bracket, "pills", "Арбидол<table>1", list, kGid, day(30));
  EXPECT_EQ(getDateValue(*store, bracket, day(30), "pills", kGid), "Арбидол<table>1");
}

TEST_F(PillCoursesTest, RemovingACourseClearsItFromEveryDayAndProfile) {
  add(course("GONE", "30.03.2026", "3<td>дни"));
  add(course("STAYS", "31.03.2026", "1<td>дни"));
  add(course("GONE", "30.03.2026", "2<td>дни"), "OTHER");
  {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, "pills", "old text naming GONE", day(5, 4), kGid, true, false);
    removeNoteComplex(*store, bracket, "pills", "");
    removeNoteComplex(*store, bracket, "alarm", "GONE");
  }
  EXPECT_EQ(days(), "30.03x1 31.03x2 01.04x1 05.04?")
      << "an empty key or other keyword removes nothing";
  {
    StoreBracket bracket = store->connectToBase();
    removeNoteComplex(*store, bracket, "pills", "GONE");
    EXPECT_EQ(getDateValue(*store, bracket, day(31), "pills", kGid).find("GONE"),
              std::string::npos);
  }
  EXPECT_EQ(days(), "31.03x1 05.04?");
  EXPECT_EQ(days("OTHER"), "");
}

TEST_F(PillCoursesTest, SavingADayReachesEveryDayOfItsCourses) {
  const Value first = course("A", "29.03.2026", "4<td>дни");
  saveDay(day(30), array({first}));
  EXPECT_EQ(days(), "29.03x1 30.03x1 31.03x1 01.04x1") << "written on days before the saved one";

  // An edit comes with a new key: the old course leaves all its days, the new one lands.
  Value edited = course("B", "29.03.2026", "2<td>дни", 11);
  saveDay(day(31), array({edited}));
  EXPECT_EQ(days(), "29.03x1");
  // Saving a day that keeps its course rewrites nothing and adds what has no key yet.
  saveDay(day(29), array({edited, course("", "29.03.2026", "2<td>дни")}));
  EXPECT_EQ(days(), "29.03x2 30.03x1");
  EXPECT_EQ((*jsonToArray(valueOn("pills", day(29))).asList())[0], edited);
  // Clearing the field on one day takes its courses off all their days, and no other course.
  saveDay(day(30), "");
  EXPECT_EQ(days(), "29.03x1");
  saveDay(day(29), "");
  EXPECT_EQ(days(), "");
}

}  // namespace
}  // namespace lad
