#include "shell/book/book_previews.h"

#include <span>

#include "core/atomic_file.h"
#include "platform/images.h"

namespace lad::shell {

namespace {

// An eighth of a page's width, which the JPEG decoder reads without the page's full pixels.
constexpr int kThumbnailSide = 416;
constexpr int kQuality = 85;

}  // namespace

std::filesystem::path pageThumbnail(const std::filesystem::path& page) {
  return page.parent_path() / (page.stem().string() + "-s.jpg");
}

bool writePageThumbnail(const std::filesystem::path& page, std::string* error) {
  const auto bytes = readWholeFile(page);
  if (!bytes) {
    *error = "cannot read the page " + page.string();
    return false;
  }
  const auto small = platform::decodeImageToFit(
      std::span(reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()),
      kThumbnailSide, error);
  if (!small) return false;
  const std::vector<std::uint8_t> jpeg = platform::encodeJpeg(*small, kQuality);
  return !jpeg.empty() &&
         writeFileAtomically(
             pageThumbnail(page),
             std::string_view(reinterpret_cast<const char*>(jpeg.data()), jpeg.size()), error);
}

}  // namespace lad::shell
