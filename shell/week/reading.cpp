#include "shell/week/reading.h"

#include "content/queries.h"
#include "content/text_data.h"

namespace lad::shell {

int highlightedGroup(const content::TextLayout& layout, int n, bool just) {
  const auto y = content::hlGroup(layout.groups, n, just);
  if (!y) return 0;
  for (const auto& g : layout.groups)
    if (g.top - 10 == *y) return g.groupid;
  return 0;
}

ContentView layoutView(std::string id, const content::TextLayout& layout,
                       const std::vector<double>& alpha, bool interactive) {
  ContentView view{id, {}, 0};
  for (std::size_t i = 0; i < layout.rows.size(); ++i) {
    const auto& row = layout.rows[i];
    const bool button = interactive && row.kind == content::RowKind::Button;
    if (row.kind != content::RowKind::Text && row.kind != content::RowKind::Picture && !button)
      continue;
    ContentRowView shown;
    shown.tp = row.tp;
    shown.text = row.text;
    shown.pic = row.pic;
    shown.group = row.group;
    shown.alpha = alpha[i];
    if (interactive && row.tick >= 0) {
      shown.tick = layout.checks.items()[static_cast<std::size_t>(row.tick)].checked ? 1 : 0;
      shown.target = id + ":tick:" + std::to_string(i);
    }
    if (interactive && row.linkid != 0) shown.link = id + ":link:" + std::to_string(i);
    shown.button = button;
    view.rows.push_back(std::move(shown));
  }
  return view;
}

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

  std::vector<double> alpha(layout.rows.size(), 1.0);
  if (options.dimAfterWeek > 0) alpha = content::alphaGroup(layout, options.dimAfterWeek, false);
  ContentView view = layoutView(std::move(id), layout, alpha, false);
  if (options.highlightWeek > 0) view.highlight = highlightedGroup(layout, options.highlightWeek);
  return view;
}

}  // namespace lad::shell
