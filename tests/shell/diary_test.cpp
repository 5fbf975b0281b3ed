// The diary as a browser drives it: days recorded in the day editor, found in the list and by
// search, moved between, deleted with their files, and the refusals that keep a day intact.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/atomic_file.h"
#include "core/ids.h"
#include "core/text_fold.h"
#include "store/day_photo.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

class DiaryTest : public lad::testing::ApplicationTest {
 protected:
  DiaryTest() { launchApp(); }

  // The target of the editor's row whose icon is given.
  static std::string rowTarget(Session& s, const std::string& icon, const char* prefix = nullptr) {
    const std::string id = rowWith(s, "icon", icon)["id"].text();
    EXPECT_FALSE(id.empty()) << "no row " << icon;
    return prefix ? prefix + id.substr(id.rfind(':') + 1) : id;
  }
  std::string stored(const std::string& type) { return dayValue(type, gid()); }
  static std::string gid() { return newID2(1, 1); }  // the first launch's profile
  // The diary page in front of the menu, its days' cells.
  static Value diary(Session& s) { return s.view()["page"]; }
  static std::vector<std::string> cellDays(Session& s) {
    std::vector<std::string> days;
    const Value page = diary(s);
    for (const Value& item : *page["items"].asList())
      if (item["kind"].text() == "dayCell") days.push_back(item["id"].text());
    return days;
  }
};

TEST_F(DiaryTest, ADayRecordedInTheEditorIsListedUnderItsWeekAndFoundBySearch) {
  auto s = todayEditor();
  ASSERT_TRUE(
      act(*s, {rowTarget(*s, "ne-weight.png", "day:number:") + "=60,5",
               rowTarget(*s, "ne-notepad.png"), "field:text=Первое шевеление", "editor:ok"}));
  // An illness the dictionary lacks is added from the list and ticked at once.
  ASSERT_TRUE(act(*s, {rowTarget(*s, "ne-doctor.png"), "field:add", "field:name=Ветрянка",
                       "editor:ok", "editor:ok"}));
  EXPECT_EQ(stored("ves"), "") << "nothing is stored before the day is left";

  const EventResult closed = tap(*s, "day:close");
  ASSERT_TRUE(closed.ok());
  EXPECT_TRUE(closed.installationChanged);
  // The note and the illness are read back by the list below.
  EXPECT_EQ(stored("ves"), "60.500");

  settings().set("emptyNote", true);  // "don't show empty days"
  ASSERT_TRUE(tap(*s, "menu:8").ok());
  const Value page = diary(*s);
  ASSERT_EQ(page["kind"].text(), "diary");
  const List& items = *page["items"].asList();
  ASSERT_EQ(items.size(), 2u);  // the week's section and the day
  std::string texts;
  for (const Value& row : *items[1]["rows"].asList()) texts += row["text"].text() + "|";
  EXPECT_NE(texts.find("Первое шевеление"), std::string::npos) << texts;
  EXPECT_NE(texts.find("Ветрянка"), std::string::npos) << texts;

  // Searches: a field's name in any case, a word of a text with "ё" for "е", and a miss.
  for (const char* found : {"вес", "ВЕС", "болезнь", "шевеление", "ВЕТРЯНКА"}) {
    ASSERT_TRUE(change(*s, "diary:search", Value(found)).ok());
    EXPECT_EQ(cellDays(*s).size(), 1u) << found;
  }
  for (const char* missed : {"температура", "ёлка"}) {
    ASSERT_TRUE(change(*s, "diary:search", Value(missed)).ok());
    EXPECT_TRUE(cellDays(*s).empty()) << missed;
  }
  ASSERT_TRUE(change(*s, "diary:search", Value("")).ok());
  EXPECT_EQ(cellDays(*s).size(), 1u);
}

