// Shared helpers of the server tests: temporary folders, a server on a loopback port, and a
// reader of an event stream.
#pragma once

#include <gtest/gtest.h>
#include <httplib.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "server/http_server.h"
#include "server/installation.h"
#include "shell/lock/password_hash.h"
#include "tests/support/loopback_client.h"
#include "tests/support/test_files.h"

namespace lad::server::test {

using namespace std::chrono_literals;
using Json = nlohmann::json;

// How long any single wait may take before the test gives up instead of hanging.
constexpr auto kDeadline = 15s;

// What a stream hears for a redraw, and the marker a test pushes behind the events it awaits.
constexpr char kRefresh[] = "event: refresh\ndata: {}\n\n";
constexpr char kMarker[] = "event: notice\ndata: {\"marker\":1}\n\n";

using lad::testing::LoopbackClient;
using lad::testing::RawResponse;
using lad::testing::readFile;
using lad::testing::TempDir;
using lad::testing::writeFile;

inline std::filesystem::path settingsFileOf(const std::filesystem::path& dataDir) {
  return dataDir / "Library" / "Preferences.json";
}

// Options of an installation whose greeting of this version has been shown already, so that
// its first view is the main menu. Settings that are there already are kept.
inline ContextOptions greetedInstallation(const std::filesystem::path& dataDir) {
  std::filesystem::create_directories(settingsFileOf(dataDir).parent_path());
  if (!std::filesystem::exists(settingsFileOf(dataDir)))
    writeFile(settingsFileOf(dataDir), R"({"version0-1-0": true})");
  return ContextOptions{1, 1, dataDir, "0.1.0", nullptr, LADANEYA_RESOURCES_DIR};
}

// The settings file parsed as a map; nullopt when it is missing or not a JSON object.
inline std::optional<Map> settingsOnDisk(const std::filesystem::path& dataDir) {
  auto parsed = Value::fromJson(readFile(settingsFileOf(dataDir)));
  if (!parsed || !parsed->asMap()) return std::nullopt;
  return *parsed->asMap();
}

// A switch of the settings file; nullopt when the file lacks it or holds it as no bool.
inline std::optional<bool> switchOnDisk(const std::filesystem::path& dataDir,
                                        std::string_view key) {
  const auto settings = settingsOnDisk(dataDir);
  const Value* value = settings ? settings->find(key) : nullptr;
  if (!value || value->type() != Value::Type::Bool) return std::nullopt;
  return value->boolValue();
}

// The status of a response, or 0 when none came.
template <class Response>
int statusOf(const Response& res) {
  return res ? res->status : 0;
}

inline std::size_t countOf(std::string_view text, std::string_view needle) {
  std::size_t n = 0;
  for (auto at = text.find(needle); at != std::string_view::npos;
       at = text.find(needle, at + needle.size()))
    ++n;
  return n;
}

// The row with that id in a view response, or null.
inline Json rowOf(const Json& response, std::string_view id) {
  for (const Json& row : response["view"]["children"].back()["rows"])
    if (row.value("id", "") == id) return row;
  return nullptr;
}

// The session id that a Set-Cookie header hands out, or "" when there is none.
inline std::string sessionFromSetCookie(const httplib::Response& res) {
  const std::string cookie = res.get_header_value("Set-Cookie");
  const std::string prefix = "lsid=";
  if (!cookie.starts_with(prefix)) return {};
  return cookie.substr(prefix.size(), cookie.find(';') - prefix.size());
}

inline httplib::Headers sessionHeaders(const std::string& session) {
  if (session.empty()) return {};
  return {{"Cookie", "lsid=" + session}};
}

inline std::unique_ptr<httplib::Client> newClient(int port) {
  auto client = std::make_unique<httplib::Client>("127.0.0.1", port);
  client->set_connection_timeout(5s);
  client->set_read_timeout(30s);
  client->set_write_timeout(30s);
  return client;
}

// The request of a session's event stream ("" for none), with extra header lines.
inline std::string streamRequest(const std::string& session, const std::string& extra = "") {
  return "GET /api/events HTTP/1.1\r\nHost: 127.0.0.1\r\n" +
         (session.empty() ? std::string() : "Cookie: lsid=" + session + "\r\n") + extra + "\r\n";
}

// The event stream of a session over a raw connection, its bytes read as the test waits for them.
class StreamReader {
 public:
  StreamReader(int port, const std::string& session, const std::string& extra = "") : raw_(port) {
    raw_.send(streamRequest(session, extra));
  }

