#include "shell/week/reading.h"

#include "content/queries.h"
#include "content/text_data.h"

namespace lad::shell::week {

namespace {

// The number of the group that hiliteGroup lands on for the week, 0 when none.
int highlightedGroup(const content::TextLayout& layout, int week) {
  const auto y = content::hlGroup(layout.groups, week, false);
  if (!y) return 0;
  for (const auto& g : layout.groups)
    if (g.top - 10 == *y) return g.groupid;
  return 0;
}

}  // namespace

ContentView readingView(const Context& context, std::string id, std::string_view resource,
                        const ReadingOptions& options) {
  content::LayoutSettings settings;
  settings.top = options.top;
  settings.lineDistance = options.lineDistance;
  if (options.start) settings.startDate = *options.start;
  content::TextData text(content::contextTools(context), settings);
  text.justGroup(options.justGroup);
  text.prepareFromFile(contentFolder(context), resource);
  const auto& layout = text.layout();

  ContentView view{std::move(id), {}, 0};
  if (options.highlightWeek > 0) view.highlight = highlightedGroup(layout, options.highlightWeek);
  std::vector<double> alpha(layout.rows.size(), 1.0);
  if (options.dimAfterWeek > 0) alpha = content::alphaGroup(layout, options.dimAfterWeek, false);
  for (std::size_t i = 0; i < layout.rows.size(); ++i) {
    const auto& row = layout.rows[i];
    if (row.kind != content::RowKind::Text && row.kind != content::RowKind::Picture) continue;
    view.rows.push_back({row.tp, row.text, row.pic, row.group, alpha[i]});
  }
  return view;
}

}  // namespace lad::shell::week
