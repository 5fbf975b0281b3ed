// Alerts over the current screen: a message with "ОК", a yes-or-no question ("Нет", "Да"),
// and a question with a text field ("Отменить", "Ok"). The answer carries the tapped button
// and, for the text question, the text typed.
#pragma once

#include <string>
#include <vector>

#include "core/context.h"
#include "shell/popup.h"

namespace lad::shell {

class Question : public Popup {
 public:
  static Question message(const Context& context, std::string_view text, std::string_view caption);
  static Question ask(const Context& context, std::string_view text, std::string_view caption);
  static Question askString(const Context& context, std::string_view text,
                            std::string_view caption);

  const std::string& caption() const { return caption_; }
  const std::string& text() const { return text_; }
  const std::vector<std::string>& buttons() const { return buttons_; }

  Value view() const override;
  std::optional<PopupAnswer> answer(std::string_view target, const Value& input) const override;

 private:
  Question(const Context& context, std::string_view text, std::string_view caption,
           std::vector<std::string_view> buttons, bool hasInput);

  std::string caption_;
  std::string text_;
  std::vector<std::string> buttons_;
  bool hasInput_;
};

}  // namespace lad::shell
