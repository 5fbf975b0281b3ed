// The mother's body in the present month with its parts named, the child's size compared with a
// fruit, the weight gain against the norm, and the wheel of the weeks' changes.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class WomanPage : public Screen {
 public:
  static constexpr std::string_view kDetail = "woman:detail";
  static constexpr std::string_view kSize = "woman:size";

  WomanPage(Application& app, ScreenHost& host, std::string gid, double scale);

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  Value bodyPicture(int day) const;
  Value weightGraph(const Map& setup) const;
  Value wheel(int week) const;

  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  double scale_;
};

}  // namespace lad::shell
