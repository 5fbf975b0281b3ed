#include "shell/question.h"

#include "shell/views/popups.h"

namespace lad::shell {

Question::Question(const Context& context, std::string_view text, std::string_view caption,
                   std::vector<std::string_view> buttons, bool hasInput)
    : caption_(context.translate(caption)), text_(context.translate(text)), hasInput_(hasInput) {
  for (auto button : buttons) buttons_.push_back(context.translate(button));
}

Question Question::message(const Context& context, std::string_view text,
                           std::string_view caption) {
  return Question(context, text, caption, {"ОК"}, false);
}

Question Question::ask(const Context& context, std::string_view text, std::string_view caption) {
  return Question(context, text, caption, {"Нет", "Да"}, false);
}

Question Question::askString(const Context& context, std::string_view text,
                             std::string_view caption) {
  return Question(context, text, caption, {"Отменить", "Ok"}, true);
}

Value Question::view() const {
  QuestionView view{caption_, text_, hasInput_, {}};
  for (std::size_t i = 0; i < buttons_.size(); ++i)
    view.buttons.push_back({popupTarget(static_cast<int>(i)), buttons_[i], "", false});
  return view.toValue();
}

std::optional<PopupAnswer> Question::answer(std::string_view target, const Value& input) const {
  const int n = popupIndex(target);
  if (n < 0 || n >= static_cast<int>(buttons_.size())) return std::nullopt;
  PopupAnswer a{n, buttons_[n], Value()};
  if (hasInput_) a.value = Value(input.text());
  return a;
}

}  // namespace lad::shell
