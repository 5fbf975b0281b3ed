// The main menu: the edition's pages, commands and switches as one list.
#pragma once

#include "core/context.h"
#include "shell/screen.h"

namespace lad::shell {

struct SwitchSetting;

class MainMenu : public Screen {
 public:
  explicit MainMenu(Context& context) : context_(context) {}

  Value view() override;
  EventResult tap(std::string_view target) override;

  // Marks the switch rows of the menu table with the state they stand for.
  void updateMenu();

 private:
  EventResult toggleSwitch(const SwitchSetting& s);

  Context& context_;
};

// Row id of a menu item in the view description ("menu:51").
std::string menuTarget(int id);

}  // namespace lad::shell
