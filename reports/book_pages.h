// The second pass of the photo book: each page of the recorded commands drawn at full size
// over its ground and written as "book%d.jpg" into the book's folder, one page at a time.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "reports/book_page_image.h"
#include "reports/book_recorder.h"
#include "reports/day_caps.h"

namespace lad::reports {

// A page of the book as the screen shows it.
struct BookPage {
  int page = 0;
  bool isimages = false;
  PicturePage picture;  // of a picture page
  std::filesystem::path file;
};

// The file of the page in the book's folder.
std::filesystem::path bookPageFile(const std::filesystem::path& folder, int page);

class BookPageMaker {
 public:
  BookPageMaker(const Context& context, const PdfSettings& inner, const RowPainter& rows, int kind,
                std::filesystem::path imagesDir, std::filesystem::path folder);

  // Draws the page of the commands, which all carry its number. Nullopt for a picture page
  // none of whose photos can be read, and, with *error filled, when the page could not be
  // written.
  std::optional<BookPage> make(std::span<const BookCommand> commands, std::string* error) const;

  // Draws the picture page as it is now (after an edit, or one added to the book) and keeps
  // the layout used in it.
  bool drawPicturePage(BookPage& page, std::string* error) const;

 private:
  std::optional<BookPage> textPage(std::span<const BookCommand> commands, std::string* error) const;

  const PdfSettings& s_;
  const RowPainter& rows_;
  DayCapPainter caps_;
  int kind_;
  std::filesystem::path picturesDir_;
  std::filesystem::path folder_;
  PageRaster raster_;  // the pixels every inner page is painted on in turn
};

}  // namespace lad::reports
