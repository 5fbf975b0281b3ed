#include "store/portrait.h"

#include <system_error>

#include "core/atomic_file.h"
#include "core/context.h"
#include "platform/images.h"
#include "store/folders.h"

namespace lad {

namespace {

constexpr int kPortraitQuality = 100;

}  // namespace

std::filesystem::path portraitFile(const Context& context, const std::string& gid) {
  const std::string name = "child-" + gid + ".jpg";
  return typeFilePath(context.documentsDir(), name) / name;
}

std::optional<Bytes> readPortrait(const Context& context, const std::string& gid) {
  const auto bytes = readWholeFile(portraitFile(context, gid));
  if (!bytes) return std::nullopt;
  return Bytes(bytes->begin(), bytes->end());
}

bool writePortrait(const Context& context, const std::string& gid, const Bytes& picture,
                   std::string* why) {
  auto jpeg = platform::toJpeg(picture, kPortraitQuality, why);
  if (!jpeg) return false;
  const auto file = portraitFile(context, gid);
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  return writeFileAtomically(file, std::string(jpeg->begin(), jpeg->end()), why);
}

void removePortrait(const Context& context, const std::string& gid) {
  std::error_code error;
  std::filesystem::remove(portraitFile(context, gid), error);
}

}  // namespace lad
