#include "drawing/image_size.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>

#include "platform/images.h"

namespace lad::drawing {

// Only the signature and the header chunk are read: charts ask for the sizes of their pictures
// at every drawing, and decoding a whole picture for them cost most of a chart's time.
std::optional<Size> pngSize(const std::string& file) {
  constexpr std::size_t kHeaderBytes = 24;
  constexpr std::array<std::uint8_t, 8> kSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  std::array<std::uint8_t, kHeaderBytes> head{};
  std::ifstream in(file, std::ios::binary);
  if (!in.read(reinterpret_cast<char*>(head.data()), head.size())) return std::nullopt;
  if (!std::equal(kSignature.begin(), kSignature.end(), head.begin())) return std::nullopt;
  const auto size = platform::imageSize(head);
  if (!size) return std::nullopt;
  return Size{static_cast<double>(size->width), static_cast<double>(size->height)};
}

}  // namespace lad::drawing
