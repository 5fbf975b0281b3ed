#include "shell/contraction_screen.h"

#include <gtest/gtest.h>

#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;

class ContractionScreenTest : public lad::testing::ApplicationTest {
 protected:
  ContractionScreenTest() { launchApp(); }

  // A session on the counter, opened by its shortcut.
  std::unique_ptr<Session> counter() {
    auto s = greetedSession();
    shortcut(*s, "SCHVATKI");
    return s;
  }
  // Times one contraction of len seconds after a pause.
  void time(Session& s, std::chrono::seconds pause, std::chrono::seconds len) {
    clock->advance(pause);
    ASSERT_TRUE(tap(s, kContractionStart).ok());
    clock->advance(len);
    ASSERT_TRUE(tap(s, kContractionStop).ok());
  }
  static const Value* child(const Value& page, const std::string& kind, std::size_t nth = 0) {
    for (const auto& c : *page["children"].asList())
      if (c["kind"].text() == kind && nth-- == 0) return &c;
    return nullptr;
  }
};

TEST_F(ContractionScreenTest, StartStopAndTheTickChain) {
  // The texts, the running time and the charts of the page are the browser test's; here the
  // chain of ticks behind them.
  auto s = counter();
  const EventResult started = tap(*s, kContractionStart);
  ASSERT_TRUE(started.ok());
  ASSERT_TRUE(started.timer);
  EXPECT_EQ(started.timerDelay, 1s);

  EventResult tick = started.timer();
  ASSERT_TRUE(tick.timer);
  ASSERT_TRUE(tap(*s, kContractionStop).ok());
  EXPECT_FALSE(tap(*s, kContractionStop).ok());
  tick = tick.timer();  // the fade-out tick
  ASSERT_TRUE(tick.timer);
  EXPECT_TRUE((*child(s->view()["page"], "timer"))["visible"].boolValue());
  EXPECT_FALSE(tick.timer().timer);
  EXPECT_FALSE((*child(s->view()["page"], "timer"))["visible"].boolValue());
}

TEST_F(ContractionScreenTest, TrendListAndSwipeToDelete) {
  auto s = counter();
  for (auto [pause, len] : {std::pair{0s, 40s}, {300s, 45s}, {290s, 50s}, {280s, 55s}})
    time(*s, pause, len);
  EXPECT_EQ((*child(s->view()["page"], "text"))["regim"].intValue(), 3);

  // A pause of more than an hour opens a second group (its texts are the series' own).
  time(*s, 3601s, 30s);
  Value page = s->view()["page"];
  ASSERT_TRUE(child(page, "section", 1));
  const Value& lastGroup = *child(page, "list", 1);
  ASSERT_EQ(lastGroup["rows"].asList()->size(), 1u);
  const Value& row = lastGroup["rows"].asList()->at(0);

  // Deleting the only contraction of a group removes its section.
  ASSERT_TRUE(tap(*s, row["deleteTarget"].text()).ok());
  page = s->view()["page"];
  EXPECT_FALSE(child(page, "section", 1));
  EXPECT_EQ((*child(page, "list"))["rows"].asList()->size(), 4u);
  EXPECT_FALSE(tap(*s, std::string(kContractionDelete) + "x1").ok());

  ASSERT_TRUE(tap(*s, kContractionClose).ok());
  EXPECT_EQ(s->frontPage(), std::nullopt);  // closing the page uncovers the menu
}

// The running contraction belongs to the installation: a look at the menu and a second browser
// see it, and it is stored whole (the browser test times one across a locked screen).
TEST_F(ContractionScreenTest, ARunningContractionOutlivesThePageAndIsSharedByEveryBrowser) {
  auto phone = counter();
  const EventResult started = tap(*phone, kContractionStart);
  ASSERT_TRUE(started.ok());
  clock->advance(40s);
  ASSERT_TRUE(tap(*phone, "ring:menu").ok());

  auto tablet = counter();
  EXPECT_TRUE((*child(tablet->view()["page"], "timer"))["running"].boolValue());
  EXPECT_FALSE(tap(*tablet, kContractionStart).ok()) << "one contraction at a time";
  clock->advance(5s);
  ASSERT_TRUE(tap(*tablet, kContractionStop).ok());

  // The first browser comes back to the counter and finds the contraction in its list.
  shortcut(*phone, "SCHVATKI");
  const Value page = phone->view()["page"];
  ASSERT_TRUE(child(page, "list"));
  EXPECT_EQ((*child(page, "list"))["rows"].asList()->at(0)["caption"].text(), "00:45");
  // Its old tick chain runs out by itself: the fade ends and no further tick is armed.
  EventResult tick = started.timer();
  while (tick.timer) tick = tick.timer();
  EXPECT_FALSE((*child(phone->view()["page"], "timer"))["visible"].boolValue());
}

// A page shown in one browser loads again when another browser changed the data.
TEST_F(ContractionScreenTest, AnOpenPageShowsWhatAnotherBrowserStored) {
  auto phone = counter();
  auto tablet = counter();
  time(*tablet, 0s, 30s);
  const Value page = phone->view()["page"];
  const Value* list = child(page, "list");
  ASSERT_TRUE(list);
  EXPECT_EQ((*list)["rows"].asList()->size(), 1u);
}

}  // namespace
}  // namespace lad::shell
