#include "server/event_hub.h"

#include <algorithm>

namespace lad::server {

namespace {

// A browser that stops reading must not make the server hoard messages for it.
constexpr std::size_t kMaxQueued = 64;

}  // namespace

Subscriber::Subscriber(std::string session, std::function<void()> wake)
    : session_(std::move(session)), wake_(std::move(wake)) {}

std::vector<PushMessage> Subscriber::take() {
  std::lock_guard lock(mutex_);
  std::vector<PushMessage> taken(std::make_move_iterator(queue_.begin()),
                                 std::make_move_iterator(queue_.end()));
  queue_.clear();
  return taken;
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
  if (wake_) wake_();
}

void Subscriber::close() {
  {
    std::lock_guard lock(mutex_);
    closed_ = true;
  }
  if (wake_) wake_();
}

std::shared_ptr<Subscriber> EventHub::subscribe(const std::string& session,
                                                std::function<void()> wake) {
  auto s = std::make_shared<Subscriber>(session, std::move(wake));
  std::lock_guard lock(mutex_);
  if (closed_) {
    s->close();
    return s;
  }
  const auto sameSession = [&](const auto& other) { return other->session() == session; };
  if (static_cast<std::size_t>(std::ranges::count_if(subscribers_, sameSession)) >=
      kStreamsPerSession) {
    const auto oldest = std::ranges::find_if(subscribers_, sameSession);
    (*oldest)->close();
    subscribers_.erase(oldest);
  }
  subscribers_.push_back(s);
  return s;
}

void EventHub::unsubscribe(const std::shared_ptr<Subscriber>& s) {
  std::lock_guard lock(mutex_);
  std::erase(subscribers_, s);
}

void EventHub::publish(const PushMessage& m, const Audience& audience) {
  std::lock_guard lock(mutex_);
  for (const auto& s : subscribers_)
    if (!audience || audience(s->session())) s->push(m);
}

void EventHub::closeSession(const std::string& session) {
  std::lock_guard lock(mutex_);
  std::erase_if(subscribers_, [&](const auto& s) {
    if (s->session() != session) return false;
    s->close();
    return true;
  });
}

void EventHub::close() {
  std::lock_guard lock(mutex_);
  closed_ = true;
  for (const auto& s : subscribers_) s->close();
  subscribers_.clear();
}

}  // namespace lad::server
