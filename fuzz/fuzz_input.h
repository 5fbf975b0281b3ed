// Reading a fuzz input as several fields: a field is a two-byte big-endian length and that many
// bytes (cut short at the end of the input); the last field takes whatever is left.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lad::fuzz {

class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  // The first byte, to choose among parsers; 0 when the input is empty.
  std::uint8_t byte() {
    if (rest_.empty()) return 0;
    const auto b = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return b;
  }

  std::string_view field() {
    if (rest_.size() < 2) return take(rest_.size());
    const std::size_t length = static_cast<std::size_t>(static_cast<std::uint8_t>(rest_[0])) << 8 |
                               static_cast<std::uint8_t>(rest_[1]);
    rest_.remove_prefix(2);
    return take(length);
  }

  std::string_view rest() { return take(rest_.size()); }

 private:
  std::string_view take(std::size_t n) {
    const std::string_view out = rest_.substr(0, n);
    rest_.remove_prefix(out.size());
    return out;
  }

  std::string_view rest_;
};

// Stops the run at the broken promise, so that the fuzzer keeps the input and the replay fails.
inline void check(bool promise) {
  if (!promise) __builtin_trap();
}

}  // namespace lad::fuzz

namespace lad::fuzz {

// Whether the bytes are well-formed UTF-8 (no overlong forms, surrogates or values past U+10FFFF).
inline bool validUtf8(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size()) {
    const auto c = static_cast<std::uint8_t>(text[i]);
    const std::size_t length = c < 0x80         ? 1
                               : (c >> 5) == 6  ? 2
                               : (c >> 4) == 14 ? 3
                               : (c >> 3) == 30 ? 4
                                                : 0;
    if (length == 0 || i + length > text.size()) return false;
    std::uint32_t point = length == 1 ? c : c & (0x7F >> length);
    for (std::size_t k = 1; k < length; ++k) {
      const auto next = static_cast<std::uint8_t>(text[i + k]);
      if ((next & 0xC0) != 0x80) return false;
      point = point << 6 | (next & 0x3F);
    }
    constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    if (point < kLeast[length] || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
      return false;
    i += length;
  }
  return true;
}

}  // namespace lad::fuzz
