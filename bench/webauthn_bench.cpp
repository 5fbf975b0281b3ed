// The cost of the security-key checks that every fingerprint unlock and registration runs.
#include <benchmark/benchmark.h>

#include "platform/webauthn_verify.h"
#include "tests/support/test_authenticator.h"

namespace {

using lad::testing::Ceremony;
using lad::testing::TestAuthenticator;

const lad::platform::WebAuthnExpected kExpected{std::string(32, 'c'), "localhost",
                                                "localhost:8080"};

void verifyWith(benchmark::State& state, TestAuthenticator::Algorithm algorithm) {
  const TestAuthenticator key("bench", algorithm);
  Ceremony c;
  c.challenge = kExpected.challenge;
  c.signCount = 1;
  const auto assertion = key.assertion(c);
  const lad::platform::WebAuthnCredential credential{key.credentialId(), key.coseKey(), 0};
  for (auto _ : state)
    benchmark::DoNotOptimize(lad::platform::verifyAssertion(credential, assertion.authenticatorData,
                                                            assertion.clientDataJSON,
                                                            assertion.signature, kExpected));
}

void BM_VerifyEs256(benchmark::State& state) {
  verifyWith(state, TestAuthenticator::Algorithm::Es256);
}
BENCHMARK(BM_VerifyEs256);

void BM_VerifyRs256(benchmark::State& state) {
  verifyWith(state, TestAuthenticator::Algorithm::Rs256);
}
BENCHMARK(BM_VerifyRs256);

void BM_ReadRegistration(benchmark::State& state) {
  const TestAuthenticator key;
  Ceremony c;
  c.challenge = kExpected.challenge;
  const auto made = key.registration(c);
  for (auto _ : state)
    benchmark::DoNotOptimize(
        lad::platform::readRegistration(made.attestationObject, made.clientDataJSON, kExpected));
}
BENCHMARK(BM_ReadRegistration);

}  // namespace
