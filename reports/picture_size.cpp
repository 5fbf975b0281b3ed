#include "reports/picture_size.h"

#include <fstream>

namespace lad::reports {

std::optional<platform::ImageSize> pictureSize(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  // The header of a JPEG holds its size and orientation well inside its first 256 KiB.
  std::vector<std::uint8_t> head(256 * 1024);
  in.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(in.gcount()));
  const auto size = platform::imageSize(head);
  if (!size || size->width <= 0 || size->height <= 0) return std::nullopt;
  return size;
}

}  // namespace lad::reports
