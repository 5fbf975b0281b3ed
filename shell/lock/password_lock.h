// The four-digit lock: asks for the code (checking), takes a new code, and takes it once more
// to confirm it. The code is kept only as a hash in the settings ("password"); "pass" says
// whether the lock is on.
#pragma once

#include <optional>
#include <string>

#include "core/context.h"
#include "shell/lock/fingerprint_reader.h"
#include "shell/lock/lock_throttle.h"
#include "shell/message_box.h"
#include "shell/screen.h"

namespace lad::shell {

enum class LockMode { Check = 1, New = 2, Repeat = 3 };

// Tap targets of the pad: "lock:0" to "lock:9" and the delete key.
inline constexpr std::string_view kLockDigitPrefix = "lock:";
inline constexpr std::string_view kLockDelete = "lock:delete";
inline constexpr std::string_view kLockFingerprint = "lock:fingerprint";

class PasswordLock : public Screen {
 public:
  // The reader belongs to the browser the lock is shown in; a setting of a new code asks it to
  // register a key.
  PasswordLock(Context& context, LockThrottle& throttle, FingerprintReader& reader, LockMode mode);

  // In the checking mode the fingerprint key shows when the reader is usable, and the first
  // such view starts the check at once.
  Value view() override;
  EventResult tap(std::string_view target) override;
  // The browser's answer to the fingerprint check ({"type": "fingerprint", ...}). A key that
  // fails counts as a wrong code.
  EventResult fingerprint(const Value& event);

  LockMode mode() const { return mode_; }
  // The lock has gone: unlocked, a new code set or refused, or setting one cancelled.
  bool closed() const override { return closed_; }
  // After setting a code: the message that the screen below shows.
  const std::optional<MessageBox>& outcome() const { return outcome_; }

 private:
  void start(LockMode mode);
  EventResult pressDelete();
  EventResult pressDigit(char digit);
  EventResult pressFingerprint();
  Value fingerprintKey(const std::string& iconPrefix);
  void unlock();
  EventResult decide();
  EventResult check();
  void confirm();
  void cancel();

  Context& context_;
  LockThrottle& throttle_;
  FingerprintReader& reader_;
  LockMode mode_ = LockMode::Check;
  std::string entry_;
  std::string firstEntry_;  // the new code while it is repeated
  bool wrong_ = false;      // the caption shows the wrong-code warning
  bool closed_ = false;
  bool askedAtOnce_ = false;  // the check started by showing the key
  std::optional<MessageBox> outcome_;
};

// Whether the lock is on.
bool passwordOn(const SettingsStore& settings);
// The menu switch turned off: stored at once, and the fingerprint keys are forgotten.
void turnPasswordOff(SettingsStore& settings);

}  // namespace lad::shell
