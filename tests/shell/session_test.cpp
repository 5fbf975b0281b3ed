#include "shell/session.h"

#include <gtest/gtest.h>

#include "core/launch.h"
#include "tests/support/test_files.h"

namespace lad::shell {
namespace {

class SessionTest : public ::testing::Test {
 protected:
  SessionTest() : context(ContextOptions{1, 1, dir.path(), "1.0", nullptr}) { launch(context); }

  static Value event(const std::string& json) { return *Value::fromJson(json); }

  lad::testing::TempDir dir;
  Context context;
};

TEST_F(SessionTest, MalformedEventsAreRefusedWithAReason) {
  Session s(context);
  const std::pair<const char*, const char*> cases[] = {
      {"[1]", "JSON object"},
      {"{}", "\"type\""},
      {"{\"type\": 5}", "\"type\""},
      {"{\"type\": \"swipe\"}", "unknown event type \"swipe\""},
      {"{\"type\": \"tap\"}", "\"target\""},
      {"{\"type\": \"tap\", \"target\": 51}", "\"target\""},
      {"{\"type\": \"viewport\", \"width\": \"390\", \"height\": 844}", "numeric"},
      {"{\"type\": \"viewport\", \"width\": 0, \"height\": 844}", "positive"},
      {"{\"type\": \"viewport\", \"width\": -390, \"height\": 844}", "positive"},
      {"{\"type\": \"viewport\", \"width\": 1e9, \"height\": 844}", "positive"},
  };
  for (const auto& [json, reason] : cases) {
    EventResult r = s.handle(event(json));
    EXPECT_NE(r.error.find(reason), std::string::npos) << json << " -> " << r.error;
  }
  EXPECT_EQ(s.metrics().scaleX, 1.0);
}

TEST_F(SessionTest, ViewportSetsScaleInPortraitAndTellsTablets) {
  Session phone(context);
  ASSERT_TRUE(phone.handle(event(R"({"type":"viewport","width":390,"height":844})")).ok());
  EXPECT_FALSE(phone.metrics().isTablet);
  EXPECT_DOUBLE_EQ(phone.metrics().scaleX, 390.0 / 320);
  EXPECT_DOUBLE_EQ(phone.metrics().scaleY, 844.0 / 480);

  Session tablet(context);  // held in landscape: the sides are swapped
  ASSERT_TRUE(tablet.handle(event(R"({"type":"viewport","width":1024,"height":768.5})")).ok());
  EXPECT_TRUE(tablet.metrics().isTablet);
  EXPECT_DOUBLE_EQ(tablet.metrics().scaleX, 768.5 / 320);
  EXPECT_DOUBLE_EQ(tablet.metrics().scaleY, 1024.0 / 480);
  EXPECT_FALSE(phone.metrics().isTablet);  // sessions keep their own sizes
}

TEST_F(SessionTest, TapsReachTheMenuAndAllSessionsShareTheInstallation) {
  Session a(context), b(context);
  ASSERT_TRUE(a.handle(event(R"({"type":"tap","target":"menu:51"})")).ok());
  Value view = b.view();
  bool found = false;
  for (const Value& row : *view["children"].asList()->front()["rows"].asList())
    if (row["id"].text() == "menu:51") found = row["checked"].boolValue();
  EXPECT_TRUE(found);
}

}  // namespace
}  // namespace lad::shell
