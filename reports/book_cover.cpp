#include "reports/book_cover.h"

#include <numbers>

#include "core/edition.h"
#include "reports/book_style.h"
#include "reports/pdf_settings.h"
#include "reports/picture_fill.h"

namespace lad::reports {

namespace {

constexpr double kRingOuter = 600, kRingInner = 580;  // radii
constexpr double kEmblemOuter = 55, kEmblemInner = 47, kEmblemPicture = 45;
constexpr double kRingTop = 250;  // below the front's top
constexpr double kGap = 30;       // between the lines under the ring
constexpr double kCaptionSize = 120, kLabelSize = 80, kBottomSize = 50, kSpineSize = 60;

// The edition's picture in the ring when the profile has no photograph.
std::string defaultPicture(int appid, int kind) {
  const bool dark = isLightBook(kind);
  if (isChildEdition(appid)) return dark ? "b-ti-child.png" : "ti-child2.png";
  return dark ? "b-ti-preg.png" : "ti-preg3.png";
}

void drawRing(drawing::Canvas& canvas, drawing::Point centre, double outer, double inner,
              drawing::Color colour) {
  canvas.fillPath(drawing::Path().addCircle(centre, outer).addCircle(centre, inner), colour,
                  drawing::FillRule::EvenOdd);
}

void drawInCircle(drawing::Canvas& canvas, const std::string& file, drawing::Point centre,
                  double radius) {
  const drawing::Rect square{centre.x - radius, centre.y - radius, 2 * radius, 2 * radius};
  drawPictureFilling(canvas, file, square, drawing::Path().addCircle(centre, radius));
}

// A centred line of the column at y; the y of the next line.
double drawLine(drawing::Canvas& canvas, const std::string& text, double y, double x, double width,
                drawing::Font font, drawing::Color colour) {
  if (text.empty()) return y;
  const double h = textHeight(text, font, width);
  canvas.drawText(text, {x, y, width, h}, font, colour, drawing::Align::Center);
  return y + h + kGap;
}

}  // namespace

CoverGeometry coverGeometry(drawing::Size page) {
  if (page.w >= 9838) return {{4974, 0}, 3380, 4854};
  return {{3684, 108}, 3508, 3508};
}

void drawBookCover(drawing::Canvas& canvas, drawing::Size page, const Map& dic, int appid,
                   const std::filesystem::path& imagesDir) {
  const CoverGeometry g = coverGeometry(page);
  const int kind = static_cast<int>(dic["booktype"].intValue());
  const drawing::Color type = bookTextColor(kind);
  const std::string photo = dic["imagepath"].text();
  const std::string picture =
      photo.empty() ? (imagesDir / defaultPicture(appid, kind)).string() : photo;
  const double middle = g.front.x + g.columnWidth / 2;

  const drawing::Point centre{middle, g.front.y + kRingTop + kRingOuter};
  const drawing::Color ring = (kind == 3 ? drawing::Color{0, 0, 0} : drawing::Color{1, 1, 1})
                                  .withAlpha(photo.empty() ? 1 : 0.1);
  drawRing(canvas, centre, kRingOuter, kRingInner, ring);
  drawInCircle(canvas, picture, centre, kRingInner);

  double y = centre.y + kRingOuter + 2 * kGap;
  y = drawLine(canvas, dic["caption"].text(), y, g.front.x, g.columnWidth, {kCaptionSize, true},
               type);
  for (const char* key : {"label1", "label2", "label3"})
    y = drawLine(canvas, dic[key].text(), y, g.front.x, g.columnWidth, {kLabelSize, false}, type);

  const double bottom = page.h - 160;
  drawLine(canvas, dic["labelbottom"].text(), bottom, g.front.x, g.columnWidth,
           {kBottomSize, false}, type);
  const drawing::Point emblem{middle, bottom - kGap - kEmblemOuter};
  drawRing(canvas, emblem, kEmblemOuter, kEmblemInner, ring);
  drawInCircle(canvas, picture, emblem, kEmblemPicture);

  // The spine's line is laid out along the page's height and turned a quarter about its middle.
  const std::string root = dic["labelroot"].text();
  const double h = textHeight(root, {kSpineSize, false}, page.h);
  canvas.drawTurnedText(root, {g.spineX - page.h / 2, page.h / 2 - h / 2, page.h, h},
                        {kSpineSize, false}, type, drawing::Align::Center, std::numbers::pi / 2);
}

}  // namespace lad::reports
