// A message over the current screen: a caption, a text and one button that closes it.
#pragma once

#include <string>
#include <string_view>

#include "core/context.h"

namespace lad::shell {

struct MessageBox {
  static constexpr std::string_view kKind = "message";
  std::string caption;
  std::string text;
  std::string button;

  // Caption, text and button as the user reads them; the button defaults to "ОК".
  static MessageBox make(const Context& context, std::string_view text, std::string_view caption,
                         std::string_view button = "ОК");
  Value toValue() const;
};

// The tap target of a message box's button.
inline constexpr std::string_view kMessageClose = "message:ok";

}  // namespace lad::shell
