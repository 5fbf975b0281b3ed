#include "reports/book_layouts.h"

#include <algorithm>

namespace lad::reports {

namespace {

using drawing::Rect;

bool framedKind(int kind) {
  return kind == 2 || kind == 4 || kind == 5;
}

// Two photos side by side in the middle, 3:4 of their width high (23 and 29).
std::optional<Rect> pair(int pos, double W, double H, double ot) {
  const double w = W / 2 - 12 * ot, h = 3 * w / 4;
  if (pos == 1) return Rect{W / 2 - 2 * ot - w, (H - h) / 2, w, h};
  if (pos == 2) return Rect{W / 2 + 2 * ot, (H - h) / 2, w, h};
  return std::nullopt;
}

// A tall photo on the left and two on the right (31).
std::optional<Rect> tallAndTwo(int pos, double W, double H, double ot) {
  const double w = W / 2 - 12 * ot, h = 3 * w / 4;
  if (pos == 1) return Rect{W / 2 - 2 * ot - w, (H - 5 * w / 4) / 2, w, 5 * w / 4};
  if (pos == 2) return Rect{W / 2 + 2 * ot, H / 2 - h - 2 * ot, w, h};
  if (pos == 3) return Rect{W / 2 + 2 * ot, H / 2 + 2 * ot, w, h};
  return std::nullopt;
}

// A wide photo over two small ones, all centred (32).
std::optional<Rect> wideOverTwo(int pos, double W, double H, double ot) {
  const double u = (H - 20 * ot) / 3;
  const double h1 = 2 * u - 5 * ot, w1 = 5 * h1 / 3;
  if (pos == 1) return Rect{(W - w1) / 2, 2 * H / 3 - 2 * ot - h1, w1, h1};
  const double a = w1 / 2 - 2 * ot, h = u - 5 * ot;
  if (pos == 2) return Rect{W / 2 - 2 * ot - a, 2 * H / 3 + 2 * ot, a, h};
  if (pos == 3) return Rect{W / 2 + 2 * ot, 2 * H / 3 + 2 * ot, a, h};
  return std::nullopt;
}

// Four photos about the middle of the page, two by two (41).
std::optional<Rect> fourAboutMiddle(int pos, double W, double H, double ot) {
  const double w = W / 2 - 12 * ot, h = 3 * w / 4;
  const double left = W / 2 - 2 * ot - w, right = W / 2 + 2 * ot;
  const double upper = H / 2 - h - 2 * ot, lower = H / 2 + 2 * ot;
  switch (pos) {
    case 1:
      return Rect{left, upper, w, h};
    case 2:
      return Rect{right, upper, w, h};
    case 3:
      return Rect{right, lower, w, h};
    case 4:
      return Rect{left, lower, w, h};
  }
  return std::nullopt;
}

// Four photos filling the page in two columns and two rows (40).
std::optional<Rect> fourInGrid(int pos, double W, double H, double ot) {
  if (pos < 1 || pos > 4) return std::nullopt;
  const double h = (H - 20 * ot) / 2;
  return Rect{pos % 2 == 1 ? 0 : W / 2, pos <= 2 ? 10 * ot : 10 * ot + h, W / 2, h};
}

// Three photos: one over the page's width and two halves under it (30).
std::optional<Rect> oneOverTwo(int pos, double W, double H, double ot) {
  const double u = (H - 20 * ot) / 3;
  if (pos == 1) return Rect{0, 10 * ot, W, 2 * u};
  if (pos == 2) return Rect{0, 10 * ot + 2 * u, W / 2, u};
  if (pos == 3) return Rect{W / 2, 10 * ot + 2 * u, W / 2, u};
  return std::nullopt;
}

// Two columns side by side, the first `first` wide (20 to 22).
std::optional<Rect> twoColumns(int pos, double W, double H, double ot, double first) {
  if (pos == 1) return Rect{0, 10 * ot, first, H - 40 * ot};
  if (pos == 2) return Rect{first, 10 * ot, W - first, H - 40 * ot};
  return std::nullopt;
}

// Three equal columns (33).
std::optional<Rect> threeColumns(int pos, double W, double H, double ot) {
  if (pos < 1 || pos > 3) return std::nullopt;
  return Rect{(pos - 1) * W / 3, 10 * ot, W / 3, H - 60 * ot};
}

std::optional<Rect> single(int layout, int pos, double W, double H, double ot) {
  if (pos != 1) return std::nullopt;
  if (layout == 10) return Rect{0, 0, W, H};
  if (layout == 11) return Rect{0, 10 * ot, W, H - 40 * ot};
  return Rect{10 * ot, 10 * ot, W - 20 * ot, H - 40 * ot};
}

}  // namespace

int chooseLayout(int count, int kind) {
  if (count <= 1) return 10;
  const int base = count >= 4 ? 40 : count * 10;
  return framedKind(kind) ? base + (count == 2 ? 3 : 1) : base;
}

int layoutCapacity(int layout) {
  return layout / 10;
}

std::vector<int> layoutChoices(int count) {
  static constexpr int kLast[] = {0, 12, 23, 33, 41};
  const int n = std::min(count, 4);
  std::vector<int> choices;
  for (int layout = n * 10; n > 0 && layout <= kLast[n]; ++layout) choices.push_back(layout);
  return choices;
}

int snapLayout(int layout, int count) {
  const std::vector<int> choices = layoutChoices(count);
  if (choices.empty() || std::ranges::find(choices, layout) != choices.end()) return layout;
  return choices.front();
}

std::optional<Rect> layoutRect(int layout, int pos, drawing::Size page, double ot) {
  const double W = page.w, H = page.h;
  switch (layout) {
    case 10:
    case 11:
    case 12:
      return single(layout, pos, W, H, ot);
    case 20:
      return twoColumns(pos, W, H, ot, W / 2);
    case 21:
      return twoColumns(pos, W, H, ot, W / 3);
    case 22:
      return twoColumns(pos, W, H, ot, 2 * W / 3);
    case 23:
    case 29:
      return pair(pos, W, H, ot);
    case 30:
      return oneOverTwo(pos, W, H, ot);
    case 31:
      return tallAndTwo(pos, W, H, ot);
    case 32:
      return wideOverTwo(pos, W, H, ot);
    case 33:
      return threeColumns(pos, W, H, ot);
    case 40:
      return fourInGrid(pos, W, H, ot);
    case 41:
      return fourAboutMiddle(pos, W, H, ot);
  }
  return std::nullopt;
}

bool layoutHasFrame(int layout, int kind) {
  const bool passePartout =
      layout == 12 || layout == 23 || layout == 31 || layout == 32 || layout == 41;
  return passePartout && framedKind(kind);
}

}  // namespace lad::reports
