#include "shell/book/book_previews.h"

#include <span>

#include "core/atomic_file.h"
#include "platform/images.h"

namespace lad::shell {

namespace {

constexpr int kLargeSide = 1400;
constexpr int kThumbnailSide = 420;
constexpr int kQuality = 85;

bool writeJpeg(const Image& image, const std::filesystem::path& file, std::string* error) {
  const std::vector<std::uint8_t> jpeg = encodeJpeg(image, kQuality);
  return !jpeg.empty() &&
         writeFileAtomically(
             file, std::string_view(reinterpret_cast<const char*>(jpeg.data()), jpeg.size()),
             error);
}

}  // namespace

std::filesystem::path pagePreview(const std::filesystem::path& page, PreviewSize size) {
  const char* suffix = size == PreviewSize::Thumbnail ? "-s.jpg" : "-m.jpg";
  return page.parent_path() / (page.stem().string() + suffix);
}

bool writePagePreviews(const std::filesystem::path& page, std::string* error) {
  const auto bytes = readWholeFile(page);
  if (!bytes) {
    *error = "cannot read the page " + page.string();
    return false;
  }
  const auto large = decodeImageToFit(
      std::span(reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()), kLargeSide,
      error);
  return large && writeJpeg(*large, pagePreview(page, PreviewSize::Large), error) &&
         writeJpeg(scaledToFit(*large, kThumbnailSide), pagePreview(page, PreviewSize::Thumbnail),
                   error);
}

}  // namespace lad::shell
