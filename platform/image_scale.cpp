#include <algorithm>
#include <cmath>

#include "platform/images.h"

namespace lad::platform {

namespace {

// The source pixels that one new pixel covers along an axis, each with the share of it covered.
struct Span {
  std::size_t first;
  std::vector<float> weights;
};

std::vector<Span> coverage(int from, int to) {
  std::vector<Span> spans(to);
  const double step = double(from) / to;
  for (int d = 0; d < to; ++d) {
    const double begin = d * step;
    const double end = std::min((d + 1) * step, double(from));
    spans[d].first = static_cast<std::size_t>(begin);
    for (auto i = spans[d].first; double(i) < end; ++i) {
      const double covered = std::min(end, i + 1.0) - std::max(begin, double(i));
      spans[d].weights.push_back(static_cast<float>(covered / step));
    }
  }
  return spans;
}

// Shrinks each of `lines` lines of `from` RGB pixels to `to` pixels, and writes the result
// transposed (`to` lines of `lines` pixels), so that a second call shrinks the other axis.
template <typename Sample>
std::vector<float> shrinkLines(const std::vector<Sample>& in, std::size_t lines, int from, int to) {
  const std::vector<Span> spans = coverage(from, to);
  std::vector<float> out(std::size_t(to) * lines * 3);
  for (std::size_t line = 0; line < lines; ++line) {
    for (int d = 0; d < to; ++d) {
      const Span& span = spans[d];
      float* target = &out[(d * lines + line) * 3];
      for (std::size_t k = 0; k < span.weights.size(); ++k) {
        const Sample* source = &in[(line * from + span.first + k) * 3];
        for (int c = 0; c < 3; ++c) target[c] += span.weights[k] * float(source[c]);
      }
    }
  }
  return out;
}

int scaledSide(int side, double factor) {
  return std::max(1, static_cast<int>(std::lround(side * factor)));
}

}  // namespace

Image scaledToFit(const Image& image, int maxSide) {
  maxSide = std::max(maxSide, 1);
  const int longest = std::max(image.width, image.height);
  if (longest <= maxSide) return image;
  const double factor = double(maxSide) / longest;
  const int width = scaledSide(image.width, factor);
  const int height = scaledSide(image.height, factor);
  const auto columns = shrinkLines(image.rgb, image.height, image.width, width);
  const auto rows = shrinkLines(columns, width, image.height, height);
  Image scaled{width, height, std::vector<std::uint8_t>(rows.size())};
  std::transform(rows.begin(), rows.end(), scaled.rgb.begin(), [](float v) {
    return static_cast<std::uint8_t>(std::clamp(std::lround(v), 0L, 255L));
  });
  return scaled;
}

}  // namespace lad::platform
