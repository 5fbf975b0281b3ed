// Questions a screen asks of a laid-out text's groups, and the steps between groups.
#pragma once

#include <optional>
#include <vector>

#include "content/layout.h"

namespace lad::content {

// The y to scroll to so that group n shows at the top (its top less 10), nullopt when there is no
// such group. With `just`, the group numbered n, or failing that the first one above n (and at
// least 1). Without it, the last group before the first one above n, the last of the table when
// none is above n, nothing when the first already is.
std::optional<double> hlGroup(const std::vector<GroupSpan>& groups, int n, bool just);

// The alpha of each row: groups up to n (from 1) show fully, later ones are dimmed to 0.3; with
// `just`, group n shows fully and every other is dimmed. A row belongs to the group its vertical
// centre lies in; rows of no group stay at 1.
std::vector<double> alphaGroup(const TextLayout& layout, int n, bool just);

// The next and previous group to show alone, wrapping around between 1 and the largest.
int nextGroup(int current, int groupMax);
int prevGroup(int current, int groupMax);

// The first group of a span to load: below 0 none (-1), below 3 the first (0), else n - 3.
int specialPartial(int n);

}  // namespace lad::content
