#include "platform/webauthn_verify.h"

#include <gtest/gtest.h>

#include <numeric>

#include "core/base64.h"
#include "platform/cose_key.h"
#include "tests/support/test_authenticator.h"

namespace lad::platform {
namespace {

using lad::testing::Ceremony;
using lad::testing::TestAuthenticator;

const std::string kChallenge(32, '\x5a');
const WebAuthnExpected kExpected{kChallenge, "localhost", "localhost:8080"};

Ceremony ceremony(std::uint32_t signCount = 0) {
  Ceremony c;
  c.challenge = kChallenge;
  c.signCount = signCount;
  return c;
}

WebAuthnCredential registered(const TestAuthenticator& a) {
  const auto made = a.registration(ceremony());
  const auto r = readRegistration(made.attestationObject, made.clientDataJSON, kExpected);
  EXPECT_TRUE(r.credential) << r.error;
  return r.credential.value_or(WebAuthnCredential{});
}

WebAuthnAssertion verify(const WebAuthnCredential& c, const lad::testing::MadeAssertion& a) {
  return verifyAssertion(c, a.authenticatorData, a.clientDataJSON, a.signature, kExpected);
}

TEST(WebAuthnTest, RegistrationTakesTheKeyOfEitherAlgorithm) {
  for (auto algorithm :
       {TestAuthenticator::Algorithm::Es256, TestAuthenticator::Algorithm::Rs256}) {
    const TestAuthenticator a("id-of-key", algorithm);
    const WebAuthnCredential c = registered(a);
    EXPECT_EQ(c.id, "id-of-key");
    EXPECT_EQ(c.publicKey, a.coseKey());
    const auto assertion = verify(c, a.assertion(ceremony(1)));
    EXPECT_EQ(assertion.signCount, 1u) << assertion.error;
  }
}

TEST(WebAuthnTest, RegistrationIsRefusedWhenAnyPartIsWrong) {
  const TestAuthenticator a;
  auto refused = [](const lad::testing::MadeRegistration& m) {
    const auto r = readRegistration(m.attestationObject, m.clientDataJSON, kExpected);
    EXPECT_FALSE(r.credential);
    return r.error;
  };
  const auto changed = [&](void (*change)(Ceremony&)) {
    Ceremony c = ceremony();
    change(c);
    return refused(a.registration(c));
  };
  EXPECT_EQ(changed([](Ceremony& c) { c.challenge = std::string(32, 'x'); }),
            "the client data answers another challenge");
  EXPECT_EQ(changed([](Ceremony& c) { c.origin = "http://evil.example:8080"; }),
            "the client data comes from another origin");
  EXPECT_EQ(changed([](Ceremony& c) { c.rpId = "evil.example"; }),
            "the authenticator data is for another site");
  EXPECT_EQ(changed([](Ceremony& c) { c.flags = 0x01; }), "the user was not present and verified");

  auto made = a.registration(ceremony());
  EXPECT_EQ(
      readRegistration(made.attestationObject, a.assertion(ceremony()).clientDataJSON, kExpected)
          .error,
      "the client data is of another ceremony");
  auto packed = made;
  packed.attestationObject.replace(packed.attestationObject.find("none"), 4, "nada");
  EXPECT_EQ(refused(packed), "only \"none\" attestation is taken");
  // Cut anywhere inside the attestation, it is refused without reading past it.
  for (std::size_t n = 0; n < made.attestationObject.size(); n += 7) {
    auto cut = made;
    cut.attestationObject.resize(n);
    EXPECT_FALSE(refused(cut).empty());
  }
  EXPECT_EQ(refused({made.attestationObject, "not json"}), "the client data is not a JSON object");
}

TEST(WebAuthnTest, AssertionIsRefusedWhenAnyPartIsTampered) {
  const TestAuthenticator a;
  const WebAuthnCredential c = registered(a);
  const auto error = [&](void (*change)(Ceremony&)) {
    Ceremony other = ceremony(1);
    change(other);
    return verify(c, a.assertion(other)).error;
  };
  EXPECT_EQ(error([](Ceremony& o) { o.challenge = std::string(32, 'y'); }),
            "the client data answers another challenge");
  EXPECT_EQ(error([](Ceremony& o) { o.origin = "https://localhost:8443"; }),
            "the client data comes from another origin");
  EXPECT_EQ(error([](Ceremony& o) { o.origin = "https://localhost:8080"; }), "")
      << "the same host over TLS";
  EXPECT_EQ(error([](Ceremony& o) { o.rpId = "127.0.0.1"; }),
            "the authenticator data is for another site");
  EXPECT_EQ(error([](Ceremony& o) { o.flags = 0x01; }), "the user was not present and verified");
  EXPECT_EQ(error([](Ceremony& o) { o.flags = 0x04; }), "the user was not present and verified");

  auto made = a.assertion(ceremony(1));
  auto changed = made;
  changed.signature.back() ^= 1;
  EXPECT_EQ(verify(c, changed).error, "the signature does not match the key");
  changed = made;
  changed.authenticatorData.back() ^= 1;  // the counter, outside the signature's knowledge
  EXPECT_EQ(verify(c, changed).error, "the signature does not match the key");
  changed = made;  // a frame of another site, signed as it came
  changed.clientDataJSON.replace(changed.clientDataJSON.find("false"), 5, "true");
  changed.signature = a.sign(changed.authenticatorData + sha256(changed.clientDataJSON));
  EXPECT_EQ(verify(c, changed).error, "the client data comes from another origin");
  changed = made;
  changed.authenticatorData.resize(36);
  EXPECT_EQ(verify(c, changed).error, "the authenticator data is cut short");
  const TestAuthenticator stranger("credential-1");
  EXPECT_EQ(verify(c, stranger.assertion(ceremony(1))).error,
            "the signature does not match the key");
  WebAuthnCredential damaged = c;
  damaged.publicKey.resize(damaged.publicKey.size() / 2);
  EXPECT_FALSE(verify(damaged, made).signCount);
}

TEST(WebAuthnTest, TheCounterMustGrowUnlessTheKeyKeepsNone) {
  const TestAuthenticator a;
  WebAuthnCredential c = registered(a);
  EXPECT_EQ(verify(c, a.assertion(ceremony(0))).signCount, 0u);  // both zero
  c.signCount = 5;
  EXPECT_EQ(verify(c, a.assertion(ceremony(6))).signCount, 6u);
  EXPECT_EQ(verify(c, a.assertion(ceremony(5))).error, "the signature counter went backwards");
  EXPECT_EQ(verify(c, a.assertion(ceremony(0))).error, "the signature counter went backwards");
}

TEST(WebAuthnTest, Base64UrlRoundTripsAndRefusesTheOtherAlphabet) {
  Bytes all(256);
  std::iota(all.begin(), all.end(), 0);
  const std::string text = base64UrlEncode(all);  // 256 bytes leave a tail of two characters
  EXPECT_EQ(text.find_first_of("+/="), std::string::npos);
  EXPECT_EQ(base64UrlDecode(text), all);
  for (const char* bad : {"ab+c", "ab/c", "YQ==", "abcde", "a b"})
    EXPECT_FALSE(base64UrlDecode(bad)) << bad;
}

}  // namespace
}  // namespace lad::platform
