#include "platform/codec_support.h"

namespace lad::platform {

namespace {

constexpr std::uint64_t kMaxPixels = 50'000'000;

}  // namespace

bool exceedsPixelLimit(std::uint64_t width, std::uint64_t height) {
  return width * height > kMaxPixels;
}

bool fail(std::string* error, std::string_view text) {
  if (error) error->assign(text);
  return false;
}

}  // namespace lad::platform
