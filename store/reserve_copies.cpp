#include "store/reserve_copies.h"

#include <algorithm>
#include <cctype>
#include <system_error>
#include <vector>

#include "core/atomic_file.h"
#include "core/context.h"
#include "core/sqlite.h"

namespace lad {

namespace {

constexpr std::size_t kKeptFiles = 5;

std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return text;
}

std::vector<std::filesystem::path> databasesIn(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> found;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error))
    if (entry.path().extension() == ".sqlite" &&
        !entry.path().filename().string().starts_with(kReplacedPrefix))
      found.push_back(entry.path());
  std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
    return lowered(a.filename().string()) < lowered(b.filename().string());
  });
  return found;
}

// Dated names sort first, oldest first; the live file is never the one that goes.
void pruneOldest(const std::filesystem::path& folder, const std::filesystem::path& liveFile) {
  const auto files = databasesIn(folder);
  if (files.size() <= kKeptFiles) return;
  for (const auto& file : files) {
    if (file.filename() == liveFile.filename()) continue;
    std::error_code error;
    std::filesystem::remove(file, error);
    return;
  }
}

}  // namespace

bool isSoundDatabase(const std::filesystem::path& file) {
  SqliteConnection db(file, SqliteConnection::Mode::ReadOnly);
  SqliteStatement check = db.prepare("pragma quick_check");
  return check.step() && check.columnText(0) == "ok";
}

void toReserv(const Context& context, const std::filesystem::path& folder,
              const std::filesystem::path& liveFile) {
  const DateCodec& dates = context.dates();
  const auto yesterday = dates.addDays(context.clock().now(), -1);
  const auto copy = folder / (dates.dateToString(yesterday, "yyMMdd") + ".sqlite");
  std::error_code error;
  if (std::filesystem::exists(copy, error) || !isSoundDatabase(liveFile)) return;
  copyFileAtomically(liveFile, copy);
  pruneOldest(folder, liveFile);
}

}  // namespace lad
