// The mother's body in the present month with its parts named, the child's size compared with a
// fruit, the weight gain against the norm, and the wheel of the weeks' changes.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

class WomanPage : public Screen {
 public:
  WomanPage(Application& app, std::string gid, double scale);

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  Value bodyPicture(int day) const;
  Value weightGraph(const Map& setup) const;
  Value wheel(int week) const;

  Application& app_;
  std::string gid_;
  double scale_;
};

}  // namespace lad::shell
