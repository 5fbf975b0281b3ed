#include "server/connection_loop.h"

#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace lad::server {

namespace {

using Clock = Connection::Clock;
using namespace std::chrono_literals;

constexpr std::uint64_t kListenId = 0;
constexpr std::uint64_t kWakeId = 1;
constexpr std::uint64_t kFirstClientId = 2;
// Handlers mostly wait for the installation's one main thread: a few are plenty.
constexpr std::size_t kWorkers = 4;
constexpr std::size_t kMaxClients = 4096;
constexpr int kMaxEvents = 128;
constexpr auto kTick = 250ms;
// Reads per readiness report, so that one busy client cannot starve the others.
constexpr int kReadsPerTurn = 16;

void watch(int epollFd, int op, int fd, std::uint32_t events, std::uint64_t id) {
  epoll_event e{};
  e.events = events;
  e.data.u64 = id;
  epoll_ctl(epollFd, op, fd, &e);
}

// Small responses leave at once instead of waiting for the acknowledgement of the last one.
void sendWithoutDelay(int fd) {
  int one = 1;
  setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
}

int listeningSocket(const addrinfo& a) {
  const int fd = socket(a.ai_family, a.ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, a.ai_protocol);
  if (fd < 0) return -1;
  int one = 1;
  setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one);
  if (::bind(fd, a.ai_addr, a.ai_addrlen) == 0 && listen(fd, SOMAXCONN) == 0) return fd;
  const int bindError = errno;
  ::close(fd);
  errno = bindError;
  return -1;
}

int boundPort(int fd) {
  sockaddr_storage address{};
  socklen_t length = sizeof address;
  getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
  if (address.ss_family == AF_INET6)
    return ntohs(reinterpret_cast<sockaddr_in6*>(&address)->sin6_port);
  return ntohs(reinterpret_cast<sockaddr_in*>(&address)->sin_port);
}

}  // namespace

ConnectionLoop::ConnectionLoop(ConnectionLimits limits, Handler handler, StreamEnded streamEnded)
    : limits_(limits),
      handler_(std::move(handler)),
      streamEnded_(std::move(streamEnded)),
      epollFd_(epoll_create1(EPOLL_CLOEXEC)),
      wakeFd_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}

ConnectionLoop::~ConnectionLoop() {
  closeAll();
  workers_.reset();
  for (int fd : {listenFd_, epollFd_, wakeFd_})
    if (fd >= 0) ::close(fd);
}

int ConnectionLoop::bind(const std::string& host, int port, std::string* error) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_PASSIVE;
  addrinfo* found = nullptr;
  const int lookup = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found);
  if (lookup != 0) {
    if (error) *error = gai_strerror(lookup);
    return -1;
  }
  for (addrinfo* a = found; a && listenFd_ < 0; a = a->ai_next) listenFd_ = listeningSocket(*a);
  const int bindError = errno;
  freeaddrinfo(found);
  if (listenFd_ < 0) {
    if (error) *error = std::strerror(bindError);
    return -1;
  }
  watch(epollFd_, EPOLL_CTL_ADD, listenFd_, EPOLLIN, kListenId);
  watch(epollFd_, EPOLL_CTL_ADD, wakeFd_, EPOLLIN, kWakeId);
  return boundPort(listenFd_);
}

void ConnectionLoop::run() {
  if (listenFd_ < 0 || stopping_) return;
  workers_ = std::make_unique<WorkerPool>(kWorkers);
  epoll_event events[kMaxEvents];
  auto lastTick = Clock::now();
  while (!stopping_) {
    const int n = epoll_wait(epollFd_, events, kMaxEvents, static_cast<int>(kTick.count()));
    for (int i = 0; i < n; ++i) {
      const std::uint64_t id = events[i].data.u64;
      if (id == kListenId) {
        accept();
      } else if (id == kWakeId) {
        std::uint64_t count;
        [[maybe_unused]] auto drained = ::read(wakeFd_, &count, sizeof count);
      } else if (auto it = clients_.find(id); it != clients_.end()) {
        // Hung up both ways or failed: nothing more can reach the client.
        if (events[i].events & (EPOLLHUP | EPOLLERR))
          close(id);
        else if (events[i].events & EPOLLIN)
          readFrom(id, it->second);
        else
          settle(id, it->second);
      }
    }
    takeDone();
    pumpStreams();
    if (Clock::now() - lastTick >= kTick) {
      tick();
      lastTick = Clock::now();
    }
  }
  closeAll();
  workers_.reset();  // handlers under way finish first
  takeDone();        // and the streams they opened end
}

void ConnectionLoop::stop() {
  stopping_ = true;
  wake();
}

void ConnectionLoop::wakeStreams() {
  streamsDue_ = true;
  wake();
}

void ConnectionLoop::wake() {
  const std::uint64_t one = 1;
  [[maybe_unused]] auto written = ::write(wakeFd_, &one, sizeof one);
}

