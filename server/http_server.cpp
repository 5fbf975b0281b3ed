// The routes of the server: the web app's files, the view and event endpoints of the browser
// sessions, and their event streams. The network side is the ConnectionLoop's.
#include "server/http_server.h"

#include <cctype>
#include <cstdio>

#include "core/atomic_file.h"
#include "server/compression.h"
#include "server/connection_loop.h"
#include "server/static_files.h"
#include "shell/book/book_screen.h"
#include "shell/diary/day_cells.h"
#include "shell/profile_cards.h"
#include "shell/reminder_feed.h"
#include "shell/report_panel.h"

namespace lad::server {

namespace {

constexpr char kSessionCookie[] = "lsid";
constexpr char kStreamGreeting[] = "retry: 2000\n\n";
// The app runs only its own scripts and talks only to this server.
constexpr char kContentPolicy[] =
    "default-src 'self'; img-src 'self' data:; object-src 'none'; base-uri 'none'; "
    "frame-ancestors 'none'";

HttpResponse jsonResponse(const Reply& reply) {
  HttpResponse res;
  res.status = reply.status;
  res.setHeader("Cache-Control", "no-store");
  if (reply.newSession)
    res.setHeader("Set-Cookie", std::string(kSessionCookie) + "=" + reply.session +
                                    "; Path=/; HttpOnly; SameSite=Strict");
  res.setContent(reply.body, "application/json");
  return res;
}

// State-changing requests must come from the app's own pages, as JSON.
std::string crossOriginProblem(const HttpRequest& req) {
  const std::string origin = req.header("Origin");
  const std::string host = req.header("Host");
  if (!origin.empty() && origin != "http://" + host && origin != "https://" + host)
    return "requests from other sites are refused";
  const std::string site = req.header("Sec-Fetch-Site");
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

void addSecurityHeaders(HttpResponse& res) {
  res.setHeader("X-Content-Type-Options", "nosniff");
  res.setHeader("Referrer-Policy", "no-referrer");
  res.setHeader("X-Frame-Options", "DENY");
  res.setHeader("Content-Security-Policy", kContentPolicy);
}

}  // namespace

struct HttpServer::Impl {
  Installation& installation;
  HttpOptions options;
  StaticFiles files;
  ConnectionLoop loop;

  Impl(Installation& i, HttpOptions o)
      : installation(i),
        options(std::move(o)),
        loop(
            ConnectionLimits{options.maxBodyBytes},
            [this](const HttpRequest& r) { return handle(r); },
            [this](const std::shared_ptr<Subscriber>& s) { installation.hub().unsubscribe(s); }) {
    if (!options.imagesDir.empty()) files.mount("/img", options.imagesDir);
    if (!options.builtImagesDir.empty()) files.mount("/img", options.builtImagesDir);
    if (!options.webDir.empty()) files.mount("/", options.webDir);
  }

  HttpResponse handle(const HttpRequest& req) {
    HttpResponse res;
    try {
      res = route(req);
    } catch (const std::exception& e) {
      res = HttpResponse::error(503, e.what());
    }
    addSecurityHeaders(res);
    compressForRequest(req, res);
    if (options.logRequests)
      std::fprintf(stderr, "%s %s %d\n", req.method.c_str(), req.path.c_str(), res.status);
    return res;
  }

  HttpResponse route(const HttpRequest& req) {
    const bool get = req.method == "GET" || req.method == "HEAD";
    const std::string session = req.cookie(kSessionCookie);
    const std::string host = req.header("Host");
    if (get && req.path == "/api/view") return jsonResponse(installation.view(session, host));
    if (req.method == "POST" && req.path == "/api/event") return takeEvent(req, session, host);
    if (req.method == "GET" && req.path == "/api/events") return openStream(session);
    if (get && req.path == "/manifest.webmanifest") {
      HttpResponse res;
      res.setContent(installation.manifest(), "application/manifest+json");
      return res;
    }
    if (get && req.path.starts_with(shell::kPortraitAddress))
      return picture(installation.portrait(
          session, req.path.substr(std::string_view(shell::kPortraitAddress).size())));
    if (get && req.path.starts_with(shell::kPictureAddress))
      return picture(installation.dayPicture(
          session, req.path.substr(std::string_view(shell::kPictureAddress).size())));
    if (get && req.path.starts_with(shell::kFeedAddress))
      return calendarFeed(req.path.substr(shell::kFeedAddress.size()));
    if (get && req.path.starts_with(shell::kBookAddress))
      return picture(installation.bookPicture(
          session, req.path.substr(std::string_view(shell::kBookAddress).size())));
    if (get && req.path.starts_with(shell::kReportAddress))
      return document(installation.report(
          session, req.path.substr(std::string_view(shell::kReportAddress).size())));
    if (options.testClock && req.method == "POST" && req.path == "/api/test/clock")
      return advanceTestClock(req);
    if (get && !req.path.starts_with("/api/"))
      if (auto file = files.serve(req.path)) return std::move(*file);
    return HttpResponse::error(404, "no such endpoint: " + req.method + " " + req.path);
  }

