// The embedded HTTP server: the web app's static files, the view and event endpoints of the
// browser sessions, and their event streams.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

#include "server/installation.h"

namespace lad::server {

struct HttpOptions {
  std::string host = "127.0.0.1";
  int port = 8080;  // 0: any free port
  std::filesystem::path webDir;
  std::filesystem::path imagesDir;
  // Pictures made by the build; asked for under the same address, looked up after imagesDir.
  std::filesystem::path builtImagesDir;
  // A portrait from the camera comes in one event, as a data URL of a few megabytes.
  std::size_t maxBodyBytes = 16 * 1024 * 1024;
  bool logRequests = true;
  // Set only in test runs: POST /api/test/clock {"advance": seconds} moves this clock.
  std::shared_ptr<ManualClock> testClock{};
};

class HttpServer {
 public:
  HttpServer(Installation& installation, HttpOptions options);
  ~HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  // Binds the listening socket; returns the port, or -1 with *error filled.
  int bind(std::string* error);
  // Serves until stop(); call after a successful bind().
  void run();
  // Ends the event streams and the server; safe from any thread.
  void stop();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace lad::server
