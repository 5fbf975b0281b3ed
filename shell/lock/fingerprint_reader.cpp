#include "shell/lock/fingerprint_reader.h"

#include <sodium.h>

#include <cstdio>

#include "core/base64.h"
#include "shell/lock/fingerprint_keys.h"
#include "shell/lock/password_lock.h"

namespace lad::shell {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kChallengeBytes = 32;
constexpr auto kChallengeLife = 2min;

// The log's words for what the browser reported instead of an answer.
std::string browserFailure(std::string_view name) {
  if (name == "NotAllowedError" || name == "AbortError") return "User pressed Cancel button";
  if (name == "InvalidStateError" || name == "NotSupportedError")
    return "Touch ID is not configured";
  return "Authentication Failed";
}

std::int64_t milliseconds(std::chrono::milliseconds d) {
  return static_cast<std::int64_t>(d.count());
}

}  // namespace

EventResult FingerprintReader::handle(const Value& event) {
  const std::string type = event["type"].text();
  if (type == "fingerprintRegister") return enrol(event);
  if (type != "authenticator") return EventResult::refused("not a fingerprint event");
  if (event["available"].type() != Value::Type::Bool)
    return EventResult::refused("an authenticator event needs a boolean \"available\"");
  available_ = event["available"].boolValue();
  return {};
}

bool FingerprintReader::usable() const {
  return available_ && !host_.empty() && !fingerprintKeysFor(context_.settings(), rpId()).empty();
}

void FingerprintReader::ask() {
  check_ = usable() ? newChallenge() : std::nullopt;
  if (!check_) log("Can not evaluate Touch ID");
}

Value FingerprintReader::request() const {
  if (!live(check_)) return {};
  List allow;
  for (const auto& key : fingerprintKeysFor(context_.settings(), rpId()))
    allow.push_back(base64UrlEncode(key.credential.id));
  Map m;
  m.set("challenge", base64UrlEncode(check_->bytes));
  m.set("rpId", rpId());
  m.set("allow", Value(std::move(allow)));
  m.set("timeout", milliseconds(kChallengeLife));
  return Value(std::move(m));
}

FingerprintAnswer FingerprintReader::answer(const Value& event) {
  using Outcome = FingerprintAnswer::Outcome;
  const auto challenge = take(check_);
  if (const std::string* error = event["error"].asText())
    return failed(Outcome::Cancelled, browserFailure(*error));
  const auto id = base64UrlDecodeString(event["id"].text());
  const auto clientData = base64UrlDecodeString(event["clientDataJSON"].text());
  const auto authenticatorData = base64UrlDecodeString(event["authenticatorData"].text());
  const auto signature = base64UrlDecodeString(event["signature"].text());
  if (!challenge || !id || !clientData || !authenticatorData || !signature)
    return failed(Outcome::Failed, "Authentication Failed");
  for (auto key : fingerprintKeysFor(context_.settings(), rpId())) {
    if (key.credential.id != *id) continue;
    const auto checked = platform::verifyAssertion(key.credential, *authenticatorData, *clientData,
                                                   *signature, {challenge->bytes, rpId(), host_});
    if (!checked.signCount) break;
    key.credential.signCount = *checked.signCount;
    keepFingerprintKey(context_.settings(), key);
    return {Outcome::Unlocked, {}};
  }
  return failed(Outcome::Failed, "Authentication Failed");
}

void FingerprintReader::offerRegistration() {
  registration_ = available_ && !host_.empty() ? newChallenge() : std::nullopt;
}

Value FingerprintReader::registration() const {
  if (!live(registration_)) return {};
  const std::string name = context_.translate(context_.edition().caption);
  Map m;
  m.set("challenge", base64UrlEncode(registration_->bytes));
  m.set("rpId", rpId());
  m.set("rpName", name);
  m.set("userId", base64UrlEncode(context_.values().appGuid));
  m.set("userName", name);
  m.set("timeout", milliseconds(kChallengeLife));
  return Value(std::move(m));
}

EventResult FingerprintReader::enrol(const Value& event) {
  const auto challenge = take(registration_);
  if (event["error"].asText()) return {};  // the browser declined: no key, nothing to keep
  if (!challenge) return EventResult::refused("no fingerprint registration is pending");
  if (!passwordOn(context_.settings()))
    return EventResult::refused("a fingerprint key needs the password lock on");
  const auto attestation = base64UrlDecodeString(event["attestationObject"].text());
  const auto clientData = base64UrlDecodeString(event["clientDataJSON"].text());
  if (!attestation || !clientData)
    return EventResult::refused("a registration needs its fields in base64url");
  const auto made =
      platform::readRegistration(*attestation, *clientData, {challenge->bytes, rpId(), host_});
  if (!made.credential)
    return EventResult::refused("the fingerprint key was not registered: " + made.error);
  keepFingerprintKey(context_.settings(), {*made.credential, rpId()});
  return {};
}

std::optional<FingerprintReader::Challenge> FingerprintReader::newChallenge() const {
  if (sodium_init() < 0) return std::nullopt;
  std::string bytes(kChallengeBytes, '\0');
  randombytes_buf(bytes.data(), bytes.size());
  return Challenge{std::move(bytes), context_.clock().now() + kChallengeLife};
}

// A challenge is used once: taking it clears it, and an expired one is taken as none.
std::optional<FingerprintReader::Challenge> FingerprintReader::take(
    std::optional<Challenge>& pending) const {
  auto taken = live(pending) ? std::move(pending) : std::nullopt;
  pending.reset();
  return taken;
}

bool FingerprintReader::live(const std::optional<Challenge>& pending) const {
  return pending && context_.clock().now() < pending->expires;
}

// The host name without the port: what keys are bound to.
std::string FingerprintReader::rpId() const {
  if (host_.starts_with('[')) return host_.substr(0, host_.find(']') + 1);
  return host_.substr(0, host_.rfind(':'));
}

FingerprintAnswer FingerprintReader::failed(FingerprintAnswer::Outcome outcome, std::string text) {
  log(text);
  return {outcome, std::move(text)};
}

// Failures go to the plain log only; the user sees the keys stay.
void FingerprintReader::log(std::string text) {
  std::fprintf(stderr, "%s\n", text.c_str());
  lastLog_ = std::move(text);
}

}  // namespace lad::shell