  HttpResponse takeEvent(const HttpRequest& req, const std::string& session,
                         const std::string& host) {
    if (auto problem = crossOriginProblem(req); !problem.empty())
      return HttpResponse::error(403, problem);
    if (!isJsonContent(req.header("Content-Type")))
      return HttpResponse::error(415, "an event must be sent as application/json");
    return jsonResponse(installation.event(session, req.body, host));
  }

  // A stream belongs to a session that the app's first request opened.
  HttpResponse openStream(const std::string& session) {
    auto subscriber = installation.openStream(session, [this] { loop.wakeStreams(); });
    if (!subscriber)
      return HttpResponse::error(401, "the event stream is only for an open session");
    HttpResponse res;
    res.setHeader("Cache-Control", "no-store");
    res.setContent(kStreamGreeting, "text/event-stream");
    res.stream = std::move(subscriber);
    return res;
  }

  // A private answer, kept by the browser for this page only: the next session must ask again.
  static HttpResponse privateContent(std::string content, const char* type) {
    HttpResponse res;
    res.setHeader("Cache-Control", "private, no-store");
    res.setContent(std::move(content), type);
    return res;
  }

  // A diary file the installation allowed, or why not.
  static HttpResponse privateFile(const FileReply& reply, const char* type) {
    auto bytes = reply.status == 200 ? readWholeFile(reply.file) : std::nullopt;
    if (!bytes) return HttpResponse::error(reply.status == 200 ? 404 : reply.status, reply.error);
    return privateContent(std::move(*bytes), type);
  }

  HttpResponse picture(const FileReply& reply) { return privateFile(reply, "image/jpeg"); }

  // Known only to whoever holds the address: anyone else hears that there is nothing here.
  HttpResponse calendarFeed(std::string_view name) {
    auto feed = installation.calendarFeed(name);
    if (!feed) return HttpResponse::error(404, "no such calendar");
    return privateContent(std::move(*feed), "text/calendar; charset=utf-8");
  }

  // A PDF for the browser's own viewer, saved under its own name when downloaded.
  HttpResponse document(const FileReply& reply) {
    HttpResponse res = privateFile(reply, "application/pdf");
    if (res.status == 200)
      res.setHeader("Content-Disposition",
                    "inline; filename=\"" + reply.file.filename().string() + "\"");
    return res;
  }

  HttpResponse advanceTestClock(const HttpRequest& req) {
    const auto body = Value::fromJson(req.body);
    const Value* advance = body && body->asMap() ? body->asMap()->find("advance") : nullptr;
    if (!advance || advance->doubleValue() < 0)
      return HttpResponse::error(400, "the test clock wants {\"advance\": seconds}");
    options.testClock->advance(
        std::chrono::milliseconds(static_cast<std::int64_t>(advance->doubleValue() * 1000)));
    HttpResponse res;
    res.setContent(Value(Map()).toJson(), "application/json");
    return res;
  }
};

HttpServer::HttpServer(Installation& installation, HttpOptions options)
    : impl_(std::make_unique<Impl>(installation, std::move(options))) {}

HttpServer::~HttpServer() {
  stop();
}

int HttpServer::bind(std::string* error) {
  const auto& o = impl_->options;
  std::string why;
  const int port = impl_->loop.bind(o.host, o.port, &why);
  if (port < 0 && error)
    *error = "cannot listen on " + o.host + ":" + std::to_string(o.port) + " (" + why + ")";
  return port;
}

void HttpServer::run() {
  impl_->loop.run();
}

void HttpServer::stop() {
  impl_->installation.hub().close();
  impl_->loop.stop();
}

}  // namespace lad::server
