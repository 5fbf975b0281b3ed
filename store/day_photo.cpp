#include "store/day_photo.h"

#include <cctype>
#include <system_error>

#include "core/atomic_file.h"
#include "core/context.h"
#include "core/text_parts.h"
#include "platform/images.h"
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

constexpr int kSmallSide = 160;
constexpr int kBestQuality = 100;

bool writeJpeg(const std::filesystem::path& file, const platform::Image& image, std::string* why) {
  const auto jpeg = platform::encodeJpeg(image, kBestQuality);
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  return writeFileAtomically(file, {reinterpret_cast<const char*>(jpeg.data()), jpeg.size()}, why);
}

// A name of an attachment among the fields of an entry: a bare file name, never a path.
bool isAttachmentName(std::string_view field) {
  return field.starts_with("a-") && field.find('/') == std::string_view::npos &&
         field.find("..") == std::string_view::npos;
}

}  // namespace

DayPhotoFiles dayPhotoFiles(const Context& context, Date day, const std::string& gid) {
  std::string stem = context.dates().dateToString(day, "dd-MM-yyyy");
  if (dayEdition(context.values().appid) == DayEdition::Child) stem = gid + "-" + stem;
  return {pictureFile(context, stem + ".jpg"), pictureFile(context, stem + "-s.jpg")};
}

bool isDayPictureName(std::string_view name) {
  constexpr std::string_view kExtension = ".jpg", kSmall = "-s", kDate = "dd-dd-dddd";
  if (!name.ends_with(kExtension)) return false;
  name.remove_suffix(kExtension.size());
  if (name.ends_with(kSmall)) name.remove_suffix(kSmall.size());
  if (name.size() < kDate.size()) return false;
  const std::string_view date = name.substr(name.size() - kDate.size());
  for (std::size_t i = 0; i < kDate.size(); ++i)
    if (kDate[i] == 'd' ? !std::isdigit(static_cast<unsigned char>(date[i])) : date[i] != '-')
      return false;
  const std::string_view guid = name.substr(0, name.size() - kDate.size());
  return guid.empty() ||
         (guid.ends_with('-') && guid.find_first_not_of("0123456789ABCDEFabcdef-") == guid.npos);
}

bool saveDayPhoto(const Context& context, Date day, const std::string& gid,
                  std::span<const std::uint8_t> picture, std::string* why) {
  const auto image = platform::decodeImage(picture, why);
  if (!image) return false;
  const DayPhotoFiles files = dayPhotoFiles(context, day, gid);
  return writeJpeg(files.full, *image, why) &&
         writeJpeg(files.small, platform::scaledToFit(*image, kSmallSide), why);
}

void removeDayPhoto(const Context& context, Date day, const std::string& gid) {
  const DayPhotoFiles files = dayPhotoFiles(context, day, gid);
  std::error_code error;
  std::filesystem::remove(files.full, error);
  std::filesystem::remove(files.small, error);
}

void removeDayFiles(const Context& context, Date day, const std::string& gid,
                    const std::string& analyses) {
  removeDayPhoto(context, day, gid);
  std::error_code error;
  for (std::string_view entry : splitOn(analyses, "<tr>"))
    for (std::string_view field : splitOn(entry, "<br>"))
      if (isAttachmentName(field))
        std::filesystem::remove(typeFilePath(context.documentsDir(), field) / field, error);
}

void correctPhoto(const Context& context, Map& day, int regim, const std::string& gid) {
  const std::optional<Date> dat = day["dat"].asDate();
  if (!dat) return;
  const DayEdition edition = dayEdition(context.values().appid);
  const auto [full, small] = dayPhotoFiles(context, *dat, gid);
  const bool photo = fileExists(full) && fileExists(small);
  day.set("isphoto", photo);
  if (!photo) return;
  day.set("photopath2", full.string());
  day.set("photopath", (isReportRegim(edition, regim) ? full : small).string());
}

}  // namespace lad
