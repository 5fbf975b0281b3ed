#include "drawing/render.h"

#include <gtest/gtest.h>

namespace lad::drawing {
namespace {

void paintSample(Canvas& c) {
  c.fillRect({0, 0, 40, 20}, {1, 0, 0, 1});
  c.strokePath(Path().moveTo({0, 0}).lineTo({40, 20}), {0, 0, 1, 1}, 2, {5, 5});
  c.fillGradient(Path().addRect({0, 0, 40, 20}), {0, 0}, {0, 20},
                 {{0.1, {0, 1, 0, 0.3}}, {1, {0, 1, 0, 0}}});
  c.drawText("22", {0, 0, 40, 20}, {9, false}, {0, 0, 0, 1}, Align::Center);
  c.drawImage("/nonexistent/picture.png", {0, 0, 10, 10});
}

// The PNG and SVG documents are read back by the growth chart and canvas tests.
TEST(Render, APdfCarriesThePaintingAndAnEmptyBitmapIsRefused) {
  const auto pdf = renderPdf({40, 20}, "Схватки", paintSample);
  ASSERT_TRUE(pdf);
  EXPECT_EQ(pdf->substr(0, 5), "%PDF-");

  EXPECT_FALSE(renderPng({0, 20}, 1, paintSample));
  EXPECT_FALSE(renderPng({40, 20}, 0, paintSample));
}

}  // namespace
}  // namespace lad::drawing
