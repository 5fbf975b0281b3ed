// Messages that the main thread pushes to open browsers as server-sent events.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace lad::server {

struct PushMessage {
  std::string event;  // "refresh", "notice"
  std::string data;   // JSON text
};

// One open event stream of one browser tab. Whoever writes the stream is woken by the
// callback given at subscription and collects the messages with take().
class Subscriber {
 public:
  Subscriber(std::string session, std::function<void()> wake);

  const std::string& session() const { return session_; }
  // The messages that came since the last call, oldest first.
  std::vector<PushMessage> take();
  // The stream must end: the hub closed, or newer streams of the session replaced it.
  bool closed() const;

 private:
  friend class EventHub;
  void push(const PushMessage& m);
  void close();

  const std::string session_;
  const std::function<void()> wake_;
  mutable std::mutex mutex_;
  std::deque<PushMessage> queue_;
  bool closed_ = false;
};

class EventHub {
 public:
  // Which sessions a message is for; empty: every one.
  using Audience = std::function<bool(const std::string& session)>;

  // A new stream of the session. The session's oldest streams are closed so that it keeps at
  // most kStreamsPerSession: a browser that reconnects over and over cannot pile them up.
  std::shared_ptr<Subscriber> subscribe(const std::string& session, std::function<void()> wake);
  void unsubscribe(const std::shared_ptr<Subscriber>& s);
  // To every open stream of the sessions in the audience; tabs of one browser share a
  // session, so none of them is left out.
  void publish(const PushMessage& m, const Audience& audience = {});
  // Ends the streams of one session.
  void closeSession(const std::string& session);
  // Ends every stream, now and for later subscribers.
  void close();

  static constexpr std::size_t kStreamsPerSession = 3;

 private:
  std::mutex mutex_;
  std::vector<std::shared_ptr<Subscriber>> subscribers_;  // oldest first
  bool closed_ = false;
};

}  // namespace lad::server
