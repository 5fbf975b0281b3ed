#include "shell/question.h"

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
  Map m;
  m.set("kind", "question");
  m.set("caption", caption_);
  m.set("text", text_);
  if (hasInput_) m.set("input", "");
  List buttons;
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    Map b;
    b.set("id", popupTarget(static_cast<int>(i)));
    b.set("caption", buttons_[i]);
    buttons.push_back(Value(std::move(b)));
  }
  m.set("buttons", Value(std::move(buttons)));
  return Value(std::move(m));
}

std::optional<PopupAnswer> Question::answer(std::string_view target, const Value& input) const {
  const int n = popupIndex(target);
  if (n < 0 || n >= static_cast<int>(buttons_.size())) return std::nullopt;
  PopupAnswer a{n, buttons_[n], Value()};
  if (hasInput_) a.value = Value(input.text());
  return a;
}

}  // namespace lad::shell
