// The lock as access control: a locked browser session gets the lock screen and nothing else,
// and other machines are served only once the lock has a code.
#include <gtest/gtest.h>

#include "server/listen_policy.h"
#include "server_fixture.h"

namespace lad::server::test {
namespace {

class LockAccessTest : public ServerTest {
 protected:
  Json viewOf(const std::string& session) {
    auto res = client()->Get("/api/view", sessionHeaders(session));
    return res ? Json::parse(res->body) : Json();
  }
};

TEST_F(LockAccessTest, LockedSessionSeesOnlyTheLockUntilTheCodeIsRight) {
  const std::string before = openSession();
  lockWith("2468");

  auto first = client()->Get("/api/view");
  ASSERT_TRUE(first);
  const std::string session = sessionFromSetCookie(*first);
  EXPECT_EQ(Json::parse(first->body)["view"]["kind"], "lock");
  EXPECT_EQ(first->body.find("menu:"), std::string::npos) << first->body;

  EXPECT_EQ(tap(session, "menu:51")->status, 400);
  // A session opened before the lock went on is covered at its next activation.
  ASSERT_TRUE(postEvent(R"({"type":"visible"})", before));
  EXPECT_EQ(viewOf(before)["view"]["kind"], "lock");

  typeCode(session, "1111");
  EXPECT_EQ(viewOf(session)["view"]["caption"], "Пароль указан неправильно");
  typeCode(session, "246");
  EXPECT_NE(Json::parse(tap(session, "lock:8")->body)["view"]["kind"], "lock");
  EXPECT_EQ(viewOf(before)["view"]["kind"], "lock");  // each browser unlocks for itself
}

TEST_F(LockAccessTest, OtherMachinesAreServedOnlyWithAPasswordSet) {
  for (const char* host : {"127.0.0.1", "127.1.2.3", "localhost", "::1"})
    EXPECT_EQ(listenRefusal(host, false), "") << host;
  for (const char* host : {"0.0.0.0", "192.168.1.5", "::", "127.example.org"}) {
    EXPECT_NE(listenRefusal(host, false).find("password"), std::string::npos) << host;
    EXPECT_EQ(listenRefusal(host, true), "") << host;
  }
  EXPECT_FALSE(installation_->passwordSet());
  installation_->withContext([](Context& c) { c.settings().set("pass", true); });
  EXPECT_FALSE(installation_->passwordSet());  // switched on without a code is no lock
  lockWith("1357");
  EXPECT_TRUE(installation_->passwordSet());
}

}  // namespace
}  // namespace lad::server::test
