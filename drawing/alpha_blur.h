// A blur of an alpha-only bitmap that comes close to a Gaussian: three box passes each way.
#pragma once

#include <cstddef>

namespace lad::drawing {

// How many pixels the blur of that standard deviation spreads a pixel to each side.
int blurReach(double sigma);

// Blurs the width × height bytes (rows `stride` bytes apart) in place; pixels beyond the edges
// count as clear.
void blurAlpha(unsigned char* data, int width, int height, std::ptrdiff_t stride, double sigma);

}  // namespace lad::drawing
