#include "tests/server/server_fixture.h"

namespace lad::server::test {
namespace {

TEST_F(ServerTest, TheTestClockIsNotThereOutsideTests) {
  EXPECT_EQ(statusOf(client()->Post("/api/test/clock", R"({"advance": 5})", "application/json")),
            404);
}

class TestClockServerTest : public ServerTest {
 protected:
  TestClockServerTest() {
    testClock_ = std::make_shared<ManualClock>(*dateFromIso("2026-11-23T09:00:00Z"), "UTC");
  }
};

// Moving the clock on is what the browser tests do all along; a bad body must leave it.
TEST_F(TestClockServerTest, RefusesBadBodiesAndLeavesTheClock) {
  for (const char* body : {"{", R"({"advance": -1})", R"({"back": 3})", "[1]"}) {
    auto res = client()->Post("/api/test/clock", body, "application/json");
    ASSERT_TRUE(res);
    EXPECT_EQ(res->status, 400) << body;
    EXPECT_NE(res->body.find("advance"), std::string::npos) << body;
  }
  EXPECT_EQ(testClock_->now(), *dateFromIso("2026-11-23T09:00:00Z"));
}

}  // namespace
}  // namespace lad::server::test
