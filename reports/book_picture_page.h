// A picture page of the photo book: up to four of the days' photos in a layout, with a line
// under them.
#pragma once

#include <string>
#include <vector>

#include "drawing/canvas.h"

namespace lad::reports {

// One photo offered to a picture page; only those in use are placed.
struct BookImage {
  std::string image;  // the file
  bool use = true;
  bool operator==(const BookImage&) const = default;
};

struct PicturePage {
  std::vector<BookImage> images;
  int tp = 0;  // the layout; 0 chooses it by the number of photos in use
  std::string pagelabelbottom;
};

// The number of photos in use.
int usedCount(const std::vector<BookImage>& images);

// The photos with those that cannot be read left out.
std::vector<BookImage> readableImages(const std::vector<BookImage>& images);

// buildImagePage: places the photos in use in the layout, in order, until it is full; a photo
// that cannot be read leaves its place to the next. The page's line stands under them, unless
// the layout is 31. Gives the layout used.
int buildImagePage(drawing::Canvas& canvas, const PicturePage& page, drawing::Size size, int kind,
                   double ot);

}  // namespace lad::reports
