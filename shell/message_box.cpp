#include "shell/message_box.h"

#include "shell/views/node.h"

namespace lad::shell {

MessageBox MessageBox::make(const Context& context, std::string_view text, std::string_view caption,
                            std::string_view button) {
  return {context.translate(caption), context.translate(text), context.translate(button)};
}

Value MessageBox::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  m.set("text", text);
  m.set("button", button);
  m.set("id", std::string(kMessageClose));
  return Value(std::move(m));
}

}  // namespace lad::shell
