// The week, body and baby pages of a pregnancy on the real content files, at set days.
#include <gmock/gmock.h>

#include "content/resource.h"
#include "core/text_fill.h"
#include "core/text_parts.h"
#include "core/value.h"
#include "health/growth_series.h"
#include "shell/week/baby_page.h"
#include "shell/week/reading.h"
#include "shell/week/today_page.h"
#include "shell/week/week_facts.h"
#include "shell/week/woman_page.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/shell/application_fixture.h"

namespace lad::testing {
namespace {

using ::testing::StartsWith;

// The edges of the week tables: the first and last weeks with a picture, fruit or length, the
// month turning over, and an organ's wheel before and inside its weeks (after them, the baby
// page's full badge).
TEST(WeekFacts, TheTablesEdgesFollowTheDay) {
  EXPECT_EQ(shell::movieFrames(1).front(), "2w001.jpg");
  EXPECT_EQ(shell::movieFrames(50).front(), "37w001.jpg");
  EXPECT_EQ(shell::fruitCaption(3), shell::fruitCaption(0));
  EXPECT_NE(shell::fruitCaption(4), shell::fruitCaption(3));
  EXPECT_EQ(shell::fruitCaption(45), shell::fruitCaption(38));

  EXPECT_EQ(shell::bodyPageLength(28, 9), "-");
  EXPECT_EQ(shell::bodyPageLength(29, 9), "2 мм.");
  EXPECT_EQ(shell::bodyPageLength(63, 9), "14 мм.");
  EXPECT_EQ(shell::bodyPageLength(64, 16.5), "16.5 мм.");

  EXPECT_EQ(shell::bodyMonth(29), 1);
  EXPECT_EQ(shell::bodyMonth(30), 2);
  EXPECT_EQ(shell::bodyMonth(400), 9);

  const auto heart = shell::organs()[3];  // weeks 5 to 10
  EXPECT_EQ(shell::organDegrees(heart, 20), 0);
  EXPECT_EQ(shell::organDegrees(heart, 52), 174);
}

// The texts of one group's body rows, as the content file holds them.
std::vector<std::string> bodyLines(const std::filesystem::path& folder, const char* name,
                                   int group) {
  const std::string text = content::extractGroupText(content::fileToString(folder, name), group);
  std::vector<std::string> lines;
  for (auto line : splitOn(text, "\n")) lines.emplace_back(line);
  return lines;
}

// The value shown on fact card `card` of the page's `n`-th cards.
std::string fact(const Value& page, std::size_t n, std::size_t card, const char* key = "value") {
  return nth(nth(page["children"], n)["facts"], card)[key].text();
}

// The first child node of the kind with the key equal to the value.
const Value* child(const Value& page, std::string_view kind, std::string_view key = "",
                   std::string_view value = "") {
  for (const Value& c : *page["children"].asList())
    if (c["kind"].text() == kind && (key.empty() || c[std::string(key)].text() == value)) return &c;
  return nullptr;
}

// The nodes of the n-th screen of a page made of screens.
const Value& screen(const Value& page, std::size_t n) {
  return nth((*child(page, "screens"))["screens"], n);
}

std::vector<std::string> rowTexts(const Value& content) {
  std::vector<std::string> texts;
  for (const Value& row : *content["rows"].asList()) texts.push_back(row["text"].text());
  return texts;
}

class WeekPagesTest : public ApplicationTest {
 protected:
  // The text opened over the page: its title, the group marked and the headings shown.
  void expectWeekText(const char* title, int week) {
    ASSERT_TRUE(host.pushed);
    const Value view = host.pushed->view();
    EXPECT_EQ(view["title"].text(), title);
    const Value& text = *child(view, "content", "id", "reading");
    EXPECT_EQ(text["highlight"].intValue(), week);
    EXPECT_THAT(rowTexts(text), ::testing::Contains(StartsWith(std::to_string(week) + " неделя")));
    host.pushed.reset();
  }
  RecordingHost host;
  // A new pregnancy, on its day `day` today; returns its profile.
  std::string pregnancyOnDay(int day) {
    if (!app) launchApp(1);
    const std::string gid = "WEEK-PROFILE-" + std::to_string(day);
    const auto& dates = app->context().dates();
    addPregnancy(app->store(), gid, dates.addDays(clock->now(), 1 - day), "60");
    return gid;
  }
  std::filesystem::path folder() const { return shell::contentFolder(app->context()); }
};

TEST_F(WeekPagesTest, TodayShowsTheCardsAndTextsOfThePresentWeek) {
  shell::TodayPage page(*app, pregnancyOnDay(81), 1);  // week 12
  Value view = page.view();
  // Trimester, week, day, and the week counted from conception, two weeks later.
  for (auto [card, shown] : {std::pair{0, "1"}, {1, "12"}, {2, "81"}, {3, "10"}})
    EXPECT_EQ(fact(screen(view, 0), 0, card), shown) << card;
  // Eleven whole weeks of the growth table.
  const auto size = health::getVesRost(11, 1);
  EXPECT_EQ(fact(screen(view, 1), 0, 0),
            formatFixed(size.ves, 1) + " гр.\n" + formatFixed(size.rost, 1) + " мм.");
  const auto& dates = app->context().dates();
  EXPECT_EQ(fact(screen(view, 1), 0, 1),
            dates.dateToString(dates.addDays(clock->now(), 200), "dd.MM.yyyy"));

  const auto woman = rowTexts(*child(screen(view, 3), "content", "id", "woman"));
  EXPECT_EQ(woman, bodyLines(folder(), "woman-u", 12));
  EXPECT_FALSE(woman.empty());

  // The third trimester, and a pregnancy far past its term.
  view = shell::TodayPage(*app, pregnancyOnDay(204), 1).view();
  EXPECT_EQ(fact(screen(view, 0), 0, 0), "3");
  view = shell::TodayPage(*app, pregnancyOnDay(310), 1).view();
  for (std::size_t card = 1; card <= 3; ++card) EXPECT_EQ(fact(screen(view, 0), 0, card), "-");

  // A child born on day 270: the date of birth, and the week stands where the birth left it.
  const Date first = dates.addDays(clock->now(), -300);
  addPregnancy(app->store(), "BORN", first, "60", dates.addDays(first, 269));
  view = shell::TodayPage(*app, "BORN", 1).view();
  EXPECT_EQ(fact(screen(view, 1), 0, 1),
            dates.dateToString(dates.addDays(first, 269), "dd.MM.yyyy"));
  EXPECT_EQ(fact(screen(view, 0), 0, 1), "39");
}

TEST_F(WeekPagesTest, BabyShowsEachOrgansShareAndDimsTheFutureAchievements) {
  shell::BabyPage page(*app, host, pregnancyOnDay(204), 1);  // week 30, 203 days since the start
  Value view = page.view();
  const List& organs = *(*child(view, "list"))["rows"].asList();
  ASSERT_EQ(organs.size(), 10u);
  EXPECT_EQ(organs[3]["badge"].text(), "100%");
  EXPECT_EQ(organs[1]["badge"].text(), std::to_string((203 - 35) * 360 / 189 * 100 / 360) + "%");

  // The achievements: weeks up to 30 in full, later ones dimmed.
  const Value& rich = *child(view, "content", "id", "organ");
  int dimmed = 0;
  for (const Value& row : *rich["rows"].asList()) {
    EXPECT_EQ(row["alpha"].doubleValue(), row["group"].intValue() > 30 ? 0.3 : 1.0)
        << row["text"].text();
    dimmed += row["alpha"].doubleValue() < 1;
  }
  EXPECT_GT(dimmed, 0);

  ASSERT_TRUE(page.tap("baby:child").ok());
  expectWeekText("Малыш по неделям", 30);
  EXPECT_FALSE(page.tap("baby:organ:10").ok());
}

TEST_F(WeekPagesTest, WomanShowsTheFruitAndOpensTheWeeksDetail) {
  shell::WomanPage page(*app, host, pregnancyOnDay(81), 1);  // month 3, week 12
  Value view = page.view();
  const auto length = health::getVesRost(11, 1).rost;
  EXPECT_EQ((*child(view, "text", "id", "fruit"))["text"].text(),
            "Малыш размером с лайм.\nДлина от макушки до копчика составляет " +
                formatDouble(length) + " мм.");

  ASSERT_TRUE(page.tap("woman:detail").ok());
  expectWeekText("Подробнее", 12);
  EXPECT_FALSE(page.tap("woman:other").ok());

  // Week 3 has no size yet (the month and fruit of other weeks are the tables' edges above).
  view = shell::WomanPage(*app, host, pregnancyOnDay(20), 1).view();
  EXPECT_EQ((*child(view, "text", "id", "fruit"))["text"].text(),
            std::string(shell::fruitCaption(0)) + " -");
}

}  // namespace
}  // namespace lad::testing
