// A plain grey JPEG file of the given size, for the code that reads, places and embeds photos.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "platform/images.h"
#include "tests/support/test_files.h"

namespace lad::testing {

inline void writeJpeg(const std::filesystem::path& file, int width = 40, int height = 30) {
  const auto jpeg = platform::encodeJpeg(
      {width, height, std::vector<std::uint8_t>(std::size_t(width) * height * 3, 99)}, 80);
  writeFile(file, {reinterpret_cast<const char*>(jpeg.data()), jpeg.size()});
}

}  // namespace lad::testing
