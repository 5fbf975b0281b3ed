#include "platform/jpeg_decode.h"

#include <algorithm>

#include "platform/codec_support.h"
#include "platform/exif_orientation.h"
#include "platform/image_orientation.h"
#include "platform/jpeg_errors.h"

namespace lad::platform {

namespace {

constexpr unsigned kExifMarker = JPEG_APP0 + 1;
constexpr unsigned kLongestMarker = 0xFFFF;

int orientationOf(const jpeg_decompress_struct& codec) {
  for (jpeg_saved_marker_ptr m = codec.marker_list; m; m = m->next) {
    if (m->marker != kExifMarker) continue;
    const int orientation = exifOrientation({m->data, m->data_length});
    if (orientation != 1) return orientation;
  }
  return 1;
}

bool refused(jpeg_decompress_struct* codec, std::string* error, std::string_view text) {
  jpeg_destroy_decompress(codec);
  return fail(error, text);
}

bool isCmyk(const jpeg_decompress_struct& codec) {
  return codec.jpeg_color_space == JCS_CMYK || codec.jpeg_color_space == JCS_YCCK;
}

// The largest of libjpeg's reductions 1/8, 1/4 and 1/2 that keeps the longer side at fitSide or
// more; 1 when fitSide is 0.
unsigned reductionFor(const jpeg_decompress_struct& codec, int fitSide) {
  const unsigned longer = std::max(codec.image_width, codec.image_height);
  for (unsigned denominator = 8; fitSide > 0 && denominator > 1; denominator /= 2)
    if (longer / denominator >= static_cast<unsigned>(fitSide)) return denominator;
  return 1;
}

// Fills `image` with the stored (not yet turned) pixels. libjpeg leaves this frame through
// longjmp on any error, so only C objects live in it; the pixels belong to the caller.
bool readJpeg(std::span<const std::uint8_t> bytes, int fitSide, Image* image, int* orientation,
              std::string* error) {
  jpeg_decompress_struct codec;
  JpegErrors errors;
  codec.err = useJpegErrors(&errors);
  if (setjmp(errors.jump)) {
    jpeg_destroy_decompress(&codec);
    return fail(error, std::string("JPEG: ") + errors.message);
  }
  jpeg_create_decompress(&codec);
  jpeg_mem_src(&codec, bytes.data(), bytes.size());
  jpeg_save_markers(&codec, kExifMarker, kLongestMarker);
  jpeg_read_header(&codec, TRUE);
  if (exceedsPixelLimit(codec.image_width, codec.image_height)) {
    return refused(&codec, error, kTooManyPixels);
  }
  if (isCmyk(codec)) return refused(&codec, error, "CMYK JPEG images are not supported");
  *orientation = orientationOf(codec);
  codec.out_color_space = JCS_RGB;
  codec.scale_denom = reductionFor(codec, fitSide);
  if (fitSide > 0) {
    // A picture read to be shrunk loses nothing visible to the faster ways of reading.
    codec.dct_method = JDCT_IFAST;
    codec.do_fancy_upsampling = FALSE;
  }
  jpeg_start_decompress(&codec);
  const std::size_t rowSize = std::size_t{codec.output_width} * 3;
  if (!tryResize(image->rgb, rowSize * codec.output_height)) {
    return refused(&codec, error, "not enough memory for the image");
  }
  while (codec.output_scanline < codec.output_height) {
    JSAMPROW row = image->rgb.data() + codec.output_scanline * rowSize;
    jpeg_read_scanlines(&codec, &row, 1);
  }
  image->width = static_cast<int>(codec.output_width);
  image->height = static_cast<int>(codec.output_height);
  jpeg_finish_decompress(&codec);
  jpeg_destroy_decompress(&codec);
  return true;
}

bool readHeader(std::span<const std::uint8_t> bytes, ImageSize* size, int* orientation) {
  jpeg_decompress_struct codec;
  JpegErrors errors;
  codec.err = useJpegErrors(&errors);
  if (setjmp(errors.jump)) {
    jpeg_destroy_decompress(&codec);
    return false;
  }
  jpeg_create_decompress(&codec);
  jpeg_mem_src(&codec, bytes.data(), bytes.size());
  jpeg_save_markers(&codec, kExifMarker, kLongestMarker);
  jpeg_read_header(&codec, TRUE);
  size->width = static_cast<int>(codec.image_width);
  size->height = static_cast<int>(codec.image_height);
  *orientation = orientationOf(codec);
  jpeg_destroy_decompress(&codec);
  return true;
}

}  // namespace

std::optional<ImageSize> jpegSize(std::span<const std::uint8_t> bytes) {
  ImageSize size;
  int orientation = 1;
  if (!readHeader(bytes, &size, &orientation)) return std::nullopt;
  // Orientations 5 to 8 turn the picture by a quarter.
  if (orientation >= 5 && orientation <= 8) std::swap(size.width, size.height);
  return size;
}

std::optional<Image> decodeJpeg(std::span<const std::uint8_t> bytes, std::string* error,
                                int fitSide) {
  Image image;
  int orientation = 1;
  if (!readJpeg(bytes, fitSide, &image, &orientation, error)) return std::nullopt;
  return orientedUpright(std::move(image), orientation);
}

}  // namespace lad::platform
