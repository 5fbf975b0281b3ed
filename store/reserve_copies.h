// The daily reserve copies of the live database: one a day, named after yesterday, the oldest
// pruned so that the live file and four dated copies remain.
#pragma once

#include <filesystem>
#include <string>

namespace lad {

class Context;

// A live database replaced by one found in an old place is kept beside the reserve copies
// under this prefix and its time. Such a copy is never pruned and does not count among them.
inline const std::string kReplacedPrefix = "replaced-";

// Takes the day's copy once; later calls that day only look. A live file that is not a sound
// database is not copied, so a broken file never pushes the good copies out.
void toReserv(const Context& context, const std::filesystem::path& folder,
              const std::filesystem::path& liveFile);

// Whether the file opens as a database and passes SQLite's quick integrity check.
bool isSoundDatabase(const std::filesystem::path& file);

}  // namespace lad
