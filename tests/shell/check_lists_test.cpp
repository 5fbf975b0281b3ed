// The doctor's plan and the hospital lists: ticks kept per list and profile, the plan's text
// offered for the diary when an item is ticked, the lists shared by every pregnancy, and the
// week's notices read once per pregnancy.
#include <gtest/gtest.h>

#include "content/resource.h"
#include "core/ids.h"
#include "core/text_parts.h"
#include "shell/checks/check_screen.h"
#include "shell/checks/plan_note.h"
#include "shell/editor/editor_view.h"
#include "shell/week_notices.h"
#include "store/selections.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/shell/application_fixture.h"

namespace lad {
namespace {

// The rows of the page's content node.
const List& contentRows(const Value& page) {
  for (const Value& child : *page["children"].asList())
    if (child["kind"].text() == "content" && child["rows"].asList()) return *child["rows"].asList();
  ADD_FAILURE() << "no content";
  static const List none;
  return none;
}

// The targets of the rows with a tick box, and of the links.
std::vector<std::string> targets(const Value& page, std::string_view kind) {
  std::vector<std::string> found;
  for (const Value& row : *&contentRows(page))
    if (const std::string target = row[kind == "tick" ? "target" : "link"].text(); !target.empty())
      found.push_back(target);
  return found;
}

int tickOf(const Value& page, const std::string& target) {
  for (const Value& row : contentRows(page))
    if (row["target"].text() == target) return static_cast<int>(row["tick"].intValue());
  return -1;
}

class CheckListsTest : public testing::ApplicationTest {
 protected:
  void SetUp() override {
    launchApp(1);
    const auto& dates = app->context().dates();
    testing::addPregnancy(app->store(), kGid, dates.addDays(clock->now(), -80), "60");  // week 12
  }
  std::string diary(const std::string& field) { return dayValue(field, kGid); }
  std::vector<std::string> ticks(int list, const std::string& gid = kGid) {
    return loadCheckData(app->store(), list, gid);
  }
  // Closes the editor that a tick opened with its right or left button.
  void closeEditor(bool keep) {
    ASSERT_TRUE(host.pushed);
    EXPECT_TRUE(host.pushed->tap(keep ? shell::kEditorOk : shell::kEditorCancel).ok());
    EXPECT_TRUE(host.pushed->closed());
    host.pushed.reset();
  }
  static constexpr const char* kGid = "CHECK-PREGNANCY";
  testing::RecordingHost host;
};

TEST_F(CheckListsTest, ATickOfThePlanOffersItsTextForTheDiaryAndUntickingLeavesTheDiary) {
  auto page = shell::doctorPage(*app, host, kGid);
  const auto boxes = targets(page->view(), "tick");
  ASSERT_GE(boxes.size(), 2u);

  // Ticked, then the editor cancelled: the tick stays, the diary has nothing.
  ASSERT_TRUE(page->tap(boxes[0]).ok());
  closeEditor(false);
  EXPECT_EQ(ticks(1).size(), 1u);
  EXPECT_EQ(diary("doctor"), "");

  // Unticking opens nothing; ticking again and keeping the text writes it into today.
  ASSERT_TRUE(page->tap(boxes[0]).ok());
  EXPECT_FALSE(host.pushed);
  EXPECT_TRUE(ticks(1).empty());
  ASSERT_TRUE(page->tap(boxes[0]).ok());
  ASSERT_TRUE(host.pushed);
  ASSERT_TRUE(host.pushed->change(shell::fieldTarget("text"), Value("Встала на учёт")).ok());
  closeEditor(true);
  EXPECT_EQ(diary("doctor"), "Встала на учёт");

  // A second item goes on a new line; unticking the first leaves the diary as it is.
  ASSERT_TRUE(page->tap(boxes[1]).ok());
  ASSERT_TRUE(host.pushed);
  const std::string second = host.pushed->view()["rows"].asList()->at(1)["source"].text();
  EXPECT_FALSE(second.empty());
  closeEditor(true);
  EXPECT_EQ(diary("doctor"), "Встала на учёт\n" + second);
  ASSERT_TRUE(page->tap(boxes[0]).ok());
  EXPECT_EQ(diary("doctor"), "Встала на учёт\n" + second);
  EXPECT_EQ(ticks(1).size(), 1u);
}

TEST_F(CheckListsTest, TheHelpOfAnAnalysisSharesTheTickOfThePlanItem) {
  auto page = shell::doctorPage(*app, host, kGid);
  const auto links = targets(page->view(), "link");
  ASSERT_FALSE(links.empty());
  ASSERT_TRUE(page->tap(links[0]).ok());
  ASSERT_TRUE(host.pushed);
  auto help = host.pushed;
  Value helpView = help->view();
  const auto helpBoxes = targets(helpView, "tick");
  ASSERT_FALSE(helpBoxes.empty());
  EXPECT_EQ(tickOf(helpView, helpBoxes[0]), 0);

  // Ticked in the help (the editor kept closed), the item stands ticked in the plan.
  ASSERT_TRUE(help->tap(helpBoxes[0]).ok());
  if (host.pushed != help) closeEditor(false);
  const auto ticked = ticks(1);
  ASSERT_EQ(ticked.size(), 1u);
  int shown = 0;
  const Value plan = shell::doctorPage(*app, host, kGid)->view();
  for (const auto& box : targets(plan, "tick")) shown += tickOf(plan, box);
  EXPECT_GE(shown, 1);
}

TEST_F(CheckListsTest, HospitalListsAreSharedByEveryProfileAndKeepTicksOfRemovedItems) {
  auto page = shell::hospitalListsPage(*app, host);
  const auto links = targets(page->view(), "link");
  ASSERT_EQ(links.size(), 4u);
  ASSERT_TRUE(page->tap(links[0]).ok());
  auto list = host.pushed;
  ASSERT_TRUE(list);
  const auto boxes = targets(list->view(), "tick");
  ASSERT_FALSE(boxes.empty());
  ASSERT_TRUE(list->tap(boxes[0]).ok());
  EXPECT_EQ(host.pushed, list) << "only the doctor's plan offers a text for the diary";

  // A tick of an item no longer in the list stays in the table and changes nothing.
  const std::string shared = newID2(1, 0);
  setCheckData(app->store(), 101, "00000000-GONE-ITEM", true, shared);
  EXPECT_EQ(ticks(101, shared).size(), 2u);
  ASSERT_TRUE(page->tap(links[0]).ok());
  const Value again = host.pushed->view();
  EXPECT_EQ(tickOf(again, boxes[0]), 1);
  int ticked = 0;
  for (const auto& box : targets(again, "tick")) ticked += tickOf(again, box);
  EXPECT_EQ(ticked, 1);
}

TEST_F(CheckListsTest, TheChildsDiaryTakesThePlanTextAsAVaccination) {
  launchApp(2);
  shell::insertIntoNote(*app, kGid, "Прививка БЦЖ", clock->now());
  shell::insertIntoNote(*app, kGid, "Осмотр педиатра", clock->now());
  EXPECT_EQ(diary("priv"), "Прививка БЦЖ\nОсмотр педиатра");
  EXPECT_EQ(diary("doctor"), "");
}

// The first notice of the woman's row in the notice file: its week and its text.
std::pair<int, std::string> firstWomanNotice(const std::filesystem::path& resources) {
  const std::string text = testing::readFile(resources / "content" / "warning.txt");
  for (std::string_view row : splitOn(text, "<tr>")) {
    const auto fields = splitOn(row, "<td>");
    if (fields.size() >= 3 && std::stoi(std::string(fields[0])) == 5)
      return {std::stoi(std::string(fields[1])), std::string(content::trimText(fields[2]))};
  }
  return {0, ""};
}

// The badge, its message and its going once read are the browser test's; here the text shown
// and the dismissal kept per pregnancy.
TEST_F(CheckListsTest, AWeeksNoticesAreReadOnceAndOnlyForTheirPregnancy) {
  const auto [week, text] = firstWomanNotice(LADANEYA_RESOURCES_DIR);
  ASSERT_GT(week, 0);
  const Date first = app->context().dates().addDays(clock->now(), -(week - 1) * 7);
  for (const char* gid : {"READER", "OTHER"}) testing::addPregnancy(app->store(), gid, first, "60");
  const auto message = shell::readWeekNotices(app->store(), 5, "READER");
  ASSERT_TRUE(message);
  EXPECT_NE(message->text.find(text), std::string::npos) << message->text;
  EXPECT_FALSE(shell::readWeekNotices(app->store(), 5, "READER")) << "read once, they are gone";
  EXPECT_FALSE(shell::weekNotices(app->store(), 5, "OTHER").empty());
}

}  // namespace
}  // namespace lad
