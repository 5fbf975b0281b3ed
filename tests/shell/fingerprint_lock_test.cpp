#include <gtest/gtest.h>

#include "shell/lock/fingerprint_keys.h"
#include "tests/shell/application_fixture.h"
#include "tests/support/test_authenticator.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;
using lad::testing::Ceremony;
using lad::testing::TestAuthenticator;

std::string decoded(const Value& v) {
  return base64UrlDecodeString(v.text()).value_or("");
}

// A browser on http://localhost:8080 whose platform authenticator is `key`.
class FingerprintLockTest : public lad::testing::ApplicationTest {
 protected:
  FingerprintLockTest() { launchApp(); }

  std::unique_ptr<Session> browser(bool reader = true, const std::string& host = "localhost:8080") {
    auto s = std::make_unique<Session>(*app);
    s->fingerprint().setHost(host);
    EXPECT_TRUE(ApplicationTest::send(*s, std::string(R"({"type":"authenticator","available":)") +
                                              (reader ? "true}" : "false}"))
                    .ok());
    return s;
  }
  static Value keyOf(Session& s) { return s.view()["fingerprint"]; }
  static std::string challengeOf(Session& s) { return decoded(keyOf(s)["request"]["challenge"]); }

  // Sets the code through the menu's switch; returns the registration the browser is offered.
  static Value offerAtNewCode(Session& s) {
    s.view();
    tap(s, "welcome:close");
    tap(s, "menu:52");
    type(s, "24682468");
    return s.view()["fingerprintRegister"];
  }
  // The browser registers its key when asked.
  EventResult setCodeAndRegister(Session& s) {
    Ceremony c;
    c.challenge = decoded(offerAtNewCode(s)["challenge"]);
    return sendRegistration(s, key.registration(c));
  }
  // A message of the browser's key, its binary fields in base64url.
  static EventResult post(Session& s, const char* type,
                          std::initializer_list<std::pair<const char*, std::string>> fields) {
    Map m;
    m.set("type", type);
    for (const auto& [name, bytes] : fields) m.set(name, base64UrlEncode(bytes));
    return s.handle(Value(std::move(m)));
  }
  static EventResult sendRegistration(Session& s, const lad::testing::MadeRegistration& made) {
    return post(
        s, "fingerprintRegister",
        {{"attestationObject", made.attestationObject}, {"clientDataJSON", made.clientDataJSON}});
  }
  // The key's answer to the challenge; a forged one has a spoilt signature.
  EventResult answer(Session& s, const std::string& challenge, std::uint32_t count = 1,
                     bool forged = false) {
    Ceremony c;
    c.challenge = challenge;
    c.signCount = count;
    auto a = key.assertion(c);
    if (forged) a.signature.back() ^= 1;
    return post(s, "fingerprint",
                {{"id", key.credentialId()},
                 {"authenticatorData", a.authenticatorData},
                 {"clientDataJSON", a.clientDataJSON},
                 {"signature", a.signature}});
  }

  TestAuthenticator key;
};

TEST_F(FingerprintLockTest, RegisteringAtANewCodeKeepsOnlyPublicMaterialAndRefusesBadAnswers) {
  auto s = browser();
  const Value offer = offerAtNewCode(*s);
  EXPECT_EQ(offer["rpId"].text(), "localhost");
  EXPECT_EQ(decoded(offer["challenge"]).size(), 32u);
  Ceremony wrong;
  wrong.challenge = std::string(32, 'w');
  EXPECT_FALSE(sendRegistration(*s, key.registration(wrong)).ok());
  // The refused answer used up the challenge.
  EXPECT_TRUE(s->view()["fingerprintRegister"].isNull());
  Ceremony right;
  right.challenge = decoded(offer["challenge"]);
  EXPECT_FALSE(sendRegistration(*s, key.registration(right)).ok());
  EXPECT_FALSE(settings().contains("fingerprintKeys"));

  // A change of code asks again.
  s->askNewPassword();
  type(*s, "13571357");
  right.challenge = decoded(s->view()["fingerprintRegister"]["challenge"]);
  ASSERT_TRUE(sendRegistration(*s, key.registration(right)).ok());
  const Value stored = settings().get("fingerprintKeys");
  ASSERT_EQ(stored.asList()->size(), 1u);
  EXPECT_EQ(decoded(stored.asList()->at(0)["id"]), key.credentialId());
  EXPECT_EQ(decoded(stored.asList()->at(0)["key"]), key.coseKey());
}

