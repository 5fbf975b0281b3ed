// The contraction counter's page: one start/stop button with the running time, the charts of
// intervals and durations, the trend message, and the grouped list whose rows swipe to delete.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "health/contraction.h"
#include "health/contraction_groups.h"
#include "health/contraction_timer.h"
#include "health/contraction_trend.h"
#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

inline constexpr std::string_view kContractionStart = "contractions:start";
inline constexpr std::string_view kContractionStop = "contractions:stop";
inline constexpr std::string_view kContractionClose = "contractions:close";
// Row id prefix of a contraction, followed by its schid.
inline constexpr std::string_view kContractionRow = "contractions:row:";
// Row target prefix of a contraction's delete swipe, followed by its schid.
inline constexpr std::string_view kContractionDelete = "contractions:delete:";

class ContractionScreen : public Screen {
 public:
  // scale: the device scale of the browser, which sizes the charts.
  static std::shared_ptr<ContractionScreen> open(Application& app, std::string pregguid,
                                                 double scale);

  Value view() override;
  EventResult tap(std::string_view target) override;

  bool closed() const override { return closed_; }
  const health::ContractionTimer& timer() const { return timer_; }
  const health::TrendMessage& trend() const { return trend_; }
  const std::vector<health::Contraction>& contractions() const { return data_; }

 private:
  ContractionScreen(Application& app, std::string pregguid, double scale);
  EventResult start();
  EventResult stop();
  EventResult remove(std::string_view schid);
  void updateGraph();
  Value chartView(const char* id, const List& points, const char* caption) const;
  List listViews() const;

  Application& app_;
  std::string pregguid_;
  double scale_;
  health::ContractionTimer& timer_;  // the installation's, for this pregnancy
  std::vector<health::Contraction> data_;
  std::vector<health::ContractionGroup> groups_;
  health::TrendMessage trend_;
  Value intervalChart_, durationChart_;  // drawn once per update, shown at every redraw
  bool closed_ = false;
};

}  // namespace lad::shell
