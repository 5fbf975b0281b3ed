// The photograph of a diary day: two picture files named by the day (and in the child's diary
// by the child), the full one and its small copy.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

#include "core/dates.h"
#include "core/value.h"

namespace lad {

class Context;

// Sets "isphoto" when both files of the day exist, and then "photopath2" to the full picture
// and "photopath" to the picture to show: the full one in the report regims, else the small.
void correctPhoto(const Context& context, Map& day, int regim, const std::string& gid);

// The full and the small picture file of the day.
struct DayPhotoFiles {
  std::filesystem::path full;
  std::filesystem::path small;
};
DayPhotoFiles dayPhotoFiles(const Context& context, Date day, const std::string& gid);
// Whether a name is one that dayPhotoFiles gives: "dd-MM-yyyy.jpg" or "dd-MM-yyyy-s.jpg", with
// a child's guid and "-" before the date in the child's diary.
bool isDayPictureName(std::string_view name);

// Writes the day's photograph: the picture as a JPEG of the best quality, and its small copy
// whose longer side is 160. A picture that does not read leaves the old files and says why.
bool saveDayPhoto(const Context& context, Date day, const std::string& gid,
                  std::span<const std::uint8_t> picture, std::string* why);
void removeDayPhoto(const Context& context, Date day, const std::string& gid);

// Removes what a deleted day leaves among the files: its photograph, and the attachment files
// that its analyses value names (entries joined by "<tr>", their fields by "<br>").
void removeDayFiles(const Context& context, Date day, const std::string& gid,
                    const std::string& analyses);

}  // namespace lad
