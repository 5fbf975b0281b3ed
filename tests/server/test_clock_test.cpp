#include "tests/server/server_fixture.h"

namespace lad::server::test {
namespace {

TEST_F(ServerTest, TheTestClockIsNotThereOutsideTests) {
  auto res = client()->Post("/api/test/clock", R"({"advance": 5})", "application/json");
  ASSERT_TRUE(res);
  EXPECT_EQ(res->status, 404);
}

class TestClockServerTest : public ServerTest {
 protected:
  TestClockServerTest() {
    testClock_ = std::make_shared<ManualClock>(*dateFromIso("2026-11-23T09:00:00Z"), "UTC");
  }
};

TEST_F(TestClockServerTest, AdvancesTheClockAndRefusesBadBodies) {
  auto c = client();
  auto res = c->Post("/api/test/clock", R"({"advance": 90.5})", "application/json");
  ASSERT_TRUE(res);
  EXPECT_EQ(res->status, 200);
  EXPECT_EQ(testClock_->now(), *dateFromIso("2026-11-23T09:01:30.500Z"));
  for (const char* body : {"{", R"({"advance": -1})", R"({"back": 3})", "[1]"}) {
    res = c->Post("/api/test/clock", body, "application/json");
    ASSERT_TRUE(res);
    EXPECT_EQ(res->status, 400) << body;
    EXPECT_NE(res->body.find("advance"), std::string::npos) << body;
  }
  EXPECT_EQ(testClock_->now(), *dateFromIso("2026-11-23T09:01:30.500Z"));
}

}  // namespace
}  // namespace lad::server::test
