// Small copies of a page of the photo book for the screen: a page is 3338 pixels wide, far more
// than a thumbnail or a phone's screen needs.
#pragma once

#include <filesystem>
#include <string>

namespace lad::shell {

enum class PreviewSize { Thumbnail, Large };

// The copy of the page's picture ("book5.jpg" → "book5-s.jpg" or "book5-m.jpg") beside it.
std::filesystem::path pagePreview(const std::filesystem::path& page, PreviewSize size);

// Writes both copies of the page; false with *error filled when the page cannot be read or a
// copy cannot be written.
bool writePagePreviews(const std::filesystem::path& page, std::string* error);

}  // namespace lad::shell
