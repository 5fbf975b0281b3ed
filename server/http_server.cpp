// The only translation unit that sees the HTTP library.
#include "server/http_server.h"

#include <httplib.h>

#include <atomic>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <thread>

#include "core/atomic_file.h"
#include "shell/profile_cards.h"

namespace lad::server {

namespace {

using namespace std::chrono_literals;

constexpr char kSessionCookie[] = "lsid";
constexpr auto kKeepAlivePeriod = 10s;
constexpr std::size_t kHandlerThreads = 48;  // event streams each hold one
// The app runs only its own scripts and talks only to this server.
constexpr char kContentPolicy[] =
    "default-src 'self'; img-src 'self' data:; object-src 'none'; base-uri 'none'; "
    "frame-ancestors 'none'";

std::string cookieValue(const httplib::Request& req, const std::string& name) {
  const std::string cookies = req.get_header_value("Cookie");
  std::size_t pos = 0;
  while (pos < cookies.size()) {
    std::size_t end = cookies.find(';', pos);
    if (end == std::string::npos) end = cookies.size();
    std::string part = cookies.substr(pos, end - pos);
    part.erase(0, part.find_first_not_of(' '));
    if (part.starts_with(name + "=")) return part.substr(name.size() + 1);
    pos = end + 1;
  }
  return {};
}

void sendJson(httplib::Response& res, const Reply& reply) {
  res.set_header("Cache-Control", "no-store");
  if (reply.newSession)
    res.set_header("Set-Cookie", std::string(kSessionCookie) + "=" + reply.session +
                                     "; Path=/; HttpOnly; SameSite=Strict");
  res.status = reply.status;
  res.set_content(reply.body, "application/json");
}

void sendError(httplib::Response& res, int status, const std::string& message) {
  Reply reply;
  reply.refuse(status, message);
  sendJson(res, reply);
}

// State-changing requests must come from the app's own pages, as JSON.
std::string crossOriginProblem(const httplib::Request& req) {
  const std::string origin = req.get_header_value("Origin");
  const std::string host = req.get_header_value("Host");
  if (!origin.empty() && origin != "http://" + host && origin != "https://" + host)
    return "requests from other sites are refused";
  const std::string site = req.get_header_value("Sec-Fetch-Site");
  if (!site.empty() && site != "same-origin" && site != "none")
    return "requests from other sites are refused";
  return {};
}

// "application/json", in any case, with or without parameters.
bool isJsonContent(std::string type) {
  type = type.substr(0, type.find(';'));
  while (!type.empty() && type.back() == ' ') type.pop_back();
  for (char& c : type) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return type == "application/json";
}

std::string sseChunk(const PushMessage& m) {
  return "event: " + m.event + "\ndata: " + m.data + "\n\n";
}

}  // namespace

struct HttpServer::Impl {
  Installation& installation;
  HttpOptions options;
  httplib::Server http;
  // The library's stop() only reaches a running accept loop: a stop that comes earlier is
  // remembered here and honoured by run().
  std::atomic<bool> stopRequested = false;
  std::atomic<bool> running = false;

  Impl(Installation& i, HttpOptions o) : installation(i), options(std::move(o)) {
    http.new_task_queue = [] { return new httplib::ThreadPool(kHandlerThreads); };
    http.set_payload_max_length(options.maxBodyBytes);
    http.set_default_headers({{"X-Content-Type-Options", "nosniff"},
                              {"Referrer-Policy", "no-referrer"},
                              {"X-Frame-Options", "DENY"},
                              {"Content-Security-Policy", kContentPolicy}});
    if (options.logRequests)
      http.set_logger([](const httplib::Request& req, const httplib::Response& res) {
        std::fprintf(stderr, "%s %s %d\n", req.method.c_str(), req.path.c_str(), res.status);
      });
    http.set_error_handler([](const httplib::Request& req, httplib::Response& res) {
      if (!res.body.empty()) return;
      if (res.status == 413)
        sendError(res, 413, "the request is larger than this server takes");
      else if (res.status == 404 && req.path.starts_with("/api/"))
        sendError(res, res.status, "no such endpoint: " + req.method + " " + req.path);
    });
    http.set_exception_handler(
        [](const httplib::Request&, httplib::Response& res, std::exception_ptr e) {
          std::string what = "internal error";
          try {
            if (e) std::rethrow_exception(e);
          } catch (const std::exception& ex) {
            what = ex.what();
          }
          sendError(res, 503, what);
        });
    routeApi();
    mountStatic();
  }

