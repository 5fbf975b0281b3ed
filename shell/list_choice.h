// A choice among entries given as one text separated by "<br>", with buttons below them given
// the same way (such as "Отменить"). The answer is the tapped entry or button: its index, the
// entries first, and its text.
#pragma once

#include <string>
#include <vector>

#include "core/context.h"
#include "shell/popup.h"

namespace lad::shell {

class ListChoice : public Popup {
 public:
  ListChoice(const Context& context, std::string_view entries, std::string_view buttons);

  const std::vector<std::string>& entries() const { return entries_; }
  const std::vector<std::string>& buttons() const { return buttons_; }

  Value view() const override;
  std::optional<PopupAnswer> answer(std::string_view target, const Value& input) const override;

 private:
  std::vector<std::string> entries_;
  std::vector<std::string> buttons_;
};

}  // namespace lad::shell
