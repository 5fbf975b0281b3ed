#include "core/base64.h"

#include <array>

namespace lad {

namespace {

constexpr char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<int, 256> makeReverse() {
  std::array<int, 256> r{};
  for (auto& x : r) x = -1;
  for (int i = 0; i < 64; ++i) r[static_cast<unsigned char>(kAlphabet[i])] = i;
  return r;
}

constexpr auto kReverse = makeReverse();

}  // namespace

std::string base64Encode(const Bytes& bytes) {
  std::string out;
  out.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::uint32_t n = bytes[i] << 16;
    if (i + 1 < bytes.size()) n |= bytes[i + 1] << 8;
    if (i + 2 < bytes.size()) n |= bytes[i + 2];
    out += kAlphabet[(n >> 18) & 63];
    out += kAlphabet[(n >> 12) & 63];
    out += i + 1 < bytes.size() ? kAlphabet[(n >> 6) & 63] : '=';
    out += i + 2 < bytes.size() ? kAlphabet[n & 63] : '=';
  }
  return out;
}

std::optional<Bytes> base64Decode(std::string_view text) {
  if (text.size() % 4 != 0) return std::nullopt;
  Bytes out;
  out.reserve(text.size() / 4 * 3);
  for (std::size_t i = 0; i < text.size(); i += 4) {
    int pad = 0;
    if (i + 4 == text.size() && text[i + 3] == '=') pad = text[i + 2] == '=' ? 2 : 1;
    std::uint32_t n = 0;
    for (std::size_t k = 0; k < 4; ++k) {
      int v = k >= static_cast<std::size_t>(4 - pad)
                  ? 0
                  : kReverse[static_cast<unsigned char>(text[i + k])];
      if (v < 0) return std::nullopt;
      n = (n << 6) | static_cast<std::uint32_t>(v);
    }
    out.push_back(static_cast<std::uint8_t>(n >> 16));
    if (pad < 2) out.push_back(static_cast<std::uint8_t>(n >> 8));
    if (pad < 1) out.push_back(static_cast<std::uint8_t>(n));
  }
  return out;
}

std::string base64UrlEncode(const Bytes& bytes) {
  std::string out = base64Encode(bytes);
  while (!out.empty() && out.back() == '=') out.pop_back();
  for (char& c : out) c = c == '+' ? '-' : c == '/' ? '_' : c;
  return out;
}

std::optional<Bytes> base64UrlDecode(std::string_view text) {
  if (text.find_first_of("+/=") != std::string_view::npos || text.size() % 4 == 1)
    return std::nullopt;
  std::string standard(text);
  for (char& c : standard) c = c == '-' ? '+' : c == '_' ? '/' : c;
  standard.append((4 - standard.size() % 4) % 4, '=');
  return base64Decode(standard);
}

std::string base64UrlEncode(std::string_view raw) {
  return base64UrlEncode(Bytes(raw.begin(), raw.end()));
}

std::optional<std::string> base64UrlDecodeString(std::string_view text) {
  const auto bytes = base64UrlDecode(text);
  if (!bytes) return std::nullopt;
  return std::string(bytes->begin(), bytes->end());
}

}  // namespace lad