  void routeApi() {
    http.Get("/api/view", [this](const httplib::Request& req, httplib::Response& res) {
      sendJson(res,
               installation.view(cookieValue(req, kSessionCookie), req.get_header_value("Host")));
    });
    http.Post("/api/event", [this](const httplib::Request& req, httplib::Response& res) {
      if (auto problem = crossOriginProblem(req); !problem.empty())
        return sendError(res, 403, problem);
      if (!isJsonContent(req.get_header_value("Content-Type")))
        return sendError(res, 415, "an event must be sent as application/json");
      sendJson(res, installation.event(cookieValue(req, kSessionCookie), req.body,
                                       req.get_header_value("Host")));
    });
    http.Get("/manifest.webmanifest", [this](const httplib::Request&, httplib::Response& res) {
      res.set_content(installation.manifest(), "application/manifest+json");
    });
    http.Get(
        std::string(shell::kPortraitAddress) + "([^/]+)",
        [this](const httplib::Request& req, httplib::Response& res) { sendPortrait(req, res); });
    http.Get("/api/events",
             [this](const httplib::Request&, httplib::Response& res) { streamEvents(res); });
    if (options.testClock) routeTestClock();
  }

  void routeTestClock() {
    http.Post("/api/test/clock", [this](const httplib::Request& req, httplib::Response& res) {
      const auto body = Value::fromJson(req.body);
      const Value* advance = body && body->asMap() ? body->asMap()->find("advance") : nullptr;
      if (!advance || advance->doubleValue() < 0)
        return sendError(res, 400, "the test clock wants {\"advance\": seconds}");
      options.testClock->advance(
          std::chrono::milliseconds(static_cast<std::int64_t>(advance->doubleValue() * 1000)));
      res.set_content(Value(Map()).toJson(), "application/json");
    });
  }

  // Kept by the browser for this page only: the next session must ask again.
  void sendPortrait(const httplib::Request& req, httplib::Response& res) {
    const FileReply reply =
        installation.portrait(cookieValue(req, kSessionCookie), req.matches[1].str());
    auto bytes = reply.status == 200 ? readWholeFile(reply.file) : std::nullopt;
    if (!bytes) return sendError(res, reply.status == 200 ? 404 : reply.status, reply.error);
    res.set_header("Cache-Control", "private, no-store");
    res.set_content(std::move(*bytes), "image/jpeg");
  }

  void streamEvents(httplib::Response& res) {
    // Only the stream's own content type is set: the library picks compression by the first
    // one, and a compressed stream would hold events back.
    res.set_header("Cache-Control", "no-store");
    auto subscriber = installation.hub().subscribe();
    EventHub& hub = installation.hub();
    res.set_chunked_content_provider(
        "text/event-stream",
        [subscriber](std::size_t offset, httplib::DataSink& sink) {
          if (offset == 0) {
            const std::string hello = "retry: 2000\n\n";
            return sink.write(hello.data(), hello.size());
          }
          auto message = subscriber->next(kKeepAlivePeriod);
          if (subscriber->closed()) {
            sink.done();
            return true;
          }
          const std::string chunk = message ? sseChunk(*message) : ": keep-alive\n\n";
          return sink.write(chunk.data(), chunk.size());
        },
        [&hub, subscriber](bool) { hub.unsubscribe(subscriber); });
  }

  void mountStatic() {
    const httplib::Headers noCache{{"Cache-Control", "no-cache"}};
    if (!options.imagesDir.empty()) http.set_mount_point("/img", options.imagesDir, noCache);
    if (!options.webDir.empty()) http.set_mount_point("/", options.webDir, noCache);
  }
};

HttpServer::HttpServer(Installation& installation, HttpOptions options)
    : impl_(std::make_unique<Impl>(installation, std::move(options))) {}

HttpServer::~HttpServer() {
  stop();
}

int HttpServer::bind(std::string* error) {
  const auto& o = impl_->options;
  int port = o.port;
  if (port == 0)
    port = impl_->http.bind_to_any_port(o.host);
  else if (!impl_->http.bind_to_port(o.host, port))
    port = -1;
  if (port < 0 && error)
    *error = "cannot listen on " + o.host + ":" + std::to_string(o.port) + " (" +
             std::strerror(errno) + ")";
  return port;
}

void HttpServer::run() {
  impl_->running = true;
  if (!impl_->stopRequested) impl_->http.listen_after_bind();
  impl_->running = false;
}

void HttpServer::stop() {
  impl_->stopRequested = true;
  impl_->installation.hub().close();
  // run() may be between its check and the start of the accept loop.
  while (impl_->running && !impl_->http.is_running())
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  impl_->http.stop();
}

}  // namespace lad::server
