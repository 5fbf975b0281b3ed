#include "core/text_fill.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <charconv>

namespace lad {

namespace {

// Where the placeholder that starts at `percent` ends: past its flags, width, precision and
// conversion letter.
std::size_t placeholderEnd(std::string_view pattern, std::size_t percent) {
  std::size_t i = percent + 1;
  while (i < pattern.size() &&
         std::string_view("0123456789.-+ #l").find(pattern[i]) != std::string_view::npos)
    ++i;
  return i < pattern.size() ? i + 1 : i;
}

}  // namespace

std::string fillIn(std::string_view pattern, std::initializer_list<std::string_view> args) {
  std::string out;
  auto next = args.begin();
  std::size_t i = 0;
  while (i < pattern.size()) {
    const std::size_t percent = pattern.find('%', i);
    out.append(pattern.substr(i, percent - i));
    if (percent == std::string_view::npos) break;
    if (percent + 1 < pattern.size() && pattern[percent + 1] == '%') {
      out += '%';
      i = percent + 2;
      continue;
    }
    if (next != args.end()) out.append(*next++);
    i = placeholderEnd(pattern, percent);
  }
  return out;
}

std::string fillIn(std::string_view pattern, std::int64_t a) {
  return fillIn(pattern, {std::to_string(a)});
}

std::string fillIn(std::string_view pattern, std::int64_t a, std::string_view b) {
  return fillIn(pattern, {std::to_string(a), b});
}

std::string formatFixed(double value, int decimals) {
  // Room for the largest double written out in full with a few decimals.
  char buf[512];
  const auto result =
      std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals);
  if (result.ec != std::errc()) return "";
  return std::string(buf, result.ptr);
}

std::string capitalizeFirst(std::string_view text) {
  if (text.empty()) return {};
  const auto length = static_cast<std::int32_t>(text.size());
  std::int32_t end = 0;
  UChar32 first = 0;
  U8_NEXT(text.data(), end, length, first);
  if (first < 0) return std::string(text);
  char upper[U8_MAX_LENGTH];
  std::int32_t upperLength = 0;
  UBool failed = false;
  U8_APPEND(upper, upperLength, U8_MAX_LENGTH, u_toupper(first), failed);
  if (failed) return std::string(text);
  return std::string(upper, static_cast<std::size_t>(upperLength)) +
         std::string(text.substr(static_cast<std::size_t>(end)));
}

}  // namespace lad
