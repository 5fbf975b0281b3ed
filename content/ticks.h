// The tick boxes of a laid-out text, in text order; the box at index i has tag 1001 + i.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lad::content {

struct Tick {
  std::string guid;
  bool checked = false;
  bool operator==(const Tick&) const = default;
};

class TickList {
 public:
  // Adds a box that starts in the state of the first box with its identifier; returns its index.
  int add(std::string guid);
  // Ticks every box whose identifier is in the list; leaves the others as they are.
  void setCheckData(const std::vector<std::string>& guids);
  // Toggles the box; returns its new state, false for an index without a box.
  bool toggle(int index);
  // State of the first box with the identifier; false when there is none.
  bool isChecked(std::string_view guid) const;
  void uncheckAll();

  const std::vector<Tick>& items() const { return items_; }

 private:
  std::vector<Tick> items_;
};

}  // namespace lad::content
