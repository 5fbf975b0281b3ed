// Messages that the main thread pushes to open browsers as server-sent events.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace lad::server {

struct PushMessage {
  std::string event;  // "refresh", "notice"
  std::string data;   // JSON text
};

// One open event stream of one browser tab.
class Subscriber {
 public:
  // The next message, or nullopt after the timeout or once the hub has closed.
  std::optional<PushMessage> next(std::chrono::milliseconds timeout);
  bool closed() const;

 private:
  friend class EventHub;
  void push(const PushMessage& m);
  void close();

  mutable std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<PushMessage> queue_;
  bool closed_ = false;
};

class EventHub {
 public:
  std::shared_ptr<Subscriber> subscribe();
  void unsubscribe(const std::shared_ptr<Subscriber>& s);
  // To every open stream: tabs of one browser share a session, so none is left out.
  void publish(const PushMessage& m);
  // Ends every stream, now and for later subscribers.
  void close();

 private:
  std::mutex mutex_;
  std::vector<std::shared_ptr<Subscriber>> subscribers_;
  bool closed_ = false;
};

}  // namespace lad::server
