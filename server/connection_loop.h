// The server's network side on one thread: it accepts connections, reads and writes them
// without blocking, hands each complete request to a handler on a small worker pool, and keeps
// the event streams. No connection holds a thread, so open streams and slow clients never keep
// a tap from being answered.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

#include "server/connection.h"
#include "server/worker_pool.h"

namespace lad::server {

class ConnectionLoop {
 public:
  using Handler = std::function<HttpResponse(const HttpRequest&)>;
  // Told of every stream that ends, so that its subscriber leaves the hub.
  using StreamEnded = std::function<void(const std::shared_ptr<Subscriber>&)>;

  ConnectionLoop(ConnectionLimits limits, Handler handler, StreamEnded streamEnded);
  ~ConnectionLoop();
  ConnectionLoop(const ConnectionLoop&) = delete;
  ConnectionLoop& operator=(const ConnectionLoop&) = delete;

  // Binds the listening socket; returns the port, or -1 with *error filled.
  int bind(const std::string& host, int port, std::string* error);
  // Serves until stop(); a stop() that came before returns at once.
  void run();
  // Safe from any thread.
  void stop();
  // Some stream has events to write; safe from any thread.
  void wakeStreams();

 private:
  struct Done {
    std::uint64_t connection;
    HttpResponse response;
  };
  struct Client {
    int fd;
    Connection connection;
    std::uint32_t events = 0;
    bool sendingClosed = false;
  };

  void wake();
  void accept();
  void readFrom(std::uint64_t id, Client& client);
  void dispatch(std::uint64_t id, HttpRequest request);
  void takeDone();
  void pumpStreams();
  void tick();
  // Writes what it can, then closes or adjusts what epoll watches; false once closed.
  bool settle(std::uint64_t id, Client& client);
  void close(std::uint64_t id);
  void closeAll();

  const ConnectionLimits limits_;
  const Handler handler_;
  const StreamEnded streamEnded_;
  int listenFd_ = -1;
  int epollFd_ = -1;
  int wakeFd_ = -1;
  std::atomic<bool> stopping_ = false;
  std::atomic<bool> streamsDue_ = false;
  std::uint64_t nextId_ = 0;
  std::unordered_map<std::uint64_t, Client> clients_;  // loop thread only
  std::mutex doneMutex_;
  std::vector<Done> done_;
  std::unique_ptr<WorkerPool> workers_;
};

}  // namespace lad::server
