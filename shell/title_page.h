// The summary page of a pregnancy: its week, its state and the trimester it is in.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

class TitlePage : public Screen {
 public:
  TitlePage(Application& app, std::string gid) : app_(app), gid_(std::move(gid)) {}

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  Application& app_;
  std::string gid_;
};

}  // namespace lad::shell
