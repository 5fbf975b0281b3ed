// The thumbnail of a page of the photo book for the screen: a page is 3338 pixels wide, far
// more than a thumbnail needs. A page opened large is shown from its own file.
#pragma once

#include <filesystem>
#include <string>

namespace lad::shell {

// The thumbnail of the page's picture beside it ("book5.jpg" → "book5-s.jpg").
std::filesystem::path pageThumbnail(const std::filesystem::path& page);

// Writes the page's thumbnail; false with *error filled when the page cannot be read or the
// thumbnail cannot be written.
bool writePageThumbnail(const std::filesystem::path& page, std::string* error);

}  // namespace lad::shell
