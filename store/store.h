// The installation's diary database: one live file, reached only inside a bracket that opens
// it and closes it again. Brackets never interleave: one waits for the other, whatever thread
// it comes from, and a bracket opened inside another on the same thread is a programming error.
#pragma once

#include <atomic>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>

#include "core/sqlite.h"
#include "core/value.h"

namespace lad {

class Context;
class Store;

// An open bracket. db() is nullptr when the file could not be opened: every operation then
// ends in its empty result.
class StoreBracket {
 public:
  StoreBracket(StoreBracket&& other) noexcept;
  StoreBracket& operator=(StoreBracket&&) = delete;
  ~StoreBracket();

  const SqliteConnection* db() const;
  // Records that the bracket wrote something.
  void markChanged();

 private:
  friend class Store;
  StoreBracket(Store* store, bool owner) : store_(store), owner_(owner) {}
  Store* store_;
  bool owner_;  // false for a nested bracket that shares the outer one's handle
};

class Store {
 public:
  explicit Store(Context& context);
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  // Takes the day's reserve copy, then opens the live file; closes it when the bracket ends.
  StoreBracket connectToBase();

  // Whether the last bracket wrote anything; cleared by each connect.
  bool changed() const { return changed_; }

  // The guid of the entry that ends an illness, as the last dictionary load that passed it
  // found it; empty until then.
  const std::string& boleznId() const { return boleznId_; }
  void setBoleznId(std::string guid) { boleznId_ = std::move(guid); }
  // The day of the value that the last search for a latest value found.
  std::optional<Date> lastValueDate() const { return lvdate_; }
  void setLastValueDate(Date day) { lvdate_ = day; }

  Context& context() { return context_; }
  const Context& context() const { return context_; }
  std::filesystem::path reservFolder() const;
  std::filesystem::path liveFile() const;

 private:
  friend class StoreBracket;
  void disconnectFromBase();

  Context& context_;
  std::mutex mutex_;
  std::atomic<std::thread::id> holder_{};
  SqliteConnection db_;
  bool changed_ = false;
  std::string boleznId_;
  std::optional<Date> lvdate_;
};

}  // namespace lad
