#include "shell/lock/password_lock.h"

#include "core/edition.h"
#include "shell/lock/fingerprint_keys.h"
#include "shell/lock/password_hash.h"
#include "shell/views/pages.h"

namespace lad::shell {

namespace {

constexpr std::size_t kCodeLength = 4;

const char* captionOf(LockMode mode) {
  switch (mode) {
    case LockMode::Check:
      return "Введите пароль";
    case LockMode::New:
      return "Введите новый пароль";
    case LockMode::Repeat:
      return "Введите пароль еще раз";
  }
  return "";
}

// The warning's colour: amber on the dark backgrounds of editions 1 and 2, brown on the light
// one of edition 3.
const char* wrongColour(int appid) {
  return isCycleEdition(appid) ? "rgb(99,69,0)" : "rgb(255,207,0)";
}

void storeSwitch(SettingsStore& settings, bool on) {
  settings.set("pass", on);
  settings.synchronize();
}

EventResult changedSettings() {
  EventResult r;
  r.installationChanged = true;
  return r;
}

// The pad comes back when the wait is over.
EventResult redrawIn(std::chrono::seconds wait) {
  EventResult r;
  r.redrawAfter = wait;
  return r;
}

// Replaces the stored code by the hash of `code`; false when hashing failed.
bool keepHashed(SettingsStore& settings, const std::string& code) {
  const auto hash = hashPassword(code);
  if (hash) settings.set("password", *hash);
  return hash.has_value();
}

}  // namespace

PasswordLock::PasswordLock(Context& context, LockThrottle& throttle, FingerprintReader& reader,
                           LockMode mode)
    : context_(context), throttle_(throttle), reader_(reader) {
  start(mode);
}

void PasswordLock::start(LockMode mode) {
  mode_ = mode;
  entry_.clear();
  wrong_ = false;
}

Value PasswordLock::view() {
  const std::string prefix = context_.values().themeDarkIcons ? "b-" : "";
  LockView view;
  for (std::size_t i = 0; i < kCodeLength; ++i)
    view.dots.push_back(prefix + (i < entry_.size() ? "pass-f.png" : "pass-e.png"));
  view.caption = context_.translate(wrong_ ? "Пароль указан неправильно" : captionOf(mode_));
  if (wrong_) view.captionColor = wrongColour(context_.edition().appid);
  view.key = prefix + "pass-btn.png";
  view.deleteKey = prefix + "pass-lock.png";
  view.deleteId = std::string(kLockDelete);
  view.digitPrefix = std::string(kLockDigitPrefix);
  view.wait = static_cast<std::int64_t>(throttle_.waitAt(context_.clock().now()).count());
  if (mode_ == LockMode::Check && reader_.usable()) view.fingerprint = fingerprintKey(prefix);
  return view.toValue();
}

// The key, and the pending check that the browser runs; showing the key the first time starts
// one unless wrong codes still make the pad wait.
Value PasswordLock::fingerprintKey(const std::string& iconPrefix) {
  if (!askedAtOnce_ && throttle_.waitAt(context_.clock().now()).count() == 0) {
    askedAtOnce_ = true;
    reader_.ask();
  }
  Map key;
  key.set("id", std::string(kLockFingerprint));
  key.set("key", iconPrefix + "pass-id.png");
  key.set("hint", context_.translate("Для авторизации приложите палец к сканеру"));
  key.set("request", reader_.request());
  return Value(std::move(key));
}

EventResult PasswordLock::tap(std::string_view target) {
  if (closed_) return EventResult::refused("the lock is closed");
  if (target == kLockDelete) return pressDelete();
  if (target == kLockFingerprint) return pressFingerprint();
  if (target.size() == kLockDigitPrefix.size() + 1 && target.starts_with(kLockDigitPrefix)) {
    const char digit = target.back();
    if (digit >= '0' && digit <= '9') return pressDigit(digit);
  }
  return EventResult::refused("the lock takes only its own keys");
}

EventResult PasswordLock::pressDelete() {
  wrong_ = false;
  if (!entry_.empty()) {
    entry_.pop_back();
  } else if (mode_ != LockMode::Check) {
    cancel();
    return changedSettings();
  }
  return {};
}

EventResult PasswordLock::pressDigit(char digit) {
  wrong_ = false;
  if (mode_ == LockMode::Check) {
    const auto wait = throttle_.waitAt(context_.clock().now());
    if (wait.count() > 0) return redrawIn(wait);
  }
  entry_.push_back(digit);
  return entry_.size() == kCodeLength ? decide() : EventResult{};
}

// The fingerprint key leaves the caption as it is.
EventResult PasswordLock::pressFingerprint() {
  if (mode_ != LockMode::Check)
    return EventResult::refused("the fingerprint key only opens the lock");
  const auto wait = throttle_.waitAt(context_.clock().now());
  if (wait.count() > 0) return redrawIn(wait);
  reader_.ask();
  return {};
}

EventResult PasswordLock::fingerprint(const Value& event) {
  if (closed_ || mode_ != LockMode::Check)
    return EventResult::refused("no lock is waiting for the fingerprint");
  const Date now = context_.clock().now();
  const auto wait = throttle_.waitAt(now);
  if (wait.count() > 0) return redrawIn(wait);
  // The browser's dialog may have hidden the page: its return must not bring the lock back.
  SettingsStore& settings = context_.settings();
  settings.set("deactive", now);
  settings.synchronize();
  switch (reader_.answer(event).outcome) {
    case FingerprintAnswer::Outcome::Unlocked:
      unlock();
      return {};
    case FingerprintAnswer::Outcome::Failed:
      throttle_.failed(now);
      return redrawIn(throttle_.waitAt(now));
    case FingerprintAnswer::Outcome::Cancelled:
      break;
  }
  return {};
}

void PasswordLock::unlock() {
  throttle_.succeeded();
  closed_ = true;
}

EventResult PasswordLock::decide() {
  switch (mode_) {
    case LockMode::New:
      firstEntry_ = entry_;
      start(LockMode::Repeat);
      return {};
    case LockMode::Repeat:
      confirm();
      return changedSettings();
    case LockMode::Check:
      break;
  }
  return check();
}

EventResult PasswordLock::check() {
  const Date now = context_.clock().now();
  SettingsStore& settings = context_.settings();
  const std::string stored = settings.stringForKey("password");
  if (passwordMatches(stored, entry_)) {
    if (!isPasswordHash(stored) && keepHashed(settings, entry_)) settings.synchronize();
    unlock();
    return {};
  }
  entry_.clear();
  wrong_ = true;
  throttle_.failed(now);
  return redrawIn(throttle_.waitAt(now));
}

// The second entry must repeat the first; a mismatch leaves the stored code as it was.
void PasswordLock::confirm() {
  SettingsStore& settings = context_.settings();
  const bool set = entry_ == firstEntry_ && keepHashed(settings, entry_);
  storeSwitch(settings, set);
  outcome_ = MessageBox::make(
      context_,
      set ? "На вход в программу установлен пароль." : "Пароли не совпали! Пароль НЕ установлен!",
      "Пароль");
  firstEntry_.clear();
  closed_ = true;
  if (set) reader_.offerRegistration();
}

void PasswordLock::cancel() {
  storeSwitch(context_.settings(), false);
  closed_ = true;
}

bool passwordOn(const SettingsStore& settings) {
  return settings.boolForKey("pass") && !settings.stringForKey("password").empty();
}

void turnPasswordOff(SettingsStore& settings) {
  forgetFingerprintKeys(settings);
  storeSwitch(settings, false);
}

}  // namespace lad::shell
