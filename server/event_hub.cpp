#include "server/event_hub.h"

#include <algorithm>

namespace lad::server {

namespace {

// A browser that stops reading must not make the server hoard messages for it.
constexpr std::size_t kMaxQueued = 64;

}  // namespace

std::optional<PushMessage> Subscriber::next(std::chrono::milliseconds timeout) {
  std::unique_lock lock(mutex_);
  wake_.wait_for(lock, timeout, [this] { return closed_ || !queue_.empty(); });
  if (closed_ || queue_.empty()) return std::nullopt;
  PushMessage m = std::move(queue_.front());
  queue_.pop_front();
  return m;
}

bool Subscriber::closed() const {
  std::lock_guard lock(mutex_);
  return closed_;
}

void Subscriber::push(const PushMessage& m) {
  {
    std::lock_guard lock(mutex_);
    if (queue_.size() >= kMaxQueued) queue_.pop_front();
    queue_.push_back(m);
  }
  wake_.notify_one();
}

void Subscriber::close() {
  {
    std::lock_guard lock(mutex_);
    closed_ = true;
  }
  wake_.notify_all();
}

std::shared_ptr<Subscriber> EventHub::subscribe() {
  auto s = std::make_shared<Subscriber>();
  std::lock_guard lock(mutex_);
  if (closed_)
    s->close();
  else
    subscribers_.push_back(s);
  return s;
}

void EventHub::unsubscribe(const std::shared_ptr<Subscriber>& s) {
  std::lock_guard lock(mutex_);
  std::erase(subscribers_, s);
}

void EventHub::publish(const PushMessage& m) {
  std::lock_guard lock(mutex_);
  for (const auto& s : subscribers_) s->push(m);
}

void EventHub::close() {
  std::lock_guard lock(mutex_);
  closed_ = true;
  for (const auto& s : subscribers_) s->close();
  subscribers_.clear();
}

}  // namespace lad::server
