#include "cloud/change_names.h"

#include <array>

#include "core/context.h"

namespace lad::cloud {

namespace {

constexpr std::string_view kPrefix = "CLOUD-";
constexpr std::string_view kExtension = ".dat";
// "CLOUD-" with a kind and the shortest guid that still names something.
constexpr std::size_t kShortestName = 11;

}  // namespace

std::string changeFileName(int kind, std::string_view guid) {
  return std::string(kPrefix) + std::to_string(kind) + "-" + std::string(guid) +
         std::string(kExtension);
}

std::string changeFileName(int kind, std::string_view guid, std::string_view part) {
  return changeFileName(kind, std::string(guid) + "-" + std::string(part));
}

std::string changeDayPart(const Context& context, Date day) {
  return context.dates().dateToString(day, "dd-MM-yyyy");
}

bool isHiddenFromScan(std::string_view name) {
  constexpr std::array<std::string_view, 4> kTemporary = {".tmp", "~", ".part", ".partial"};
  if (name.empty() || name.front() == '.') return true;
  for (std::string_view ending : kTemporary)
    if (name.ends_with(ending)) return true;
  return false;
}

bool isChangeFileName(std::string_view name) {
  return name.size() >= kShortestName && name.starts_with(kPrefix);
}

bool isTicksFileName(std::string_view name) {
  return name.starts_with(std::string(kPrefix) + std::to_string(kChangeTicks));
}

bool isReservedName(std::string_view name) {
  return name.ends_with(".del");
}

}  // namespace lad::cloud
