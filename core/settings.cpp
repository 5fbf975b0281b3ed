#include "core/settings.h"

#include <chrono>

#include "core/atomic_file.h"

namespace lad {

SettingsStore::SettingsStore(std::filesystem::path file) : file_(std::move(file)) {
  load();
}

void SettingsStore::load() {
  const auto text = readWholeFile(file_);
  if (!text) return;
  std::string error;
  auto parsed = Value::fromJson(*text, &error);
  if (parsed && parsed->asMap()) {
    values_ = std::move(*parsed->asMap());
    return;
  }
  if (error.empty()) error = "not a JSON object";
  auto aside = file_;
  aside += ".unreadable-" +
           std::to_string(std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()));
  std::error_code ec;
  std::filesystem::rename(file_, aside, ec);
  loadProblem_ = "settings file " + file_.string() + " could not be read (" + error + ")";
  loadProblem_ += ec ? "; it was left in place and will be replaced at the next write"
                     : "; it was kept as " + aside.string();
}

Value SettingsStore::get(std::string_view key) const {
  std::lock_guard lock(mutex_);
  const Value* v = values_.find(key);
  return v ? *v : Value();
}

bool SettingsStore::contains(std::string_view key) const {
  std::lock_guard lock(mutex_);
  return values_.contains(key);
}

bool SettingsStore::boolForKey(std::string_view key) const {
  return get(key).boolValue();
}

std::int64_t SettingsStore::integerForKey(std::string_view key) const {
  return get(key).intValue();
}

double SettingsStore::doubleForKey(std::string_view key) const {
  return get(key).doubleValue();
}

std::string SettingsStore::stringForKey(std::string_view key) const {
  return get(key).text();
}

std::optional<Date> SettingsStore::dateForKey(std::string_view key) const {
  return get(key).asDate();
}

void SettingsStore::set(std::string_view key, Value value) {
  std::lock_guard lock(mutex_);
  values_.set(key, std::move(value));
  ++version_;
}

void SettingsStore::remove(std::string_view key) {
  std::lock_guard lock(mutex_);
  if (values_.erase(key)) ++version_;
}

bool SettingsStore::synchronize(std::string* error) {
  // One writer at a time, so that an older snapshot never lands after a newer one.
  std::lock_guard writeLock(writeMutex_);
  std::string json;
  std::uint64_t version = 0;
  {
    std::lock_guard lock(mutex_);
    if (version_ == writtenVersion_ && std::filesystem::exists(file_)) return true;
    version = version_;
    json = Value(values_).toJson(2);
  }
  std::error_code ec;
  std::filesystem::create_directories(file_.parent_path(), ec);
  if (!writeFileAtomically(file_, json, error)) return false;
  writtenVersion_ = version;
  return true;
}

void SettingsStore::helpFinish(std::string_view key) {
  set(key, true);
  synchronize();
}

}  // namespace lad
