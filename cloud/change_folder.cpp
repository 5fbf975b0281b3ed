#include "cloud/change_folder.h"

#include <chrono>
#include <system_error>

#include "cloud/property_list.h"
#include "core/atomic_file.h"
#include "core/context.h"
#include "store/folders.h"

namespace lad::cloud {

std::filesystem::path cloudFolderOf(const Context& context) {
  return *getSystemFolder(context, "Cloud");
}

bool hasCloudFolder(const Context& context) {
  return cloudFolderOf(context) != context.tempDir();
}

std::optional<Date> fileChangeDate(const std::filesystem::path& file) {
  std::error_code error;
  const auto changed = std::filesystem::last_write_time(file, error);
  if (error) return std::nullopt;
  return std::chrono::floor<std::chrono::milliseconds>(std::chrono::file_clock::to_sys(changed));
}

std::optional<Date> changeReceipt(const Context& context, const std::string& name) {
  return context.settings().dateForKey(name);
}

void setChangeReceipt(Context& context, const std::string& name, Date seen) {
  context.settings().set(name, Value(seen));
  context.settings().synchronize();
}

bool writeChangeFile(Context& context, const std::string& name, const Map& root,
                     std::string* error) {
  const Bytes bytes = toPropertyList(Value(root));
  const std::filesystem::path file = cloudFolderOf(context) / name;
  if (!writeFileAtomically(file, {reinterpret_cast<const char*>(bytes.data()), bytes.size()},
                           error))
    return false;
  const auto written = fileChangeDate(file);
  if (written) setChangeReceipt(context, name, *written);
  return true;
}

}  // namespace lad::cloud
