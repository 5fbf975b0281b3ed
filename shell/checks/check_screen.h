// The screens of the check-lists: the doctor's plan of a pregnancy (a page of the ring), the
// page "Может понадобиться" with the hospital lists (a menu row), and one list over the screen.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "shell/application.h"
#include "shell/checks/check_text.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

// A text with tick boxes under a title; a closeable one has a button that closes it.
class CheckScreen : public Screen {
 public:
  using LinkAction = std::function<EventResult(int linkid)>;

  CheckScreen(Application& app, ScreenHost& host, std::string title, CheckTextOptions options,
              LinkAction link, bool closeable);

  Value view() override;
  EventResult tap(std::string_view target) override;
  bool closed() const override { return closed_; }

 private:
  EventResult ticked(const CheckTap& tap);

  Application& app_;
  ScreenHost& host_;
  std::string title_;
  int seltypeid_;
  std::string gid_;
  CheckText text_;
  LinkAction link_;
  bool closeable_;
  bool closed_ = false;
};

// One list over the screen: the resource with the ticks of seltypeid for gid (none below 1),
// with the group `highlight` marked (0: none).
struct SubcheckArgs {
  std::string resource;
  int seltypeid = 0;
  std::string gid;
  std::string caption;
  int highlight = 0;
};
std::shared_ptr<Screen> openSubcheck(Application& app, ScreenHost& host, SubcheckArgs args);

// The plan of a pregnancy's doctor visits, opened on the group of this week.
std::shared_ptr<Screen> doctorPage(Application& app, ScreenHost& host, const std::string& gid);

// "Может понадобиться": the links to the four hospital lists, shared by every pregnancy.
std::shared_ptr<Screen> hospitalListsPage(Application& app, ScreenHost& host);

}  // namespace lad::shell
