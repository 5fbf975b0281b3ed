// Group table queries.
#include "content/queries.h"

#include <algorithm>

namespace lad::content {

namespace {

constexpr double kAbove = 10, kDimmed = 0.3;

bool after(const GroupSpan& g, int n) {
  return g.groupid > n && g.groupid >= 1;
}

}  // namespace

std::optional<double> hlGroup(const std::vector<GroupSpan>& groups, int n, bool just) {
  if (groups.empty()) return std::nullopt;
  const auto firstAfter =
      std::find_if(groups.begin(), groups.end(), [n](const GroupSpan& g) { return after(g, n); });
  auto found = groups.end();
  if (just) {
    found = std::find_if(groups.begin(), groups.end(),
                         [n](const GroupSpan& g) { return g.groupid == n; });
    if (found == groups.end()) found = firstAfter;
  } else if (firstAfter != groups.begin()) {
    found = std::prev(firstAfter);
  }
  if (found == groups.end()) return std::nullopt;
  return found->top - kAbove;
}

std::vector<double> alphaGroup(const TextLayout& layout, int n, bool just) {
  std::vector<double> alpha(layout.rows.size(), 1.0);
  for (const GroupSpan& g : layout.groups) {
    const bool shown = (just && g.groupid == n) || (g.groupid >= 1 && g.groupid <= n);
    const bool dimmed = (just && g.groupid != n) || after(g, n);
    if (!shown && !dimmed) continue;
    for (std::size_t i = 0; i < layout.rows.size(); ++i) {
      const double centre = layout.rows[i].y + layout.rows[i].height / 2;
      if (centre >= g.top && centre <= g.bottom) alpha[i] = dimmed ? kDimmed : 1.0;
    }
  }
  return alpha;
}

int nextGroup(int current, int groupMax) {
  return current < groupMax ? current + 1 : 1;
}

int prevGroup(int current, int groupMax) {
  return current <= 1 ? groupMax : current - 1;
}

int specialPartial(int n) {
  if (n < 0) return -1;
  return n < 3 ? 0 : n - 3;
}

}  // namespace lad::content
