#include "shell/popup.h"

#include <charconv>

namespace lad::shell {

namespace {
constexpr std::string_view kPrefix = "popup:";
}

std::string popupTarget(int n) {
  return std::string(kPrefix) + std::to_string(n);
}

int popupIndex(std::string_view target) {
  if (!target.starts_with(kPrefix)) return -1;
  target.remove_prefix(kPrefix.size());
  int n = -1;
  const auto [end, ec] = std::from_chars(target.data(), target.data() + target.size(), n);
  if (ec != std::errc() || end != target.data() + target.size() || n < 0) return -1;
  return n;
}

}  // namespace lad::shell
