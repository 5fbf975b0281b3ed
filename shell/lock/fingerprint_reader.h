// One browser's fingerprint reader: whether the browser offers one, the host it reaches this
// server by, and the one-time challenges of its two ceremonies: opening the lock with a
// registered key, and registering a key right after a new code is set.
#pragma once

#include <optional>
#include <string>

#include "core/context.h"
#include "shell/screen.h"

namespace lad::shell {

struct FingerprintAnswer {
  enum class Outcome { Unlocked, Failed, Cancelled };
  Outcome outcome = Outcome::Failed;
  std::string log;  // what the log gets for a failure
};

class FingerprintReader {
 public:
  explicit FingerprintReader(Context& context) : context_(context) {}

  // The host (with its port) that the browser's last request named.
  void setHost(std::string host) { host_ = std::move(host); }
  // {"type": "authenticator", "available": bool} once at start, and the answer to a
  // registration: {"type": "fingerprintRegister", "clientDataJSON", "attestationObject"}
  // (base64url), or {"type": "fingerprintRegister", "error": name} when the browser gave up.
  EventResult handle(const Value& event);

  // The key can be offered: the browser has a reader and a key is registered for this host.
  bool usable() const;
  // Starts a check with a new challenge; a pending one is dropped.
  void ask();
  // The pending check for the browser, null when none: {"challenge", "rpId", "allow", "timeout"}.
  Value request() const;
  // The browser's answer: {"id", "clientDataJSON", "authenticatorData", "signature"}
  // (base64url), or {"error": name}. It uses up the challenge whatever it says.
  FingerprintAnswer answer(const Value& event);

  // A new code was set: a browser with a reader is asked to register a key.
  void offerRegistration();
  // The pending registration for the browser, null when none.
  Value registration() const;

  // The last failure that was logged.
  const std::string& lastLog() const { return lastLog_; }

 private:
  struct Challenge {
    std::string bytes;
    Date expires;
  };
  std::optional<Challenge> newChallenge() const;
  std::optional<Challenge> take(std::optional<Challenge>& pending) const;
  bool live(const std::optional<Challenge>& pending) const;
  std::string rpId() const;
  EventResult enrol(const Value& event);
  FingerprintAnswer failed(FingerprintAnswer::Outcome outcome, std::string text);
  void log(std::string text);

  Context& context_;
  std::string host_;
  bool available_ = false;
  std::optional<Challenge> check_;
  std::optional<Challenge> registration_;
  std::string lastLog_;
};

}  // namespace lad::shell
