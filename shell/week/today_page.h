// The week of a pregnancy today: trimester, week and day, the child's size, the date of birth,
// the moving picture of the week, and the week's texts for the mother and for the child.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

class TodayPage : public Screen {
 public:
  TodayPage(Application& app, std::string gid, double scale);

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  Application& app_;
  std::string gid_;
  double scale_;
};

}  // namespace lad::shell
