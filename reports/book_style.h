// The photo book's pages and kinds: the sizes of its pages in pixels at 300 dots per inch, the
// type and its colour by kind, and the pictures each kind lays under its pages.
#pragma once

#include <filesystem>

#include "drawing/canvas.h"
#include "reports/pdf_settings.h"

namespace lad::reports {

inline constexpr drawing::Size kJacketPage{9838, 2671};  // "Суперобложка", page 1
inline constexpr drawing::Size kCoverPage{7125, 2888};   // "Обложка", page 2
inline constexpr drawing::Size kInnerPage{3338, 2588};   // "Страница %d", pages 3 and up
inline constexpr int kFirstInnerPage = 3;
inline constexpr int kBookKinds = 5;

bool isBookKind(int kind);

// Kinds 2 and 3 have light pages with black type and use the dark pictures on the cover; the
// others have dark pages with white type.
bool isLightBook(int kind);
drawing::Color bookTextColor(int kind);

// The report's settings with the book's sizes and type in the kind's colour.
PdfSettings bookSettings(const Context& context, drawing::Size page, int kind);

// bookSizeForType: the area that a picture page of the layout fills.
drawing::Size bookSizeForType(int type, double ot);

// What lies under a page of the book.
struct PageGround {
  int kind = 1;
  int page = kFirstInnerPage;  // the page's number in the book
  int group = 0;               // the group a page opens, 0 for none
};

// Paints the page's ground: a plain colour or the kind's picture filling the page.
void paintBookGround(drawing::Canvas& canvas, drawing::Size size, const PageGround& ground,
                     const std::filesystem::path& imagesDir);

}  // namespace lad::reports
