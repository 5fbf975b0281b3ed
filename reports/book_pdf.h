// book.pdf: the pages of the photo book, one JPEG a page, combined into a PDF in which each
// page has its picture's size at 72 points an inch (300 pixels an inch) and is filled by it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lad::reports {

// Pixels of the book's pictures per PDF point.
inline constexpr double kPixelsPerPoint = 4.1667;

// saveBook: writes the pages in order to the target through a temporary file, so that a
// failure half way leaves the old target as it was; false with *error filled then.
bool saveBook(const std::vector<std::filesystem::path>& pages, const std::filesystem::path& target,
              const std::string& creator, std::string* error);

}  // namespace lad::reports
