// The four-digit lock: asks for the code (checking), takes a new code, and takes it once more
// to confirm it. The code is kept only as a hash in the settings ("password"); "pass" says
// whether the lock is on.
#pragma once

#include <optional>
#include <string>

#include "core/context.h"
#include "shell/lock_throttle.h"
#include "shell/message_box.h"
#include "shell/screen.h"

namespace lad::shell {

enum class LockMode { Check = 1, New = 2, Repeat = 3 };

// Tap targets of the pad: "lock:0" to "lock:9" and the delete key.
inline constexpr std::string_view kLockDigitPrefix = "lock:";
inline constexpr std::string_view kLockDelete = "lock:delete";

class PasswordLock : public Screen {
 public:
  PasswordLock(Context& context, LockThrottle& throttle, LockMode mode);

  Value view() override;
  EventResult tap(std::string_view target) override;

  LockMode mode() const { return mode_; }
  // The lock has gone: unlocked, a new code set or refused, or setting one cancelled.
  bool closed() const override { return closed_; }
  // After setting a code: the message that the screen below shows.
  const std::optional<MessageBox>& outcome() const { return outcome_; }

 private:
  void start(LockMode mode);
  EventResult pressDelete();
  EventResult pressDigit(char digit);
  EventResult decide();
  EventResult check();
  void confirm();
  void cancel();

  Context& context_;
  LockThrottle& throttle_;
  LockMode mode_ = LockMode::Check;
  std::string entry_;
  std::string firstEntry_;  // the new code while it is repeated
  bool wrong_ = false;      // the caption shows the wrong-code warning
  bool closed_ = false;
  std::optional<MessageBox> outcome_;
};

// Whether the lock is on.
bool passwordOn(const SettingsStore& settings);
// The menu switch turned off: stored at once.
void turnPasswordOff(SettingsStore& settings);

}  // namespace lad::shell
