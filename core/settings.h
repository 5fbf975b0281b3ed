// The installation's preferences: typed values under string keys, read with the same coercions
// as any stored value, and written to one JSON file atomically at each synchronise.
// Safe to use from several threads.
#pragma once

#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

class SettingsStore {
 public:
  // Loads the file if it exists. A file that cannot be read as settings is moved aside (never
  // overwritten) and the store starts empty; loadProblem() then says what happened.
  explicit SettingsStore(std::filesystem::path file);

  Value get(std::string_view key) const;
  bool contains(std::string_view key) const;
  // An absent key reads as false / 0 / 0.0 / "" / no date.
  bool boolForKey(std::string_view key) const;
  std::int64_t integerForKey(std::string_view key) const;
  double doubleForKey(std::string_view key) const;
  std::string stringForKey(std::string_view key) const;
  std::optional<Date> dateForKey(std::string_view key) const;

  void set(std::string_view key, Value value);
  void remove(std::string_view key);

  // Writes the store to its file when anything changed since the last write. Returns false
  // (and keeps the changes pending) when the file could not be written.
  bool synchronize(std::string* error = nullptr);

  // One-time actions: helpCheck is true until helpFinish has marked the key.
  bool helpCheck(std::string_view key) const { return !boolForKey(key); }
  void helpFinish(std::string_view key);

  const std::filesystem::path& file() const { return file_; }
  const std::string& loadProblem() const { return loadProblem_; }

 private:
  void load();

  std::filesystem::path file_;
  std::string loadProblem_;
  mutable std::mutex mutex_;
  Map values_;
  std::uint64_t version_ = 0;
  std::mutex writeMutex_;
  std::uint64_t writtenVersion_ = 0;
};

}  // namespace lad