TEST_F(DiaryTest, RefusedValuesStoreNothingAndAnUnchangedDayIsNotWritten) {
  auto s = todayEditor();
  const std::string weight = rowTarget(*s, "ne-weight.png", "day:number:");
  ASSERT_TRUE(change(*s, weight, Value("шестьдесят")).ok());
  EXPECT_EQ(s->view()["message"]["caption"].text(), "Ошибка");
  ASSERT_TRUE(tap(*s, "message:ok").ok());
  ASSERT_TRUE(change(*s, "day:photo", Value("data:image/jpeg;base64,AAAA")).ok());
  EXPECT_EQ(s->view()["message"]["text"].text(), "Не удалось прочитать фотографию");
  ASSERT_TRUE(tap(*s, "message:ok").ok());
  EXPECT_FALSE(s->view()["photo"]["picture"].text().starts_with("data:"));

  // Nothing took: moving on to the next day writes nothing.
  EXPECT_FALSE(tap(*s, "day:next").installationChanged);
  EXPECT_EQ(stored("ves"), "");
  EXPECT_FALSE(tap(*s, "day:row:999").ok());
  EXPECT_FALSE(change(*s, "day:number:0", Value("1")).ok()) << "row 0 is not a number";
}

TEST_F(DiaryTest, TheDayPhotoIsWrittenWithItsSmallCopyAndGoesWithTheDeletedDay) {
  auto s = todayEditor();
  ASSERT_TRUE(change(*s, "day:photo", Value(jpegDataUrl(400, 200))).ok());
  EXPECT_TRUE(s->view()["photo"]["picture"].text().starts_with("data:image/jpeg"));
  ASSERT_TRUE(tap(*s, "day:close").ok());
  const DayPhotoFiles files = dayPhotoFiles(app->context(), clock->now(), gid());
  std::string why;
  const std::string bytes = readWholeFile(files.small).value_or("");
  const auto small = platform::decodeImage(
      {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, &why);
  ASSERT_TRUE(small) << why;
  EXPECT_EQ(small->width, 160);
  EXPECT_EQ(small->height, 80);
  ASSERT_TRUE(std::filesystem::exists(files.full));

  const std::vector<std::string> everyDay = (tap(*s, "menu:8"), cellDays(*s));
  EXPECT_GT(everyDay.size(), 1u) << "by default the days without entries are listed too";
  settings().set("emptyNote", true);
  ASSERT_TRUE(act(*s, {"ring:menu", "menu:8"}));
  const std::vector<std::string> days = cellDays(*s);
  ASSERT_EQ(days.size(), 1u) << "a day with only a photo is listed";
  const std::string day = days[0].substr(days[0].rfind(':') + 1);
  ASSERT_TRUE(act(*s, {"diary:delete:" + day, "popup:0"}));  // "Нет" keeps it
  EXPECT_TRUE(std::filesystem::exists(files.small));
  ASSERT_TRUE(act(*s, {"diary:delete:" + day, "popup:1"}));
  EXPECT_FALSE(std::filesystem::exists(files.full) || std::filesystem::exists(files.small));
}

TEST_F(DiaryTest, ADayDeletedInAnotherBrowserIsNotBroughtBackWithoutAsking) {
  auto first = todayEditor();
  ASSERT_TRUE(
      act(*first, {rowTarget(*first, "ne-weight.png", "day:number:") + "=61", "day:close"}));

  auto editing = todayEditor();
  ASSERT_TRUE(
      change(*editing, rowTarget(*editing, "ne-weight.png", "day:number:"), Value("62")).ok());
  noteDeleteValue(app->store(), clock->now(), std::nullopt, gid());  // the other browser

  ASSERT_TRUE(tap(*editing, "day:close").ok());
  EXPECT_EQ(editing->view()["popup"]["kind"].text(), "question");
  EXPECT_EQ(stored("ves"), "");
  ASSERT_TRUE(tap(*editing, "popup:0").ok());  // "Нет": the deletion stands
  EXPECT_EQ(stored("ves"), "");
  EXPECT_NE(editing->view()["kind"].text(), "dayEditor");
}

TEST_F(DiaryTest, TheChildsDiaryYearStaysBetweenTheFirstAndTheFourteenth) {
  launchApp(2);
  auto s = greetedSession();
  ASSERT_TRUE(act(*s, {"card:" + newID2(1, 1), "menu:8"}));
  EXPECT_EQ(diary(*s)["year"]["caption"].text(), "1-й год");
  EXPECT_FALSE(tap(*s, "diary:year:back").ok());
  for (int year = 2; year <= 14; ++year) ASSERT_TRUE(tap(*s, "diary:year:forward").ok()) << year;
  EXPECT_EQ(diary(*s)["year"]["caption"].text(), "14-й год");
  EXPECT_FALSE(diary(*s)["year"]["forward"]["enabled"].boolValue());
  EXPECT_FALSE(tap(*s, "diary:year:forward").ok());
}

TEST_F(DiaryTest, TheCyclesDayTypeIsOneOfSixAndAnOrdinaryDayKeepsNoRecord) {
  launchApp(3);
  const std::string woman = newID2(1, 1);  // the woman's fixed profile
  // The third kind, then "Обычный день".
  for (const auto& [choice, stored] : {std::pair{"popup:2", "3"}, {"popup:0", ""}}) {
    auto s = todayEditor();
    ASSERT_TRUE(act(*s, {rowTarget(*s, "checkgreen.png"), choice, "day:close"}));
    EXPECT_EQ(dayValue("daytype", woman), stored) << choice;
  }
}

// The medicine form: its defaults, a course needs its medicine, one the list lacks is added in
// the chooser, and an hour set by hand stands while hours the course does not have are refused.
// Where the course lands is the store's; its journey over seven days is the browser test's.
TEST_F(DiaryTest, TheMedicineFormNeedsItsMedicineAndKeepsAnHourSetByHand) {
  auto s = todayEditor();
  ASSERT_TRUE(tap(*s, rowTarget(*s, "ne-pills128.png")).ok());
  // A new course is daily and regardless of meals until told otherwise.
  EXPECT_EQ(rowWith(*s, "field", "pillperiod")["shown"].text(), "Ежедневно");
  EXPECT_EQ(rowWith(*s, "field", "pilleat")["shown"].text(), "Независимо от еды");
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_EQ(s->view()["message"]["text"].text(), "Поле 'Выбор лекарства' не заполнено!");
  ASSERT_TRUE(act(*s, {"message:ok", "field:pillname", "field:add", "field:name=Магний B6",
                       "editor:ok", "editor:ok"}));

  ASSERT_TRUE(tap(*s, "field:pillinter").ok());
  ASSERT_TRUE(pick(*s, List{Value(3), Value(0)}).ok());
  ASSERT_TRUE(tap(*s, "field:pilltime:1").ok());
  ASSERT_TRUE(pick(*s, List{Value(13), Value(5)}).ok());
  EXPECT_EQ(source(*s, "pilltime"), "08:00<td>13:05<td>17:15<td>22:00");
  EXPECT_FALSE(change(*s, "field:pilltime:4", Value("09:00")).ok()) << "a fifth hour is not there";
  EXPECT_FALSE(change(*s, "field:pilltime:0", Value("25:00")).ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_EQ(s->view()["kind"].text(), "dayEditor");
}

// Both halves of the Russian alphabet (whose small letters lie in two blocks), "ё" read as "е",
// Latin letters; other letters and a cut-off byte are left as they are.
TEST(TextFold, LatinAndRussianLettersFoldAndYoReadsAsYe) {
  EXPECT_EQ(foldCase("АБВГДЕЖЗИЙКЛМНОП РСТУФХЦЧШЩЪЫЬЭЮЯ Ёлка ёж Week 5 ü Ü"),
            "абвгдежзийклмноп рстуфхцчшщъыьэюя елка еж week 5 ü Ü");
  EXPECT_EQ(foldCase("\xD0"), "\xD0");
}

}  // namespace
}  // namespace lad::shell
