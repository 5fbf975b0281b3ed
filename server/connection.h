// One client connection's side of HTTP/1.1, apart from its socket: bytes read become requests,
// responses and stream events become bytes to write, and the clock ends requests that stall.
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "server/http_request.h"
#include "server/http_response.h"

namespace lad::server {

struct ConnectionLimits {
  std::size_t maxBodyBytes = 0;
  // A request that has begun must progress within this, or it is answered 408.
  std::chrono::milliseconds requestTimeout{5000};
  // A kept-alive connection with no request under way is closed after this.
  std::chrono::milliseconds idleTimeout{30000};
  // A quiet event stream gets a comment line this often, so that proxies keep it open.
  std::chrono::milliseconds keepAlivePeriod{10000};
  // After a last response, what the client still sends is read and dropped for this long, so
  // that the response is not lost to a reset.
  std::chrono::milliseconds lingerTimeout{2000};
};

class Connection {
 public:
  using Clock = std::chrono::steady_clock;
  enum class State {
    Head,       // waiting for a request head (or idle between requests)
    Body,       // reading the announced body
    Handling,   // a handler has the request; the client's next bytes wait
    Streaming,  // an event stream is open
    Closing,    // the last bytes go out; what comes in is dropped
  };

  Connection(const ConnectionLimits& limits, Clock::time_point now);

  State state() const { return state_; }
  // Bytes from the client; a request once it is complete (the state is then Handling).
  std::optional<HttpRequest> receive(std::string_view bytes, Clock::time_point now);
  // The client closed its side.
  void peerClosed() { peerClosed_ = true; }
  // The handler's response to the request under way; the next request if the client sent it
  // already.
  std::optional<HttpRequest> respond(HttpResponse response, Clock::time_point now);
  // Writes the events that the stream's subscriber holds, and ends a closed stream.
  void pumpStream(Clock::time_point now);
  // Ends what is under way when the server stops: a stream gets its last chunk.
  void shutdown();
  // Timeouts: answers a stalled request with 408, keeps a quiet stream alive.
  void tick(Clock::time_point now);

  // Bytes waiting to be written; the caller removes what it wrote.
  std::string& output() { return output_; }
  const std::shared_ptr<Subscriber>& stream() const { return stream_; }
  bool wantsInput() const { return state_ != State::Handling && !peerClosed_; }
  // Nothing more will be written: once the output is out, the socket's sending side closes.
  bool lastResponseSent() const { return state_ == State::Closing; }
  // The connection should be closed now.
  bool finished(Clock::time_point now) const;

 private:
  std::optional<HttpRequest> nextRequest(Clock::time_point now);
  std::optional<HttpRequest> readHead(Clock::time_point now);
  std::optional<HttpRequest> readBody();
  void refuse(int status, std::string_view message, Clock::time_point now);
  void startStream(HttpResponse response, Clock::time_point now);
  void closeAfterOutput(Clock::time_point now);

  const ConnectionLimits& limits_;
  State state_ = State::Head;
  std::string input_;
  std::string output_;
  HttpRequest request_;    // the request being read; handed over once complete
  bool keepAlive_ = true;  // of the request under way
  bool headOnly_ = false;
  std::shared_ptr<Subscriber> stream_;
  bool peerClosed_ = false;
  Clock::time_point lastActivity_;  // last bytes read, or the last response
  Clock::time_point lastStreamWrite_;
  Clock::time_point closingSince_;
};

}  // namespace lad::server
