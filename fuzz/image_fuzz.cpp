// Fuzz target of photo decoding: JPEG or PNG bytes from any camera or program. A picture that
// decodes has the pixels its sides promise, within the size limit, and survives the way the
// diary keeps it (a JPEG of it decodes to the same sides); one that does not says why. Its
// header tells the same sides, and it reads shrunk as the reports read it. The first byte also
// picks an EXIF orientation to apply and a side to shrink to.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "fuzz/fuzz_input.h"
#include "platform/exif_orientation.h"
#include "platform/image_orientation.h"
#include "platform/images.h"

namespace {

using lad::fuzz::check;

constexpr std::int64_t kMostPixels = 50'000'000;
// Larger pictures are only decoded: encoding them again takes the fuzzer's time for nothing new.
constexpr std::int64_t kMostPixelsKept = 64 * 64;

bool wellFormed(const lad::platform::Image& image) {
  const std::int64_t pixels = std::int64_t{image.width} * image.height;
  return image.width > 0 && image.height > 0 && pixels <= kMostPixels &&
         image.rgb.size() == static_cast<std::size_t>(pixels) * 3;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const int choice = data[0];
  const std::span<const std::uint8_t> bytes(data + 1, size - 1);

  const int orientation = lad::platform::exifOrientation(bytes);
  check(orientation >= 1 && orientation <= 8);

  std::string error;
  const auto image = lad::platform::decodeImage(bytes, &error);
  check(image.has_value() == error.empty());
  if (!image) return 0;
  check(wellFormed(*image));
  const auto header = lad::platform::imageSize(bytes);
  check(header && header->width == image->width && header->height == image->height);
  if (std::int64_t{image->width} * image->height > kMostPixelsKept) return 0;

  const int turn = choice % 8 + 1;
  const lad::platform::Image upright = lad::platform::orientedUpright(*image, turn);
  check(wellFormed(upright));
  check(turn >= 5 ? upright.width == image->height && upright.height == image->width
                  : upright.width == image->width && upright.height == image->height);

  const int side = choice / 8 + 1;
  const lad::platform::Image small = lad::platform::scaledToFit(*image, side);
  check(wellFormed(small) && small.width <= std::max(side, 1) && small.height <= std::max(side, 1));
  const auto read = lad::platform::decodeImageToFit(bytes, side, nullptr);
  check(read && wellFormed(*read) && read->width <= side && read->height <= side);

  std::string keptError;
  const auto kept = lad::platform::toJpeg(bytes, 1 + choice % 100, &keptError);
  check(kept.has_value() && keptError.empty());
  const auto back = lad::platform::decodeImage(*kept, &keptError);
  check(back && back->width == image->width && back->height == image->height);
  return 0;
}
