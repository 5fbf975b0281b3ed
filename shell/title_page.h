// The summary page of a pregnancy: its week, its state and the trimester it is in, the picture
// of the baby's growth with today's size, and the baby's length and weight by week with the
// ultrasound measurements. The page is built anew
// when the diary changes, so its charts are drawn once per change.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

class TitlePage : public Screen {
 public:
  TitlePage(Application& app, std::string gid, double scale);

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  List growthCharts(const Map& setup) const;

  Application& app_;
  std::string gid_;
  double scale_;
  List charts_;
};

}  // namespace lad::shell
