// The command line shared by the four editions' executables.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace lad::app {

struct ServeOptions {
  std::filesystem::path dataDir = "data";
  std::string host = "127.0.0.1";
  int port = 8080;
  int langid = 1;
  std::filesystem::path webDir;
  std::filesystem::path imagesDir;
  std::filesystem::path resourcesDir;  // database templates and the translation table
  bool fakeClock = false;              // tests drive the clock over HTTP
  std::filesystem::path cloudDir;      // set: sync through this folder from now on
};

struct ReportArgs {
  std::filesystem::path dataDir = "data";
  std::string kind = "diary";  // diary, pressure or fluid
  std::string date;            // "dd.MM.yyyy", pressure and fluid only; empty: today
  int year = 0;                // diary only; 0: the one today falls in
  std::filesystem::path output;
  std::filesystem::path imagesDir;
  std::filesystem::path resourcesDir;
};

struct BookArgs {
  std::filesystem::path dataDir = "data";
  int kind = 1;  // the book's design, 1 to 5
  int year = 0;  // 0: the one today falls in
  std::filesystem::path output;
  std::filesystem::path imagesDir;
  std::filesystem::path resourcesDir;
};

struct SyncArgs {
  std::filesystem::path dataDir = "data";
  std::filesystem::path cloudDir;  // set: sync through this folder from now on
  std::filesystem::path resourcesDir;
};

struct Command {
  enum Kind { kHelp, kVersion, kServe, kReport, kBook, kSync } kind = kHelp;
  ServeOptions serve;
  ReportArgs report;
  SyncArgs sync;
  BookArgs book;
};

// Parses the arguments after the program name; nullopt with *error filled when they are wrong.
std::optional<Command> parseCommandLine(const std::vector<std::string>& args, std::string* error);

std::string usage(const std::string& program);

}  // namespace lad::app