TEST_F(FingerprintLockTest, TheKeyShowsOnlyWithAReaderAndAKeyForThisHost) {
  EXPECT_TRUE(keyOf(*browser()).isNull());  // no lock yet
  ASSERT_TRUE(setCodeAndRegister(*browser()).ok());

  auto s = browser();
  ASSERT_TRUE(s->locked());
  // The check is asked at once (answered in the next test) and names the stored key.
  EXPECT_EQ(decoded(keyOf(*s)["request"]["allow"].asList()->at(0)), key.credentialId());

  EXPECT_TRUE(keyOf(*browser(false)).isNull());
  EXPECT_TRUE(keyOf(*browser(true, "192.168.1.5:8080")).isNull());
  auto noAnswer = std::make_unique<Session>(*app);  // the browser has not said yet
  noAnswer->fingerprint().setHost("localhost:8080");
  EXPECT_TRUE(keyOf(*noAnswer).isNull());
  EXPECT_FALSE(tap(*noAnswer, "lock:fingerprint").redrawAfter.count() > 0);
  EXPECT_EQ(noAnswer->fingerprint().lastLog(), "Can not evaluate Touch ID");
}

TEST_F(FingerprintLockTest, TheKeyUnlocksOnceWithAFreshChallenge) {
  ASSERT_TRUE(setCodeAndRegister(*browser()).ok());
  auto s = browser();
  const std::string challenge = challengeOf(*s);
  clock->advance(30s);
  ASSERT_TRUE(answer(*s, challenge, 7).ok());
  EXPECT_FALSE(s->locked());
  EXPECT_EQ(settings().dateForKey("deactive"), clock->now());
  EXPECT_EQ(settings().get("fingerprintKeys").asList()->at(0)["count"].intValue(), 7);
  EXPECT_FALSE(answer(*s, challenge, 8).ok());  // no lock is waiting any more

  // The same answer again, in another locked browser: its challenge is another.
  auto again = browser();
  const std::string fresh = challengeOf(*again);
  EXPECT_NE(fresh, challenge);
  ASSERT_TRUE(answer(*again, challenge, 8).ok());
  EXPECT_TRUE(again->locked());
  EXPECT_EQ(again->fingerprint().lastLog(), "Authentication Failed");
  // Its own challenge was used up by the failed answer.
  EXPECT_TRUE(keyOf(*again)["request"].isNull());
  clock->advance(app->lockThrottle().waitAt(clock->now()));
  ASSERT_TRUE(answer(*again, fresh, 9).ok());
  EXPECT_TRUE(again->locked());
}

TEST_F(FingerprintLockTest, AChallengeLivesTwoMinutesAndTheKeyAsksAnew) {
  ASSERT_TRUE(setCodeAndRegister(*browser()).ok());
  auto s = browser();
  const std::string first = challengeOf(*s);
  clock->advance(119s);
  EXPECT_EQ(challengeOf(*s), first);
  clock->advance(1s);
  EXPECT_TRUE(keyOf(*s)["request"].isNull());
  EXPECT_TRUE(keyOf(*s)["request"].isNull());  // a later view does not ask by itself
  ASSERT_TRUE(tap(*s, "lock:fingerprint").ok());
  EXPECT_NE(challengeOf(*s), first);
}

