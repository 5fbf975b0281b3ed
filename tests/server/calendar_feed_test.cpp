// The calendar feed: served only at the installation's secret address, which a new token
// replaces; its lines are folded and escaped as calendar apps read them.
#include "server/calendar_feed.h"

#include <gtest/gtest.h>

#include <set>

#include "shell/reminder_feed.h"
#include "tests/server/server_fixture.h"

namespace lad::server::test {
namespace {

class CalendarFeedTest : public ServerTest {
 protected:
  std::string address() {
    return installation_->withContext(
        [](Context& c) { return shell::feedPath(shell::feedToken(c.settings())); });
  }
};

TEST_F(CalendarFeedTest, OnlyThePresentAddressAnswersAndANewTokenEndsTheOldOne) {
  const std::string first = address();
  auto feed = client()->Get(first);
  ASSERT_TRUE(feed);
  EXPECT_EQ(feed->get_header_value("Content-Type"), "text/calendar; charset=utf-8");
  EXPECT_EQ(feed->body.rfind("BEGIN:VCALENDAR\r\n", 0), 0u);
  EXPECT_EQ(address(), first) << "the token is made once";

  for (const std::string& path :
       {std::string("/calendar/"), std::string("/calendar/.ics"),
        first.substr(0, first.size() - 5) + "X.ics", first.substr(0, first.size() - 4)})
    EXPECT_EQ(client()->Get(path)->status, 404) << path;

  installation_->withContext([](Context& c) { return shell::renewFeedToken(c.settings()); });
  EXPECT_EQ(client()->Get(first)->status, 404) << "the old address stops working";
  EXPECT_EQ(client()->Get(address())->status, 200);
}

// Two equal reminders stay two events: a calendar app merges events of one identifier.
TEST(CalendarFeedText, LongTextsFoldBetweenCharactersAndEqualRemindersStayTwo) {
  const Date at{std::chrono::sys_days{std::chrono::year{2026} / 11 / 26}};
  const std::string body = "Магний B6, 1/2 таблетки; после еды\nзапить тёплой водой";
  const std::string feed = calendarFeed({{at, body, at, "G"}, {at, body, at, "G"}}, at, "Дневник");
  std::string unfolded;
  std::set<std::string> uids;
  for (std::size_t from = 0, end; from < feed.size(); from = end + 2) {
    end = feed.find("\r\n", from);
    ASSERT_NE(end, std::string::npos) << "every line ends in CRLF";
    const std::string line = feed.substr(from, end - from);
    EXPECT_LE(line.size(), 75u);
    EXPECT_FALSE(line[0] == ' ' && (static_cast<unsigned char>(line[1]) & 0xC0) == 0x80)
        << "a fold splits a character: " << line;
    if (line.starts_with("UID:")) uids.insert(line);
    unfolded += line[0] == ' ' ? line.substr(1) : "\n" + line;
  }
  EXPECT_NE(
      unfolded.find("\nSUMMARY:Магний B6\\, 1/2 таблетки\\; после еды\\nзапить тёплой водой\n"),
      std::string::npos)
      << unfolded;
  EXPECT_EQ(uids.size(), 2u);
}

}  // namespace
}  // namespace lad::server::test
