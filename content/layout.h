// A text laid out in a column: its rows with their places, the table of its groups, and what the
// screen needs to answer taps (links, web links, tick boxes, hidden texts). All distances are in
// layout units, which the screen multiplies by its scale.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "content/record.h"
#include "content/ticks.h"
#include "core/context.h"
#include "core/dates.h"
#include "drawing/geometry.h"

namespace lad::content {

enum class RowKind { Spacer, Text, Picture, Button, PartialButton };
enum class ColorRole { None, Heading, Body, Theme };

struct Row {
  RowKind kind = RowKind::Spacer;
  int tp = 0;
  int group = 0;  // the group the row is laid out in
  double y = 0, height = 0;
  std::string text;  // what is shown; a button's title
  double fontSize = 0;
  ColorRole color = ColorRole::None;
  // Where the text starts; the width of the text, or of a picture or button row.
  double textX = 0, textY = 0, width = 0;
  std::string pic, bigpic;
  int linkid = 0;
  int weblink = 0;        // 1-based index into the web links; 0: none
  int tick = -1;          // index of the row's tick box; -1: none
  int partialButton = 0;  // 1: earlier groups above the span, 2: later groups below it
};

struct GroupSpan {
  int groupid = 0;
  double top = 0, bottom = 0;
  bool operator==(const GroupSpan&) const = default;
};

struct HiddenText {
  std::string text;
  std::string guid;  // the record's tick identifier; "" when it has none
};

struct TextLayout {
  std::vector<Row> rows;
  std::vector<GroupSpan> groups;  // in layout order
  std::vector<HiddenText> hidden;
  std::vector<std::string> webLinks;
  TickList checks;
  int groupMax = 0;   // the largest group number of the text
  double height = 0;  // y below the last row; the scrolling content is 10 higher
  std::vector<ContentFault> faults;
};

// The hidden text of the first item with that tick identifier, or "".
std::string hiddenText(const TextLayout& layout, std::string_view guid);

struct LayoutSettings {
  double columnWidth = 320;
  double top = 12;          // y of the first row
  double lineDistance = 0;  // added below every row; may be negative
  Date startDate{};         // base of the week marks of display templates
};

// Which part of the text is laid out.
struct GroupFilter {
  int groupid = -1;       // -1: every group; otherwise only the body rows of this group
  int partialStart = -1;  // -1: every group; otherwise groups partialStart to partialStart + 5
};

// Height of the text wrapped at the width in the type size.
using Measure = std::function<double(std::string_view text, double size, double width)>;
// Natural size of a picture by name; nullopt when there is none.
using ImageSize = std::function<std::optional<drawing::Size>(std::string_view name)>;

struct LayoutTools {
  const DateCodec* dates = nullptr;  // required
  Measure measure;                   // empty: the browser's font through drawing's measureText
  ImageSize imageSize;               // empty: pictures of kind 6 have no height
  Translate translate;               // empty: plain texts stay untranslated
};

// Dates and translation of the installation; measurement with the browser's font.
LayoutTools contextTools(const Context& context);

TextLayout layoutPlain(const PlainText& text, const LayoutSettings& settings,
                       const GroupFilter& filter, const LayoutTools& tools);
TextLayout layoutJson(const std::vector<Group>& groups, const LayoutSettings& settings,
                      const GroupFilter& filter, const LayoutTools& tools);

}  // namespace lad::content