TEST_F(FingerprintLockTest, FailuresAreLoggedAndSlowDownLikeWrongCodes) {
  ASSERT_TRUE(setCodeAndRegister(*browser()).ok());
  auto s = browser();
  LockThrottle& throttle = app->lockThrottle();

  ASSERT_TRUE(send(*s, R"({"type":"fingerprint","error":"NotAllowedError"})").ok());
  EXPECT_EQ(s->fingerprint().lastLog(), "User pressed Cancel button");
  EXPECT_EQ(throttle.failures(), 0);
  EXPECT_TRUE(s->locked());

  for (int i = 0; i < 4; ++i) {
    tap(*s, "lock:fingerprint");
    answer(*s, challengeOf(*s), 1, true);
    EXPECT_EQ(s->fingerprint().lastLog(), "Authentication Failed");
    EXPECT_TRUE(s->locked());
    clock->advance(throttle.waitAt(clock->now()));
  }
  EXPECT_EQ(throttle.failures(), 4);
  type(*s, "1111");  // a wrong code adds to the same count
  EXPECT_EQ(throttle.failures(), 5);
  const auto wait = throttle.waitAt(clock->now());
  ASSERT_GT(wait.count(), 0);
  // While the pad waits the key starts no check, and an answer is not looked at.
  EXPECT_EQ(tap(*s, "lock:fingerprint").redrawAfter, wait);
  EXPECT_TRUE(keyOf(*s)["request"].isNull());
  clock->advance(wait);
  tap(*s, "lock:fingerprint");
  ASSERT_TRUE(answer(*s, challengeOf(*s)).ok());
  EXPECT_FALSE(s->locked());
  EXPECT_EQ(throttle.failures(), 0);
}

TEST_F(FingerprintLockTest, TurningThePasswordOffForgetsTheKeys) {
  auto s = browser();
  ASSERT_TRUE(setCodeAndRegister(*s).ok());
  tap(*s, kMessageClose);
  ASSERT_TRUE(settings().contains("fingerprintKeys"));
  ASSERT_TRUE(tap(*s, "menu:52").ok());
  EXPECT_FALSE(settings().contains("fingerprintKeys"));
  // A browser's word on its reader that does not say whether it has one is refused.
  EXPECT_FALSE(send(*s, R"({"type":"authenticator"})").ok());
}

TEST_F(FingerprintLockTest, DamagedStoredKeysAreSkippedAndARegisteredKeyIsReplaced) {
  settings().set("fingerprintKeys", *Value::fromJson(R"([
    {"id": "", "key": "AA", "count": 0, "rpId": "localhost"},
    {"id": "a+b/", "key": "AA", "count": 0, "rpId": "localhost"},
    {"id": "AA", "key": "AA", "count": -1, "rpId": "localhost"},
    {"id": "AA", "key": "AA", "count": 0},
    "text",
    {"id": "AQ", "key": "Ag", "count": 3, "rpId": "localhost"}])"));
  auto keys = fingerprintKeysFor(settings(), "localhost");
  ASSERT_EQ(keys.size(), 1u);
  EXPECT_EQ(keys[0].credential.id, "\x01");
  EXPECT_EQ(keys[0].credential.signCount, 3u);
  EXPECT_TRUE(fingerprintKeysFor(settings(), "example.org").empty());

  keys[0].credential.signCount = 4;
  keepFingerprintKey(settings(), keys[0]);
  keepFingerprintKey(settings(), {{"\x01", "\x02", 0}, "example.org"});
  EXPECT_EQ(settings().get("fingerprintKeys").asList()->size(), 7u);
  EXPECT_EQ(fingerprintKeysFor(settings(), "localhost").at(0).credential.signCount, 4u);
  EXPECT_EQ(fingerprintKeysFor(settings(), "example.org").size(), 1u);

  settings().set("fingerprintKeys", "not a list");
  EXPECT_TRUE(fingerprintKeysFor(settings(), "localhost").empty());
}

}  // namespace
}  // namespace lad::shell
