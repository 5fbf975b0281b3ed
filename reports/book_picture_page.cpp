#include "reports/book_picture_page.h"

#include <algorithm>

#include "reports/book_layouts.h"
#include "reports/book_style.h"
#include "reports/picture_fill.h"
#include "reports/picture_size.h"

namespace lad::reports {

namespace {

constexpr double kLabelSize = 70;
const drawing::Color kFrameLine{0.8, 0.8, 0.8};

// The white passe-partout around a photo's rectangle.
void drawFrame(drawing::Canvas& canvas, drawing::Rect r, double ot) {
  const drawing::Rect frame{r.x - ot, r.y - ot, r.w + 2 * ot, r.h + 2 * ot};
  canvas.fillRect(frame, {1, 1, 1});
  canvas.strokePath(drawing::Path().addRect(frame), kFrameLine, 3);
}

// putImageToPage: the photo filling its position; false when it cannot be read.
bool putImageToPage(drawing::Canvas& canvas, const std::string& file, int pos, int layout,
                    drawing::Size size, int kind, double ot) {
  const auto rect = layoutRect(layout, pos, size, ot);
  if (!rect || rect->w <= 0 || rect->h <= 0) return true;
  if (!pictureSize(file)) return false;
  if (layoutHasFrame(layout, kind)) drawFrame(canvas, *rect, ot);
  return drawPictureFilling(canvas, file, *rect);
}

}  // namespace

int usedCount(const std::vector<BookImage>& images) {
  return static_cast<int>(
      std::count_if(images.begin(), images.end(), [](const BookImage& i) { return i.use; }));
}

std::vector<BookImage> readableImages(const std::vector<BookImage>& images) {
  std::vector<BookImage> out;
  for (const BookImage& image : images)
    if (pictureSize(image.image)) out.push_back(image);
  return out;
}

int buildImagePage(drawing::Canvas& canvas, const PicturePage& page, drawing::Size size, int kind,
                   double ot) {
  const int layout = page.tp ? page.tp : chooseLayout(usedCount(page.images), kind);
  int pos = 1;
  for (const BookImage& image : page.images) {
    if (pos > layoutCapacity(layout)) break;
    if (image.use && putImageToPage(canvas, image.image, pos, layout, size, kind, ot)) ++pos;
  }
  if (layout != 31 && !page.pagelabelbottom.empty())
    canvas.drawText(page.pagelabelbottom, {10 * ot, size.h - 8 * ot, size.w - 20 * ot, 3 * ot},
                    {kLabelSize, false}, bookTextColor(kind), drawing::Align::Center);
  return layout;
}

}  // namespace lad::reports
