#include "platform/png_decode.h"

#include <png.h>

#include <cstdio>
#include <cstring>

#include "platform/codec_support.h"

namespace lad::platform {

namespace {

// The bytes libpng reads from, and the text of the error that stopped it.
struct PngInput {
  std::span<const std::uint8_t> bytes;
  std::size_t offset;
  char message[256];
};

void readInput(png_structp png, png_bytep out, std::size_t count) {
  auto* input = static_cast<PngInput*>(png_get_io_ptr(png));
  if (count > input->bytes.size() - input->offset) png_error(png, "the data ends too early");
  std::memcpy(out, input->bytes.data() + input->offset, count);
  input->offset += count;
}

[[noreturn]] void leaveOnError(png_structp png, png_const_charp text) {
  auto* input = static_cast<PngInput*>(png_get_error_ptr(png));
  std::snprintf(input->message, sizeof input->message, "%s", text);
  png_longjmp(png, 1);
}

void ignoreWarning(png_structp, png_const_charp) {}

// Whatever the file holds comes out as 8-bit RGBA.
void askForRgba(png_structp png, png_infop info) {
  png_set_expand(png);
  png_set_strip_16(png);
  png_set_gray_to_rgb(png);
  png_set_add_alpha(png, 0xFF, PNG_FILLER_AFTER);
  png_set_interlace_handling(png);
  png_read_update_info(png, info);
}

bool refused(png_structp* png, png_infop* info, std::string* error, std::string_view text) {
  png_destroy_read_struct(png, info, nullptr);
  return fail(error, text);
}

// 8-bit RGBA pixels and the row pointers into them that libpng fills.
struct RgbaPixels {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgba;
  std::vector<png_bytep> rows;
};

// libpng leaves this frame through longjmp on any error, so only C objects live in it; the
// pixels belong to the caller.
bool readRgba(PngInput* input, RgbaPixels* pixels, std::string* error) {
  png_structp png =
      png_create_read_struct(PNG_LIBPNG_VER_STRING, input, leaveOnError, ignoreWarning);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  if (!info) return refused(&png, nullptr, error, "not enough memory to read the PNG image");
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_read_struct(&png, &info, nullptr);
    return fail(error, std::string("PNG: ") + input->message);
  }
  png_set_read_fn(png, input, readInput);
  // The pixel count is limited below, not each side: a long strip is a fine picture.
  png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
  png_read_info(png, info);
  const std::size_t width = png_get_image_width(png, info);
  const std::size_t height = png_get_image_height(png, info);
  if (exceedsPixelLimit(width, height)) return refused(&png, &info, error, kTooManyPixels);
  askForRgba(png, info);
  if (!tryResize(pixels->rgba, width * height * 4) || !tryResize(pixels->rows, height)) {
    return refused(&png, &info, error, "not enough memory for the image");
  }
  for (std::size_t y = 0; y < height; ++y) pixels->rows[y] = pixels->rgba.data() + y * width * 4;
  png_read_image(png, pixels->rows.data());
  png_read_end(png, nullptr);
  png_destroy_read_struct(&png, &info, nullptr);
  pixels->width = static_cast<int>(width);
  pixels->height = static_cast<int>(height);
  return true;
}

// Plain sRGB blending, as a browser shows the picture on a white page.
Image composedOverWhite(const RgbaPixels& pixels) {
  const std::vector<std::uint8_t>& rgba = pixels.rgba;
  Image image{pixels.width, pixels.height, std::vector<std::uint8_t>(rgba.size() / 4 * 3)};
  for (std::size_t p = 0; p * 4 < rgba.size(); ++p) {
    const unsigned alpha = rgba[p * 4 + 3];
    for (std::size_t c = 0; c < 3; ++c) {
      image.rgb[p * 3 + c] = (rgba[p * 4 + c] * alpha + 255 * (255 - alpha) + 127) / 255;
    }
  }
  return image;
}

}  // namespace

std::optional<Image> decodePng(std::span<const std::uint8_t> bytes, std::string* error) {
  PngInput input{bytes, 0, {}};
  RgbaPixels pixels;
  if (!readRgba(&input, &pixels, error)) return std::nullopt;
  return composedOverWhite(pixels);
}

}  // namespace lad::platform
