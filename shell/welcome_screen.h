// The greeting shown once per version: what is new after an update, or where to begin on a
// new installation, with the edition's own texts.
#pragma once

#include <functional>
#include <map>

#include "core/context.h"
#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

// The commands of the greeting's buttons, by the button's number.
enum WelcomeCommand { kWhatIsNew = 1, kAbout = 2, kSetup = 3, kCloud = 4 };

class WelcomeScreen : public Screen {
 public:
  // What each command does; a button whose command has no action here shows disabled.
  using Commands = std::map<WelcomeCommand, std::function<EventResult()>>;

  WelcomeScreen(Context& context, Greeting greeting, Commands commands = {})
      : context_(context), greeting_(greeting), commands_(std::move(commands)) {}

  Value view() override;
  // "welcome:close" closes the greeting; its other buttons lead to screens of their own.
  EventResult tap(std::string_view target) override;
  bool closed() const override { return closed_; }

 private:
  Context& context_;
  Greeting greeting_;
  Commands commands_;
  bool closed_ = false;
};

}  // namespace lad::shell
