#include "core/url_encoding.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

namespace lad {

namespace {

bool isAsciiAlnum(UChar32 c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool isOneOf(UChar32 c, std::string_view set) {
  return c < 0x80 && set.find(static_cast<char>(c)) != std::string_view::npos;
}

// Copies each character that `keep` accepts and writes every byte of the others as %XX; a
// byte that is not part of well-formed UTF-8 is always written as %XX.
template <class Keep>
std::string percentEncode(std::string_view text, Keep keep) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  out.reserve(text.size());
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const auto length = static_cast<int32_t>(text.size());
  for (int32_t i = 0; i < length;) {
    const int32_t start = i;
    UChar32 c = 0;
    U8_NEXT(bytes, i, length, c);
    if (c >= 0 && keep(c)) {
      out.append(text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(i - start)));
      continue;
    }
    for (int32_t k = start; k < i; ++k) {
      out += '%';
      out += kHex[bytes[k] >> 4];
      out += kHex[bytes[k] & 0x0F];
    }
  }
  return out;
}

}  // namespace

std::string stringToUrl(std::optional<std::string_view> text) {
  return text ? urlString(*text) : std::string();
}

std::string urlString(std::string_view text) {
  return percentEncode(text, [](UChar32 c) { return isAsciiAlnum(c) || isOneOf(c, "-._~"); });
}

std::string encodeUrl(std::string_view text) {
  constexpr uint32_t kLettersMarksDigits = U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK;
  return percentEncode(text, [](UChar32 c) {
    return (U_GET_GC_MASK(c) & kLettersMarksDigits) != 0 || isOneOf(c, "-._~/?");
  });
}

}  // namespace lad
