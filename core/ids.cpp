#include "core/ids.h"

#include <array>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <random>

namespace lad {

std::string newID() {
  thread_local std::random_device device;
  std::array<std::uint8_t, 16> b{};
  for (std::size_t i = 0; i < b.size(); i += 4) {
    std::uint32_t r = device();
    for (std::size_t k = 0; k < 4; ++k) b[i + k] = static_cast<std::uint8_t>(r >> (8 * k));
  }
  b[6] = static_cast<std::uint8_t>((b[6] & 0x0F) | 0x40);  // version 4
  b[8] = static_cast<std::uint8_t>((b[8] & 0x3F) | 0x80);  // variant 1
  char out[37];
  std::snprintf(out, sizeof out,
                "%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X", b[0], b[1],
                b[2], b[3], b[4], b[5], b[6], b[7], b[8], b[9], b[10], b[11], b[12], b[13], b[14],
                b[15]);
  return out;
}

std::string newID2(int group, std::int64_t n) {
  const std::string number = "000000000000" + std::to_string(n);
  return "00000000-0000-0000-000" + std::to_string(group) + "-" + number.substr(number.size() - 12);
}

bool isID(std::string_view text) {
  constexpr std::size_t kLength = 36;
  if (text.size() != kLength) return false;
  for (std::size_t i = 0; i < kLength; ++i) {
    const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
    if (dash ? text[i] != '-' : !std::isxdigit(static_cast<unsigned char>(text[i]))) return false;
  }
  return true;
}

}  // namespace lad
