#include "reports/book_style.h"

#include <algorithm>

#include "core/text_fill.h"
#include "reports/picture_fill.h"

namespace lad::reports {

namespace {

// The kind 2 pictures: inner pages take them in turn, group openings have their own.
constexpr int kInnerGrounds = 6;
constexpr int kOpeningGrounds = 5;

std::string groundPicture(const PageGround& g) {
  switch (g.kind) {
    case 2:
      // The jacket and the cover take the first of the opening grounds.
      if (g.group > 0 || g.page < kFirstInnerPage)
        return std::string("book-t2-0") +
               static_cast<char>('a' + (std::max(g.group, 1) - 1) % kOpeningGrounds) + ".jpg";
      return fillIn("book-t2-%d.jpg", (g.page - kFirstInnerPage) % kInnerGrounds + 1);
    case 4:
      return "book-t4.jpg";
    case 5:
      return "book-t5.jpg";
    default:
      return "";
  }
}

}  // namespace

bool isBookKind(int kind) {
  return kind >= 1 && kind <= kBookKinds;
}

bool isLightBook(int kind) {
  return kind == 2 || kind == 3;
}

drawing::Color bookTextColor(int kind) {
  return isLightBook(kind) ? drawing::Color{0, 0, 0} : drawing::Color{1, 1, 1};
}

PdfSettings bookSettings(const Context& context, drawing::Size page, int kind) {
  PdfSettings s;
  s.page = page;
  s.ot = 30;
  s.imsize = 500;
  s.fontsize = 70;
  s.weekfontsize = 90;
  s.yearfontsize = 100;
  s.iconsize = 80;
  const drawing::Color type = bookTextColor(kind);
  s.textcolor = type;
  s.text2color = type.withAlpha(0.6);
  s.captioncolor = type.withAlpha(0.9);
  s.caption2color = type.withAlpha(0.7);
  measureHeadings(context, s);
  return s;
}

drawing::Size bookSizeForType(int type, double ot) {
  if (type == 11) return {kInnerPage.w, kInnerPage.h - 40 * ot};
  if (type == 12) return {kInnerPage.w - 20 * ot, kInnerPage.h - 40 * ot};
  return kInnerPage;
}

void paintBookGround(drawing::Canvas& canvas, drawing::Size size, const PageGround& ground,
                     const std::filesystem::path& imagesDir) {
  const drawing::Rect page{0, 0, size.w, size.h};
  canvas.fillRect(page,
                  isLightBook(ground.kind) ? drawing::Color{1, 1, 1} : drawing::Color{0, 0, 0});
  const std::string picture = groundPicture(ground);
  if (!picture.empty()) drawPictureFilling(canvas, (imagesDir / picture).string(), page);
}

}  // namespace lad::reports