void ConnectionLoop::accept() {
  for (;;) {
    const int fd = accept4(listenFd_, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
    if (fd < 0) return;
    if (clients_.size() >= kMaxClients) {
      ::close(fd);
      continue;
    }
    sendWithoutDelay(fd);
    const std::uint64_t id = kFirstClientId + nextId_++;
    clients_.emplace(id, Client{fd, Connection(limits_, Clock::now()), EPOLLIN});
    watch(epollFd_, EPOLL_CTL_ADD, fd, EPOLLIN, id);
  }
}

void ConnectionLoop::readFrom(std::uint64_t id, Client& client) {
  char buffer[65536];
  for (int turn = 0; turn < kReadsPerTurn && client.connection.wantsInput(); ++turn) {
    const ssize_t n = recv(client.fd, buffer, sizeof buffer, 0);
    if (n > 0) {
      const std::string_view bytes(buffer, static_cast<std::size_t>(n));
      if (auto request = client.connection.receive(bytes, Clock::now()))
        dispatch(id, std::move(*request));
    } else if (n == 0) {
      client.connection.peerClosed();
    } else if (errno != EINTR) {
      if (errno != EAGAIN && errno != EWOULDBLOCK) return close(id);
      break;
    }
  }
  settle(id, client);
}

void ConnectionLoop::dispatch(std::uint64_t id, HttpRequest request) {
  workers_->post([this, id, request = std::move(request)] {
    HttpResponse response = handler_(request);
    {
      std::lock_guard lock(doneMutex_);
      done_.push_back({id, std::move(response)});
    }
    wake();
  });
}

void ConnectionLoop::takeDone() {
  std::vector<Done> done;
  {
    std::lock_guard lock(doneMutex_);
    done.swap(done_);
  }
  for (Done& d : done) {
    const auto it = clients_.find(d.connection);
    if (it == clients_.end()) {
      if (d.response.stream) streamEnded_(d.response.stream);
      continue;
    }
    if (auto next = it->second.connection.respond(std::move(d.response), Clock::now()))
      dispatch(d.connection, std::move(*next));
    settle(d.connection, it->second);
  }
}

void ConnectionLoop::pumpStreams() {
  if (!streamsDue_.exchange(false)) return;
  std::vector<std::uint64_t> streaming;
  for (auto& [id, client] : clients_)
    if (client.connection.state() == Connection::State::Streaming) streaming.push_back(id);
  for (std::uint64_t id : streaming) {
    Client& client = clients_.at(id);
    client.connection.pumpStream(Clock::now());
    settle(id, client);
  }
}

void ConnectionLoop::tick() {
  std::vector<std::uint64_t> ids;
  ids.reserve(clients_.size());
  for (const auto& entry : clients_) ids.push_back(entry.first);
  for (std::uint64_t id : ids) {
    Client& client = clients_.at(id);
    client.connection.tick(Clock::now());
    settle(id, client);
  }
}

bool ConnectionLoop::settle(std::uint64_t id, Client& client) {
  std::string& out = client.connection.output();
  while (!out.empty()) {
    const ssize_t n = send(client.fd, out.data(), out.size(), MSG_NOSIGNAL);
    if (n > 0) {
      out.erase(0, static_cast<std::size_t>(n));
    } else if (errno != EINTR) {
      if (errno != EAGAIN && errno != EWOULDBLOCK) {
        close(id);
        return false;
      }
      break;
    }
  }
  if (out.empty() && client.connection.lastResponseSent() && !client.sendingClosed) {
    ::shutdown(client.fd, SHUT_WR);
    client.sendingClosed = true;
  }
  if (client.connection.finished(Clock::now())) {
    close(id);
    return false;
  }
  const std::uint32_t events =
      (client.connection.wantsInput() ? EPOLLIN : 0u) | (out.empty() ? 0u : EPOLLOUT);
  if (events != client.events) {
    watch(epollFd_, EPOLL_CTL_MOD, client.fd, events, id);
    client.events = events;
  }
  return true;
}

void ConnectionLoop::close(std::uint64_t id) {
  const auto it = clients_.find(id);
  if (it == clients_.end()) return;
  epoll_ctl(epollFd_, EPOLL_CTL_DEL, it->second.fd, nullptr);
  ::close(it->second.fd);
  if (it->second.connection.stream()) streamEnded_(it->second.connection.stream());
  clients_.erase(it);
}

// The server stops: streams get their last chunk, as far as the sockets take it at once.
void ConnectionLoop::closeAll() {
  while (!clients_.empty()) {
    auto& [id, client] = *clients_.begin();
    client.connection.shutdown();
    const std::string& out = client.connection.output();
    [[maybe_unused]] auto sent = send(client.fd, out.data(), out.size(), MSG_NOSIGNAL);
    close(id);
  }
}

}  // namespace lad::server
