#include <cairo.h>
#include <gtest/gtest.h>

#include <cstdint>

#include "drawing/cairo_canvas.h"

namespace lad::drawing {
namespace {

// A transparent bitmap on which one path shadow is painted, read back as alpha per pixel.
class ShadowBitmap {
 public:
  ShadowBitmap(const Path& p, FillRule rule, double scale)
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 160, 120)) {
    cairo_t* cr = cairo_create(surface_);
    cairo_scale(cr, scale, scale);
    {
      CairoCanvas canvas(cr);
      canvas.fillPathShadow(p, rule, {{0, 0, 0, 1}, {6, 4}, 4});
    }
    cairo_destroy(cr);
    cairo_surface_flush(surface_);
  }
  ~ShadowBitmap() { cairo_surface_destroy(surface_); }
  ShadowBitmap(const ShadowBitmap&) = delete;
  ShadowBitmap& operator=(const ShadowBitmap&) = delete;

  int alpha(int x, int y) const {
    const unsigned char* row =
        cairo_image_surface_get_data(surface_) +
        static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface_);
    return static_cast<int>(reinterpret_cast<const std::uint32_t*>(row)[x] >> 24);
  }

 private:
  cairo_surface_t* surface_;
};

// A square frame: the box 10..50 with the hole 20..40.
const Path kFrame = Path().addRect({10, 10, 40, 40}).addRect({20, 20, 20, 20});

TEST(PathShadow, CairoBlursTheMovedCoverage) {
  const ShadowBitmap frame(kFrame, FillRule::EvenOdd, 1);
  // Under the frame moved by (6, 4) the shadow is dark; the even-odd hole stays clear.
  EXPECT_GT(frame.alpha(15 + 6, 30 + 4), 200);
  EXPECT_EQ(frame.alpha(30 + 6, 30 + 4), 0);
  // From the right edge (x 56) it fades out within three boxes of radius 2.
  EXPECT_GT(frame.alpha(56, 34), 80);
  EXPECT_LT(frame.alpha(56, 34), 180);
  EXPECT_GT(frame.alpha(61, 34), 0);
  EXPECT_EQ(frame.alpha(64, 34), 0);
  // Nothing stays at the unmoved left edge.
  EXPECT_EQ(frame.alpha(8, 34), 0);

  const ShadowBitmap filled(kFrame, FillRule::Winding, 1);
  EXPECT_GT(filled.alpha(30 + 6, 30 + 4), 200);

  // At scale 2 both the offset and the blur grow with the drawing.
  const ShadowBitmap twice(kFrame, FillRule::EvenOdd, 2);
  EXPECT_GT(twice.alpha(2 * 15 + 12, 2 * 30 + 8), 200);
  EXPECT_GT(twice.alpha(2 * 56 + 8, 68), 0);
  EXPECT_EQ(twice.alpha(2 * 56 + 14, 68), 0);
}

}  // namespace
}  // namespace lad::drawing
