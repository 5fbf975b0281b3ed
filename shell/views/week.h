// The nodes of the week, body and baby pages: small cards of facts, a picture that moves through
// its frames, a picture with named points, and reading matter laid out in rows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace lad::shell {

struct FactView {
  std::string caption;
  std::string value;

  Value toValue() const;
};

// Cards side by side, wrapping onto more lines on a narrow screen.
struct FactsView {
  static constexpr std::string_view kKind = "facts";
  std::vector<FactView> facts;

  Value toValue() const;
};

// Pictures of the program shown one after the other, from the first again after the last.
struct MovieView {
  static constexpr std::string_view kKind = "movie";
  std::vector<std::string> frames;
  int intervalMs = 1000;

  Value toValue() const;
};

// A point of a picture with its name, in the picture's own pixels.
struct HintView {
  std::string name;
  double x = 0, y = 0;

  Value toValue() const;
};

struct HintPictureView {
  static constexpr std::string_view kKind = "hintPicture";
  std::string picture;
  double width = 0, height = 0;  // the picture's own size in pixels
  std::vector<HintView> hints;

  Value toValue() const;
};

// A column of screens, each as high as the page, that scrolls one screen at a time, with a
// page control that shows which screen is in sight.
struct ScreensView {
  static constexpr std::string_view kKind = "screens";
  std::vector<List> screens;  // the nodes of each screen

  Value toValue() const;
};

// One row of reading matter: its kind decides the type size and colour. A tick box and a link
// have each their tap target.
struct ContentRowView {
  int tp = 0;
  std::string text;
  std::string pic;  // a picture of the program; empty: none
  int group = 0;
  double alpha = 1;
  int tick = -1;        // -1: no box; 0 clear; 1 ticked
  std::string target;   // the tick box's
  std::string link;     // empty: the row links nowhere
  bool button = false;  // the link is the whole row, shown as a button

  Value toValue() const;
};

// Reading matter; `highlight` is the group marked and scrolled into sight (0: none).
struct ContentView {
  static constexpr std::string_view kKind = "content";
  std::string id;
  std::vector<ContentRowView> rows;
  int highlight = 0;

  Value toValue() const;
};

}  // namespace lad::shell
