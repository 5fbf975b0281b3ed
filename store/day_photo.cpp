#include "store/day_photo.h"

#include <system_error>

#include "core/context.h"
#include "store/day_regims.h"
#include "store/folders.h"

namespace lad {

namespace {

std::filesystem::path pictureFile(const Context& context, const std::string& name) {
  return typeFilePath(context.documentsDir(), name) / name;
}

bool fileExists(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::exists(file, error);
}

}  // namespace

void correctPhoto(const Context& context, Map& day, int regim, const std::string& gid) {
  const std::optional<Date> dat = day["dat"].asDate();
  if (!dat) return;
  const DayEdition edition = dayEdition(context.values().appid);
  std::string stem = context.dates().dateToString(*dat, "dd-MM-yyyy");
  if (edition == DayEdition::Child) stem = gid + "-" + stem;
  const std::filesystem::path full = pictureFile(context, stem + ".jpg");
  const std::filesystem::path small = pictureFile(context, stem + "-s.jpg");
  const bool photo = fileExists(full) && fileExists(small);
  day.set("isphoto", photo);
  if (!photo) return;
  day.set("photopath2", full.string());
  day.set("photopath", (isReportRegim(edition, regim) ? full : small).string());
}

}  // namespace lad
