#include "store/store.h"

#include <cassert>

#include "core/context.h"
#include "store/folders.h"
#include "store/reserve_copies.h"

namespace lad {

StoreBracket::StoreBracket(StoreBracket&& other) noexcept
    : store_(std::exchange(other.store_, nullptr)), owner_(other.owner_) {}

StoreBracket::~StoreBracket() {
  if (store_ && owner_) store_->disconnectFromBase();
}

const SqliteConnection* StoreBracket::db() const {
  return store_ && store_->db_.isOpen() ? &store_->db_ : nullptr;
}

void StoreBracket::markChanged() {
  if (store_) store_->changed_ = true;
}

Store::Store(Context& context) : context_(context) {}

std::filesystem::path Store::reservFolder() const {
  return *getSystemFolder(context_, "Reserv");
}

std::filesystem::path Store::liveFile() const {
  return reservFolder() / context_.edition().database;
}

StoreBracket Store::connectToBase() {
  if (holder_.load() == std::this_thread::get_id()) {
    // A bracket inside a bracket would close the outer one's handle under it.
    assert(!"connectToBase inside an open bracket");
    return StoreBracket(this, false);
  }
  mutex_.lock();
  holder_ = std::this_thread::get_id();
  db_.close();
  toReserv(context_, reservFolder(), liveFile());
  db_ = SqliteConnection(liveFile(), SqliteConnection::Mode::ReadWrite);
  // Brackets never overlap and each closes its connection, so the file lock is held for the
  // whole bracket instead of being taken and given back around every statement.
  db_.execute("pragma locking_mode=exclusive");
  changed_ = false;
  return StoreBracket(this, true);
}

void Store::disconnectFromBase() {
  db_.close();
  holder_ = std::thread::id{};
  mutex_.unlock();
}

}  // namespace lad
