#include "server/connection.h"

namespace lad::server {

namespace {

using Outcome = HeadParse::Outcome;

// A stream whose reader has fallen this far behind is given up.
constexpr std::size_t kMaxStreamBacklog = 256 * 1024;
constexpr std::string_view kContinue = "HTTP/1.1 100 Continue\r\n\r\n";

std::string eventText(const PushMessage& m) {
  return "event: " + m.event + "\ndata: " + m.data + "\n\n";
}

bool expectsContinue(const HttpRequest& request) {
  return sameHeaderName(request.header("Expect"), "100-continue");
}

}  // namespace

Connection::Connection(const ConnectionLimits& limits, Clock::time_point now)
    : limits_(limits), lastActivity_(now) {}

std::optional<HttpRequest> Connection::receive(std::string_view bytes, Clock::time_point now) {
  if (bytes.empty() || state_ == State::Closing || state_ == State::Streaming) return std::nullopt;
  lastActivity_ = now;
  input_.append(bytes);
  return state_ == State::Handling ? std::nullopt : nextRequest(now);
}

std::optional<HttpRequest> Connection::nextRequest(Clock::time_point now) {
  if (state_ == State::Head) return readHead(now);
  if (state_ == State::Body) return readBody();
  return std::nullopt;
}

std::optional<HttpRequest> Connection::readHead(Clock::time_point now) {
  const HeadParse head = parseRequestHead(input_, request_);
  if (head.outcome == Outcome::Incomplete) return std::nullopt;
  if (head.outcome == Outcome::Refused) {
    refuse(head.status, head.error, now);
    return std::nullopt;
  }
  input_.erase(0, head.headBytes);
  if (request_.contentLength > limits_.maxBodyBytes) {
    refuse(413, "the request is larger than this server takes", now);
    return std::nullopt;
  }
  if (expectsContinue(request_) && input_.size() < request_.contentLength) output_ += kContinue;
  state_ = State::Body;
  return readBody();
}

std::optional<HttpRequest> Connection::readBody() {
  if (input_.size() < request_.contentLength) return std::nullopt;
  request_.body = input_.substr(0, request_.contentLength);
  input_.erase(0, request_.contentLength);
  keepAlive_ = request_.keepAlive();
  headOnly_ = request_.method == "HEAD";
  state_ = State::Handling;
  return std::move(request_);
}

std::optional<HttpRequest> Connection::respond(HttpResponse response, Clock::time_point now) {
  if (state_ != State::Handling) return std::nullopt;
  if (response.stream) {
    startStream(std::move(response), now);
    return std::nullopt;
  }
  const bool keepAlive = keepAlive_ && !peerClosed_;
  output_ += serialize(response, keepAlive, headOnly_);
  lastActivity_ = now;
  if (!keepAlive) {
    closeAfterOutput(now);
    return std::nullopt;
  }
  state_ = State::Head;
  return nextRequest(now);
}

void Connection::startStream(HttpResponse response, Clock::time_point now) {
  output_ += serializeStreamHead(response) + chunk(response.body);
  stream_ = std::move(response.stream);
  state_ = State::Streaming;
  lastStreamWrite_ = now;
  pumpStream(now);
}

void Connection::pumpStream(Clock::time_point now) {
  if (state_ != State::Streaming) return;
  for (const PushMessage& m : stream_->take()) output_ += chunk(eventText(m));
  lastStreamWrite_ = now;
  if (stream_->closed()) shutdown();
}

void Connection::shutdown() {
  if (state_ == State::Streaming) output_ += chunk("");
  if (state_ != State::Closing) closeAfterOutput(Clock::now());
}

void Connection::refuse(int status, std::string_view message, Clock::time_point now) {
  output_ += serialize(HttpResponse::error(status, message), false);
  closeAfterOutput(now);
}

void Connection::closeAfterOutput(Clock::time_point now) {
  state_ = State::Closing;
  closingSince_ = now;
  input_.clear();
}

void Connection::tick(Clock::time_point now) {
  const bool requestStarted = state_ == State::Body || (state_ == State::Head && !input_.empty());
  if (requestStarted && now - lastActivity_ > limits_.requestTimeout)
    refuse(408, "the request did not arrive in time", now);
  if (state_ == State::Streaming && now - lastStreamWrite_ >= limits_.keepAlivePeriod) {
    output_ += chunk(": keep-alive\n\n");
    lastStreamWrite_ = now;
  }
  // The linger time counts from when the last bytes have gone.
  if (state_ == State::Closing && !output_.empty()) closingSince_ = now;
}

bool Connection::finished(Clock::time_point now) const {
  if (peerClosed_ && state_ != State::Handling && (output_.empty() || state_ == State::Streaming))
    return true;
  if (state_ == State::Streaming) return output_.size() > kMaxStreamBacklog;
  if (state_ == State::Closing) return now - closingSince_ > limits_.lingerTimeout;
  return state_ == State::Head && input_.empty() && now - lastActivity_ > limits_.idleTimeout;
}

}  // namespace lad::server
