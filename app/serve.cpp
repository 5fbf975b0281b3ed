#include "app/serve.h"

#include <signal.h>

#include <atomic>
#include <cstdio>
#include <thread>

#include "server/http_server.h"
#include "server/listen_policy.h"

namespace lad::app {

namespace {

// Blocks the stop signals in this thread and every thread made after it, so that only the
// waiter below takes them.
sigset_t blockStopSignals() {
  sigset_t set;
  sigemptyset(&set);
  sigaddset(&set, SIGINT);
  sigaddset(&set, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &set, nullptr);
  return set;
}

// Waits for a stop signal, or for `done`, and stops the server on a signal.
std::thread signalWaiter(sigset_t set, server::HttpServer& http, std::atomic<bool>& done) {
  return std::thread([set, &http, &done] {
    const timespec tick{0, 200'000'000};
    while (!done) {
      if (sigtimedwait(&set, nullptr, &tick) > 0) {
        std::fprintf(stderr, "stopping\n");
        http.stop();
        return;
      }
    }
  });
}

}  // namespace

int serve(int appid, const ServeOptions& o) {
  if (!std::filesystem::exists(o.webDir / "index.html")) {
    std::fprintf(stderr, "the web app is not built in %s: run scripts/setup\n", o.webDir.c_str());
    return 2;
  }
  if (!std::filesystem::exists(o.resourcesDir / "translate.sqlite")) {
    std::fprintf(stderr, "the program's resources are not built in %s: run scripts/setup\n",
                 o.resourcesDir.c_str());
    return 2;
  }
  const sigset_t stopSignals = blockStopSignals();
  std::unique_ptr<server::Installation> installation;
  std::shared_ptr<ManualClock> testClock;
  try {
    if (o.fakeClock)
      testClock = std::make_shared<ManualClock>(
          std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now()),
          Clock::hostZone());
    installation = std::make_unique<server::Installation>(
        ContextOptions{appid, o.langid, o.dataDir, LADANEYA_VERSION, testClock, o.resourcesDir});
  } catch (const std::exception& e) {
    std::fprintf(stderr, "cannot open the installation in %s: %s\n", o.dataDir.c_str(), e.what());
    return 1;
  }
  installation->setImagesDir(o.imagesDir);
  if (!o.cloudDir.empty()) installation->followCloudFolder(o.cloudDir);
  if (auto refusal = server::listenRefusal(o.host, installation->passwordSet()); !refusal.empty()) {
    std::fprintf(stderr, "%s\n", refusal.c_str());
    return 2;
  }
  server::HttpOptions httpOptions{o.host, o.port, o.webDir, o.imagesDir, o.resourcesDir / "images"};
  httpOptions.testClock = testClock;
  server::HttpServer http(*installation, httpOptions);
  std::string error;
  const int port = http.bind(&error);
  if (port < 0) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  std::printf("serving http://%s:%d (data in %s)\n", o.host.c_str(), port, o.dataDir.c_str());
  std::fflush(stdout);
  std::atomic<bool> done = false;
  std::thread waiter = signalWaiter(stopSignals, http, done);
  http.run();
  done = true;
  waiter.join();
  installation->shutdown();
  return 0;
}

}  // namespace lad::app
