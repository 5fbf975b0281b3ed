// Builders of the view description that the browser renders.
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad::shell {

struct RowView {
  std::string id;
  std::string icon;
  std::string caption;
  std::string comment;
  std::string badge;
  bool enabled = true;
  std::optional<bool> checked;  // set: the row is a switch

  Value toValue() const;
};

Value pageView(const std::string& title, List children);
Value listView(List rows);
Value textView(const std::string& text);

}  // namespace lad::shell
