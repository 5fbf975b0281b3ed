#include "store/file_names.h"

#include <cctype>

#include "core/ids.h"

namespace lad {

namespace {

constexpr std::size_t kCurrentNameLength = 31;
constexpr int kChildGroup = 1;
constexpr std::size_t kMaxNumberDigits = 15;

bool hasRenamedExtension(std::string_view name) {
  const auto dot = name.rfind('.');
  if (dot == std::string_view::npos) return false;
  std::string extension;
  for (const char c : name.substr(dot + 1))
    extension += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return extension == "pdf" || extension == "jpg";
}

bool hasKindPrefix(std::string_view name) {
  return name.size() > 2 && (name[0] == 'a' || name[0] == 'd') && name[1] == '-';
}

// The guid of the leading number and the rest after it (without the one "-" that separates
// them); empty when the name does not start with a number.
std::string renamedNumbered(std::string_view name) {
  std::size_t digits = 0;
  while (digits < name.size() && std::isdigit(static_cast<unsigned char>(name[digits]))) ++digits;
  if (digits == 0 || digits > kMaxNumberDigits) return {};
  std::string_view rest = name.substr(digits);
  if (rest.starts_with('-')) rest.remove_prefix(1);
  return newID2(kChildGroup, std::stoll(std::string(name.substr(0, digits)))) + "-" +
         std::string(rest);
}

}  // namespace

std::string oldFileNameToNew(std::string_view name) {
  if (name.size() >= kCurrentNameLength || !hasRenamedExtension(name)) return std::string(name);
  const std::size_t prefix = hasKindPrefix(name) ? 2 : 0;
  const std::string renamed = renamedNumbered(name.substr(prefix));
  if (renamed.empty()) return std::string(name);
  return std::string(name.substr(0, prefix)) + renamed;
}

}  // namespace lad
