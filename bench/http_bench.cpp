// Round trips on one kept-alive loopback connection to a real server: an event (the work of a
// tap) against a static file of the same size, so that the server's own delays show apart from
// the work. Reports p50 and p99 in microseconds.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

#include "server/http_server.h"
#include "tests/support/loopback_client.h"
#include "tests/support/test_files.h"

namespace {

using namespace lad;
using lad::testing::LoopbackClient;

constexpr char kEvent[] = R"({"type":"viewport","width":390,"height":844})";

std::string eventRequest(const std::string& session) {
  return "POST /api/event HTTP/1.1\r\nHost: 127.0.0.1\r\nCookie: lsid=" + session +
         "\r\nContent-Type: application/json\r\nContent-Length: " +
         std::to_string(sizeof kEvent - 1) + "\r\n\r\n" + kEvent;
}

// One installation and server for the whole run, and the one connection both benchmarks use.
struct LiveServer {
  lad::testing::TempDir root;
  std::unique_ptr<server::Installation> installation;
  std::unique_ptr<server::HttpServer> http;
  std::thread runner;
  std::unique_ptr<LoopbackClient> connection;
  std::string session;
  std::string tap;
  std::string staticFile;

  LiveServer() {
    const auto data = root.path() / "data";
    std::filesystem::create_directories(data / "Library");
    lad::testing::writeFile(data / "Library" / "Preferences.json", R"({"version0-1-0": true})");
    installation = std::make_unique<server::Installation>(
        ContextOptions{1, 1, data, "0.1.0", nullptr, LADANEYA_RESOURCES_DIR});
    server::HttpOptions options;
    options.port = 0;
    options.webDir = root.path() / "web";
    options.logRequests = false;
    std::filesystem::create_directories(options.webDir);
    http = std::make_unique<server::HttpServer>(*installation, options);
    const int port = http->bind(nullptr);
    runner = std::thread([this] { http->run(); });
    connection = std::make_unique<LoopbackClient>(port);
    prepareRequests(options.webDir);
  }

  // The session comes from a first view; the static file is as large as the event's answer.
  void prepareRequests(const std::filesystem::path& webDir) {
    const auto first = connection->exchange("GET /api/view HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
    const std::string cookie = first ? first->header("Set-Cookie") : "";
    session = cookie.substr(5, cookie.find(';') - 5);
    tap = eventRequest(session);
    const auto answer = connection->exchange(tap);
    lad::testing::writeFile(webDir / "same-size.txt",
                            std::string(answer ? answer->body.size() : 0, 'x'));
    staticFile = "GET /same-size.txt HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";
  }

  ~LiveServer() {
    connection.reset();
    http->stop();
    runner.join();
  }
};

LiveServer& live() {
  static LiveServer server;
  return server;
}

void roundTrips(benchmark::State& state, const std::string& request) {
  LoopbackClient& connection = *live().connection;
  std::vector<double> micros;
  std::size_t bodyBytes = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    auto response = connection.exchange(request);
    const auto took = std::chrono::steady_clock::now() - start;
    if (!response || response->status != 200) {
      state.SkipWithError("no answer");
      break;
    }
    micros.push_back(std::chrono::duration<double, std::micro>(took).count());
    bodyBytes = response->body.size();
  }
  if (micros.empty()) return;
  std::sort(micros.begin(), micros.end());
  state.counters["p50_us"] = micros[micros.size() / 2];
  state.counters["p99_us"] = micros[micros.size() * 99 / 100];
  state.counters["body_bytes"] = static_cast<double>(bodyBytes);
}

void BM_TapRoundTrip(benchmark::State& state) {
  roundTrips(state, live().tap);
}
BENCHMARK(BM_TapRoundTrip)->UseRealTime()->Iterations(2000);

void BM_StaticFileOfTheSameSize(benchmark::State& state) {
  roundTrips(state, live().staticFile);
}
BENCHMARK(BM_StaticFileOfTheSameSize)->UseRealTime()->Iterations(2000);

// The same event handed to the installation directly: the work that the tap's round trip
// carries on top of the static file's.
void BM_TapWithoutHttp(benchmark::State& state) {
  LiveServer& server = live();
  for (auto _ : state) benchmark::DoNotOptimize(server.installation->event(server.session, kEvent));
}
BENCHMARK(BM_TapWithoutHttp)->UseRealTime();

}  // namespace
