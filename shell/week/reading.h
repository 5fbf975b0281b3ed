// Reading matter of the content folder laid out for a page: one group or all, with the group of
// the present week marked or the weeks after it dimmed.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "content/layout.h"
#include "content/resource.h"
#include "core/context.h"
#include "shell/views/week.h"

namespace lad::shell {

struct ReadingOptions {
  int justGroup = -1;         // -1: every group
  int highlightWeek = 0;      // above 0: the group of this week is marked
  int dimAfterWeek = 0;       // above 0: the groups after this week are dimmed
  double lineDistance = 0;    // extra distance between rows
  double top = 12;            // y of the first row
  std::optional<Date> start;  // the first day of the pregnancy, for the dates of week marks
};

using content::contentFolder;

// The group that the screen marks for n, as hiliteGroup lands on it (with `just`, group n
// itself or the first one above it); 0 when none.
int highlightedGroup(const content::TextLayout& layout, int n, bool just = false);

// The rows of a laid-out text as the browser shows them, each with its alpha; with
// `interactive`, tick boxes and links get the targets "<id>:tick:<index of the layout row>" and
// "<id>:link:<index>", and the rows of buttons are shown.
ContentView layoutView(std::string id, const content::TextLayout& layout,
                       const std::vector<double>& alpha, bool interactive);

ContentView readingView(const Context& context, std::string id, std::string_view resource,
                        const ReadingOptions& options);

}  // namespace lad::shell
