// The reports of one browser: the menu's choice of report and the question of its day, then a
// panel over the screen that follows the report being made and, once it is ready, opens,
// downloads or shares it. The report itself is made by the installation's ReportMaker.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "shell/application.h"
#include "shell/report_maker.h"
#include "shell/screen_host.h"

namespace lad::shell {

// Where the browser fetches the finished report of its session: this, then the file's name.
inline constexpr std::string_view kReportAddress = "/doc/report/";
// The tap target of the panel's closing button.
inline constexpr std::string_view kReportClose = "report:close";

struct ReportPanelView {
  static constexpr std::string_view kKind = "report";
  std::string caption;
  std::string text;
  std::string state;  // "running", "done" or "failed"
  std::size_t done = 0;
  std::size_t total = 0;  // 0: nothing to count
  std::string file;       // the finished report's address
  std::string fileName;
  std::string open, download, share, close;  // the buttons' captions

  Value toValue() const;
};

class ReportPanel {
 public:
  ReportPanel(Application& app, ScreenHost& host) : app_(app), host_(host) {}

  // Menu row 21: the choice of report in the pregnancy editions, else the diary report at once.
  EventResult ask(const std::string& gid);
  // The panel while a report is followed; null otherwise.
  Value view() const;
  EventResult close();
  // Follows a document started elsewhere (the photo book being saved).
  EventResult follow(std::shared_ptr<const ReportJob> job);
  bool shown() const { return job_ != nullptr; }
  // The finished report of this browser under that name, if there is one.
  std::optional<std::filesystem::path> finishedFile(std::string_view name) const;

 private:
  EventResult choose(const PopupAnswer& answer, const std::string& gid);
  EventResult start(reports::ReportKind kind, const std::string& gid, Date day);

  Application& app_;
  ScreenHost& host_;
  std::shared_ptr<const ReportJob> job_;
};

}  // namespace lad::shell
