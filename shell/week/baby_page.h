// How the child develops: a ring of progress for each organ, and the text of the organ chosen
// with the present week marked; the child's achievements dim the weeks still to come.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class BabyPage : public Screen {
 public:
  static constexpr std::string_view kChild = "baby:child";

  BabyPage(Application& app, ScreenHost& host, std::string gid, double scale);

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  Value ring(int daysSinceStart) const;
  Value organList(int daysSinceStart) const;
  Value organText(const Map& setup, int week) const;

  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  double scale_;
  std::size_t organ_ = 0;  // the organ whose text is open
};

}  // namespace lad::shell
