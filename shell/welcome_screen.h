// The greeting shown once per version: what is new after an update, or where to begin on a
// new installation, with the edition's own texts.
#pragma once

#include "core/context.h"
#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

class WelcomeScreen : public Screen {
 public:
  WelcomeScreen(Context& context, Greeting greeting) : context_(context), greeting_(greeting) {}

  Value view() override;
  // "welcome:close" closes the greeting; its other buttons lead to screens of their own.
  EventResult tap(std::string_view target) override;
  bool closed() const override { return closed_; }

 private:
  Context& context_;
  Greeting greeting_;
  bool closed_ = false;
};

}  // namespace lad::shell
