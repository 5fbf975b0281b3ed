#include "shell/lock/password_lock.h"

#include <gtest/gtest.h>

#include "shell/lock/password_hash.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;

class PasswordLockTest : public lad::testing::ApplicationTest {
 protected:
  PasswordLockTest() {
    launchApp();
    reader.emplace(app->context());
  }

  PasswordLock lock(LockMode mode) { return PasswordLock(app->context(), throttle, *reader, mode); }
  static EventResult type(Screen& screen, std::string_view digits) {
    EventResult last;
    for (char d : digits) last = screen.tap("lock:" + std::string(1, d));
    return last;
  }
  // Sets a code through the new-code and repeat modes.
  void setCode(std::string_view code) {
    PasswordLock l = lock(LockMode::New);
    type(l, code);
    type(l, code);
    ASSERT_TRUE(l.closed());
  }
  std::string caption(Screen& screen) { return screen.view()["caption"].text(); }
  static std::string dot(Screen& screen, std::size_t i) {
    return screen.view()["dots"].asList()->at(i).text();
  }

  LockThrottle throttle;
  std::optional<FingerprintReader> reader;
};

TEST_F(PasswordLockTest, NewCodeIsRepeatedAndKeptOnlyAsAHash) {
  PasswordLock l = lock(LockMode::New);
  type(l, "1234");
  EXPECT_EQ(caption(l), "Введите пароль еще раз");
  type(l, "1234");
  ASSERT_TRUE(l.closed());
  EXPECT_EQ(l.outcome()->text, "На вход в программу установлен пароль.");
  EXPECT_TRUE(passwordOn(settings()));
  const std::string stored = settings().stringForKey("password");
  EXPECT_EQ(stored.find("1234"), std::string::npos);
  EXPECT_TRUE(passwordMatches(stored, "1234"));
  EXPECT_FALSE(passwordMatches(stored, "1235"));
  EXPECT_FALSE(passwordMatches("$argon2id$damaged", "1234"));
}

TEST_F(PasswordLockTest, DifferentRepeatLeavesTheLockOffAndTheOldCodeKept) {
  setCode("1111");
  const std::string before = settings().stringForKey("password");
  PasswordLock l = lock(LockMode::New);
  type(l, "2222");
  type(l, "3333");
  ASSERT_TRUE(l.closed());
  EXPECT_EQ(l.outcome()->text, "Пароли не совпали! Пароль НЕ установлен!");
  EXPECT_FALSE(settings().boolForKey("pass"));
  EXPECT_EQ(settings().stringForKey("password"), before);
}

TEST_F(PasswordLockTest, DeleteTakesADigitOffAndCancelsOnlyWhileSettingACode) {
  setCode("1234");
  PasswordLock check = lock(LockMode::Check);
  type(check, "12");
  EXPECT_EQ(dot(check, 1), "pass-f.png");
  for (int i = 0; i < 3; ++i) check.tap(kLockDelete);  // the third finds nothing left
  EXPECT_FALSE(check.closed());
  EXPECT_EQ(dot(check, 0), "pass-e.png");
  EXPECT_FALSE(check.tap("lock:x").ok());
  EXPECT_FALSE(check.tap("menu:52").ok());

  PasswordLock repeat = lock(LockMode::New);
  type(repeat, "5678");
  repeat.tap(kLockDelete);
  EXPECT_TRUE(repeat.closed());
  EXPECT_FALSE(repeat.outcome());
  EXPECT_FALSE(settings().boolForKey("pass"));
}

TEST_F(PasswordLockTest, WrongCodeWarnsAndTheFourthDigitDecides) {
  setCode("1234");
  PasswordLock l = lock(LockMode::Check);
  type(l, "1299");
  EXPECT_FALSE(l.closed());
  EXPECT_EQ(caption(l), "Пароль указан неправильно");
  EXPECT_EQ(dot(l, 0), "pass-e.png");
  l.tap("lock:1");  // the first key brings the caption back
  EXPECT_EQ(caption(l), "Введите пароль");
  type(l, "234");
  EXPECT_TRUE(l.closed());
}

TEST_F(PasswordLockTest, RepeatedWrongCodesWaitLongerButNeverShutOut) {
  for (auto [failures, wait] : {std::pair{2, 0s}, {3, 1s}, {5, 4s}, {1000, 60s}})
    EXPECT_EQ(LockThrottle::delayAfter(failures), wait) << failures;
  setCode("1234");
  PasswordLock l = lock(LockMode::Check);
  type(l, "0000");
  type(l, "0000");
  EXPECT_EQ(type(l, "0000").redrawAfter, 1s);
  EXPECT_EQ(l.view()["wait"].intValue(), 1);
  // While waiting, keys are taken but nothing is entered.
  EXPECT_EQ(l.tap("lock:1").redrawAfter, 1s);
  EXPECT_EQ(dot(l, 0), "pass-e.png");
  clock->advance(1s);
  EXPECT_EQ(type(l, "0000").redrawAfter, 2s);
  clock->advance(2s);
  type(l, "1234");
  EXPECT_TRUE(l.closed());
  EXPECT_EQ(throttle.waitAt(clock->now()), 0s);
}

TEST_F(PasswordLockTest, CodeKeptInClearByAnOlderVersionOpensAndIsThenHashed) {
  settings().set("pass", true);
  settings().set("password", "4321");
  PasswordLock l = lock(LockMode::Check);
  type(l, "4321");
  EXPECT_TRUE(l.closed());
  EXPECT_NE(settings().stringForKey("password"), "4321");
  EXPECT_TRUE(passwordMatches(settings().stringForKey("password"), "4321"));
}

TEST_F(PasswordLockTest, AChangedCodeSetThroughTheSessionIsTheOnlyOneThatOpens) {
  const auto typeIn = ApplicationTest::type;
  const auto tap = ApplicationTest::tap;
  // The switch on, a code set (the journey's browser test locks and unlocks with it), then a
  // change of code: only the new one opens a session. Turning the switch off is the fingerprint
  // test's.
  Session s(*app);
  s.view();
  tap(s, "welcome:close");
  tap(s, "menu:52");
  typeIn(s, "24682468");
  ASSERT_TRUE(tap(s, kMessageClose).ok());
  s.askNewPassword();
  typeIn(s, "13571357");
  tap(s, kMessageClose);
  Session third(*app);
  typeIn(third, "2468");
  EXPECT_TRUE(third.locked());
  typeIn(third, "1357");
  EXPECT_FALSE(third.locked());
}

}  // namespace
}  // namespace lad::shell
