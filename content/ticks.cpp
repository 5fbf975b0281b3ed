// Tick box states of a laid-out text.
#include "content/ticks.h"

#include <algorithm>

namespace lad::content {

int TickList::add(std::string guid) {
  const bool checked = isChecked(guid);
  items_.push_back({std::move(guid), checked});
  return static_cast<int>(items_.size()) - 1;
}

void TickList::setCheckData(const std::vector<std::string>& guids) {
  for (Tick& t : items_)
    if (std::find(guids.begin(), guids.end(), t.guid) != guids.end()) t.checked = true;
}

bool TickList::toggle(int index) {
  if (index < 0 || index >= static_cast<int>(items_.size())) return false;
  Tick& t = items_[static_cast<std::size_t>(index)];
  t.checked = !t.checked;
  return t.checked;
}

bool TickList::isChecked(std::string_view guid) const {
  const auto it =
      std::find_if(items_.begin(), items_.end(), [&](const Tick& t) { return t.guid == guid; });
  return it != items_.end() && it->checked;
}

void TickList::uncheckAll() {
  for (Tick& t : items_) t.checked = false;
}

}  // namespace lad::content
