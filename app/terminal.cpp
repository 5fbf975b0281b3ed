#include "app/terminal.h"

#include <unistd.h>

#include <cstdio>

#include "core/edition.h"

namespace lad::app {

std::function<void(std::size_t, std::size_t)> terminalProgress(const std::string& unit) {
  if (!isatty(STDERR_FILENO)) return {};
  return [unit](std::size_t done, std::size_t total) {
    std::fprintf(stderr, "\r%s %zu of %zu", unit.c_str(), done, total);
    if (done == total) std::fprintf(stderr, "\n");
  };
}

int refuse(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
  return 2;
}

int refuseWithoutDiary(int appid, const std::filesystem::path& dataDir) {
  const Edition& edition = *editionFor(appid);
  if (std::filesystem::exists(dataDir / "Documents" / "reserv" / edition.database)) return 0;
  return refuse("no diary of " + std::string(edition.program) + " in " + dataDir.string() +
                " (see --data)");
}

}  // namespace lad::app
