// Fuzz target of reading matter: a plain or JSON text laid out in a column, all of it, one group
// of it or a span of its groups. Content files are delivered with the program, but a broken one
// must show as a fault, not bring the diary down. The first byte chooses the form and the part
// laid out; the rest is the text. What the layout promises is checked on what it gives back.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "content/layout.h"
#include "content/queries.h"
#include "core/dates.h"
#include "fuzz/fuzz_input.h"

namespace {

using lad::fuzz::check;

// Lines of a fixed width per character, so that the walk is what is exercised, not the fonts.
double lines(std::string_view text, double size, double width) {
  return size * (1 + static_cast<double>(text.size()) * size * 0.6 / width);
}

bool inTable(const lad::content::TextLayout& layout, int group) {
  return std::any_of(layout.groups.begin(), layout.groups.end(),
                     [group](const lad::content::GroupSpan& g) { return g.groupid == group; });
}

// Every row lies in a group of the table (in the plain form rows before the first group opens
// belong to none), groups and rows run down the column, and every index names an entry.
void checkLayout(const lad::content::TextLayout& layout, bool json, bool partial) {
  check(!layout.groups.empty() || layout.rows.empty());
  for (const auto& g : layout.groups) check(g.top <= g.bottom && g.groupid <= layout.groupMax);
  std::array<int, 3> buttons{};
  double y = 0;
  for (const auto& r : layout.rows) {
    check((r.group < 1 && !json) || inTable(layout, r.group));
    check(r.y >= y && r.height >= 0);
    y = r.y;
    check(r.weblink >= 0 && r.weblink <= static_cast<int>(layout.webLinks.size()));
    check(r.tick < static_cast<int>(layout.checks.items().size()));
    ++buttons.at(static_cast<std::size_t>(r.partialButton));
  }
  check(buttons[1] <= 1 && buttons[2] <= 1 && (partial || buttons[1] + buttons[2] == 0));
  check(layout.height >= y);
  for (std::size_t i = 1; i < layout.faults.size(); ++i)
    check(layout.faults[i - 1].record <= layout.faults[i].record);
  lad::content::hlGroup(layout.groups, layout.groupMax, false);
  check(lad::content::alphaGroup(layout, 1, true).size() == layout.rows.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const lad::DateCodec dates("Europe/Berlin", 1);
  lad::fuzz::FuzzInput in(data, size);
  const std::uint8_t choice = in.byte();
  const std::string_view text = in.rest();
  const bool json = choice % 2 == 1;
  lad::content::GroupFilter filter;
  if (choice / 2 % 3 == 1) filter.groupid = choice / 8 % 5;
  if (choice / 2 % 3 == 2) filter.partialStart = lad::content::specialPartial(choice / 8 % 8);
  lad::content::LayoutTools tools;
  tools.dates = &dates;
  tools.measure = lines;
  lad::content::LayoutSettings settings;
  settings.startDate = dates.encodeDate(5, 10, 2026);
  const auto layout =
      json ? lad::content::layoutJson(lad::content::parseJsonGroups(text), settings, filter, tools)
           : lad::content::layoutPlain(lad::content::parsePlainText(text), settings, filter, tools);
  checkLayout(layout, json, filter.partialStart >= 0);
  return 0;
}
