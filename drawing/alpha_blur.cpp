#include "drawing/alpha_blur.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lad::drawing {

namespace {

constexpr int kPasses = 3;

// Three boxes of radius r add up to the variance r(r + 1); the radius whose variance is nearest
// to sigma².
int boxRadius(double sigma) {
  if (sigma <= 0) return 0;
  return std::max(1, static_cast<int>(std::lround((std::sqrt(1 + 4 * sigma * sigma) - 1) / 2)));
}

// One box pass over the n samples `step` bytes apart, starting at first.
void boxLine(unsigned char* first, int n, std::ptrdiff_t step, int r, std::vector<int>& line) {
  line.resize(n);
  for (int i = 0; i < n; ++i) line[i] = first[i * step];
  const int width = 2 * r + 1;
  int sum = 0;
  for (int i = 0; i < std::min(r, n - 1) + 1; ++i) sum += line[i];
  for (int i = 0; i < n; ++i) {
    first[i * step] = static_cast<unsigned char>((sum + width / 2) / width);
    if (i + r + 1 < n) sum += line[i + r + 1];
    if (i - r >= 0) sum -= line[i - r];
  }
}

}  // namespace

int blurReach(double sigma) {
  return kPasses * boxRadius(sigma);
}

void blurAlpha(unsigned char* data, int width, int height, std::ptrdiff_t stride, double sigma) {
  const int r = boxRadius(sigma);
  if (r == 0) return;
  std::vector<int> line;
  for (int pass = 0; pass < kPasses; ++pass) {
    for (int y = 0; y < height; ++y) boxLine(data + y * stride, width, 1, r, line);
    for (int x = 0; x < width; ++x) boxLine(data + x, height, stride, r, line);
  }
}

}  // namespace lad::drawing
