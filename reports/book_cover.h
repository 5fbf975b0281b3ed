// The dust jacket and the cover of the photo book: the front with the ring around the
// profile's photograph (or the edition's picture), the book's caption and lines under it, the
// line at the bottom with a small emblem, and the spine's line turned along the spine.
#pragma once

#include <filesystem>

#include "core/value.h"
#include "drawing/canvas.h"

namespace lad::reports {

// Where the front's column and the spine lie on a page of that width.
struct CoverGeometry {
  drawing::Point front;  // top left of the front's column
  double columnWidth;    // the column the texts are centred in
  double spineX;         // the spine's text is centred on it
};
CoverGeometry coverGeometry(drawing::Size page);

// bookOblozhka: draws the front and the spine from the book dictionary over the page's ground.
void drawBookCover(drawing::Canvas& canvas, drawing::Size page, const Map& dic, int appid,
                   const std::filesystem::path& imagesDir);

}  // namespace lad::reports
