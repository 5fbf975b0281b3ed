#include <algorithm>
#include <bit>

#include "platform/codec_support.h"
#include "platform/images.h"
#include "platform/jpeg_errors.h"

// jerror.h needs jpeglib.h first.
#include <jerror.h>

namespace lad::platform {

namespace {

constexpr std::size_t kOutputChunk = 64 * 1024;

// A libjpeg destination that writes into a vector owned by the caller.
struct VectorDestination {
  jpeg_destination_mgr manager;
  std::vector<std::uint8_t>* out;
};

VectorDestination* destinationOf(j_compress_ptr codec) {
  return reinterpret_cast<VectorDestination*>(codec->dest);
}

// Hands libjpeg a fresh chunk of room after the first `used` bytes.
void offerRoom(j_compress_ptr codec, std::size_t used) {
  VectorDestination* destination = destinationOf(codec);
  if (!tryResize(*destination->out, used + kOutputChunk)) ERREXIT(codec, JERR_OUT_OF_MEMORY);
  destination->manager.next_output_byte = destination->out->data() + used;
  destination->manager.free_in_buffer = kOutputChunk;
}

void startOutput(j_compress_ptr codec) {
  offerRoom(codec, 0);
}

boolean outputFull(j_compress_ptr codec) {
  offerRoom(codec, destinationOf(codec)->out->size());
  return TRUE;
}

void finishOutput(j_compress_ptr codec) {
  VectorDestination* destination = destinationOf(codec);
  destination->out->resize(destination->out->size() - destination->manager.free_in_buffer);
}

bool holdsItsPixels(const Image& image) {
  return image.width > 0 && image.height > 0 &&
         image.rgb.size() == std::size_t(image.width) * image.height * 3;
}

// Rows of pixels as libjpeg reads them.
struct Rows {
  const std::uint8_t* data;
  int width, height;
  std::size_t stride;
  int components;
  J_COLOR_SPACE space;
};

// libjpeg leaves this frame through longjmp on any error, so only C objects live in it; the
// output vector belongs to the caller.
bool writeJpeg(const Rows& image, int quality, std::vector<std::uint8_t>* out) {
  jpeg_compress_struct codec;
  JpegErrors errors;
  VectorDestination destination{{}, out};
  destination.manager.init_destination = startOutput;
  destination.manager.empty_output_buffer = outputFull;
  destination.manager.term_destination = finishOutput;
  codec.err = useJpegErrors(&errors);
  if (setjmp(errors.jump)) {
    jpeg_destroy_compress(&codec);
    return false;
  }
  jpeg_create_compress(&codec);
  codec.dest = &destination.manager;
  codec.image_width = static_cast<JDIMENSION>(image.width);
  codec.image_height = static_cast<JDIMENSION>(image.height);
  codec.input_components = image.components;
  codec.in_color_space = image.space;
  jpeg_set_defaults(&codec);
  jpeg_set_quality(&codec, std::clamp(quality, 1, 100), TRUE);
  jpeg_start_compress(&codec, TRUE);
  while (codec.next_scanline < codec.image_height) {
    // libjpeg's row type is not const, though it only reads the rows.
    JSAMPROW row = const_cast<std::uint8_t*>(image.data) + codec.next_scanline * image.stride;
    jpeg_write_scanlines(&codec, &row, 1);
  }
  jpeg_finish_compress(&codec);
  jpeg_destroy_compress(&codec);
  return true;
}

}  // namespace

std::vector<std::uint8_t> encodeJpeg(const Image& image, int quality) {
  std::vector<std::uint8_t> out;
  if (!holdsItsPixels(image)) return {};
  const Rows rows{image.rgb.data(), image.width, image.height, std::size_t(image.width) * 3, 3,
                  JCS_RGB};
  if (!writeJpeg(rows, quality, &out)) return {};
  return out;
}

// A word 0x00RRGGBB lies in memory as blue, green, red, unused on a little-endian machine.
std::vector<std::uint8_t> encodeJpegFromWords(const std::uint8_t* words, int width, int height,
                                              std::size_t stride, int quality) {
  std::vector<std::uint8_t> out;
  if (!words || width <= 0 || height <= 0 || stride < std::size_t(width) * 4) return {};
  const Rows rows{words,  width,
                  height, stride,
                  4,      std::endian::native == std::endian::little ? JCS_EXT_BGRX : JCS_EXT_XRGB};
  if (!writeJpeg(rows, quality, &out)) return {};
  return out;
}

}  // namespace lad::platform