  // True once the bytes hold the needle at least `times` times.
  bool waitFor(std::string_view needle, std::size_t times = 1) {
    while (countOf(text_, needle) < times)
      if (!readMore()) return false;
    return true;
  }
  // True once the stream ended with its last chunk or the server closed the connection.
  bool waitForEnd() {
    while (!text_.ends_with("\r\n0\r\n\r\n") && readMore()) {
    }
    return text_.ends_with("\r\n0\r\n\r\n") || raw_.closedByPeer();
  }
  // Everything received so far, the response head included.
  const std::string& text() const { return text_; }

 private:
  bool readMore() {
    const std::string more = raw_.receiveOnce();
    text_ += more;
    return !more.empty();
  }

  LoopbackClient raw_;
  std::string text_;
};

// Everything the stream had received before the nth marker that the test pushed after its
// events. The hub delivers in order, so whatever reached the stream earlier comes before it.
inline std::string beforeMarker(StreamReader& stream, std::size_t nth = 1) {
  EXPECT_TRUE(stream.waitFor(kMarker, nth)) << stream.text();
  const std::string text = stream.text();
  std::size_t at = text.find(kMarker);
  while (--nth > 0 && at != std::string::npos) at = text.find(kMarker, at + 1);
  return text.substr(0, at);
}

// An installation in a temporary data folder behind a server on a free loopback port.
class ServerTest : public ::testing::Test {
 protected:
  // Set before SetUp for a server whose clock the test drives over HTTP.
  std::shared_ptr<ManualClock> testClock_;
  static constexpr std::string_view kAppJs = "document.title = 'app';\n";

  void SetUp() override {
    std::filesystem::create_directories(webDir());
    writeFile(webDir() / "index.html", "<!doctype html>\n<script src=\"app.js\"></script>\n");
    writeFile(webDir() / "app.js", kAppJs);
    installation_ = std::make_unique<Installation>(greetedInstallation(dataDir()));
    HttpOptions options;
    options.host = "127.0.0.1";
    options.port = 0;
    options.webDir = webDir();
    options.logRequests = false;
    options.testClock = testClock_;
    server_ = std::make_unique<HttpServer>(*installation_, options);
    std::string error;
    port_ = server_->bind(&error);
    ASSERT_GT(port_, 0) << error;
    runEnded_ = std::async(std::launch::async, [this] { server_->run(); });
    // A first answer shows that run() is serving; stop() does not reach a server before that.
    auto res = newClient(port_)->Get("/app.js");
    ASSERT_TRUE(res) << httplib::to_string(res.error());
    ASSERT_EQ(res->status, 200);
  }

  void TearDown() override { stopServer(); }

  // Stops the server; false when run() did not return within the deadline.
  bool stopServer() {
    if (!runEnded_.valid()) return true;
    server_->stop();
    const bool ended = runEnded_.wait_for(kDeadline) == std::future_status::ready;
    if (!ended) server_->stop();  // once more, so that run() still returns
    runEnded_.get();
    return ended;
  }

  std::filesystem::path dataDir() const { return root_.path() / "data"; }
  std::filesystem::path webDir() const { return root_.path() / "web"; }
  std::unique_ptr<httplib::Client> client() const { return newClient(port_); }
  std::string ownOrigin() const { return "http://127.0.0.1:" + std::to_string(port_); }

  // A new session and its first view.
  std::string openSession() {
    auto res = client()->Get("/api/view");
    const std::string session = res ? sessionFromSetCookie(*res) : "";
    EXPECT_FALSE(session.empty()) << "no session cookie in a first view";
    return session;
  }

  httplib::Result postEvent(const std::string& body, const std::string& session = {},
                            httplib::Headers extra = {},
                            const std::string& contentType = "application/json") {
    httplib::Headers headers = sessionHeaders(session);
    headers.insert(extra.begin(), extra.end());
    return client()->Post("/api/event", headers, body, contentType.c_str());
  }

  httplib::Result tap(const std::string& session, const std::string& target) {
    return postEvent(R"({"type":"tap","target":")" + target + "\"}", session);
  }
  void typeCode(const std::string& session, const std::string& digits) {
    for (char d : digits) tap(session, std::string("lock:") + d);
  }
  // Turns the lock on with this code, as a code set through the lock would.
  void lockWith(const std::string& code) {
    installation_->withContext([&](Context& c) {
      c.settings().set("pass", true);
      c.settings().set("password", *shell::hashPassword(code));
    });
  }
  void pushMarker() { installation_->hub().publish({"notice", "{\"marker\":1}"}); }

  // The settings as the installation holds them, written out first so that the file is current.
  std::string settingsNow() {
    EXPECT_TRUE(installation_->withContext([](Context& c) { return c.settings().synchronize(); }));
    return readFile(settingsFileOf(dataDir()));
  }

  TempDir root_;
  std::unique_ptr<Installation> installation_;
  std::unique_ptr<HttpServer> server_;
  int port_ = -1;
  std::future<void> runEnded_;
};

}  // namespace lad::server::test
