#include "shell/checks/check_screen.h"

#include <array>

#include "core/ids.h"
#include "health/pregnancy_calendar.h"
#include "shell/checks/plan_note.h"
#include "shell/views/pages.h"
#include "shell/week/page_title.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

constexpr std::string_view kClose = "checks:close";
constexpr int kDoctorPlan = 1;  // the plan and its help share their ticks
constexpr int kHospitalLists = 100;
constexpr int kDoctorPage = 7;
constexpr int kFirstMapLink = 201, kLastMapLink = 203;

struct HospitalList {
  const char* resource;
  const char* caption;
};
constexpr std::array<HospitalList, 4> kHospital{{{"roddom-doc-u", "Документы"},
                                                 {"roddom-me-u", "Для себя"},
                                                 {"roddom-child-u", "Для ребенка"},
                                                 {"roddom-out-u", "Для выписки"}}};

}  // namespace

CheckScreen::CheckScreen(Application& app, ScreenHost& host, std::string title,
                         CheckTextOptions options, LinkAction link, bool closeable)
    : app_(app),
      host_(host),
      title_(std::move(title)),
      seltypeid_(options.seltypeid),
      gid_(options.gid),
      text_(app, std::move(options)),
      link_(std::move(link)),
      closeable_(closeable) {}

Value CheckScreen::view() {
  List children;
  if (closeable_)
    children.push_back(
        ButtonsView{{{std::string(kClose), app_.context().translate("Готово"), {}}}}.toValue());
  children.push_back(text_.view().toValue());
  return PageView{title_, std::move(children)}.toValue();
}

EventResult CheckScreen::tap(std::string_view target) {
  if (closeable_ && target == kClose) {
    closed_ = true;
    return {};
  }
  const auto tap = text_.tap(target);
  if (!tap) return EventResult::refused("the list has no control " + std::string(target));
  if (tap->kind == CheckTap::Kind::Link) return link_(tap->linkid);
  return ticked(*tap);
}

// A tick of the doctor's plan offers the item's text for the diary and redraws the pages that
// count what is still to be done.
EventResult CheckScreen::ticked(const CheckTap& tap) {
  EventResult result;
  if (seltypeid_ != kDoctorPlan) return result;
  if (tap.ticked)
    if (std::string hidden = text_.hiddenText(tap.guid); !hidden.empty())
      offerPlanNote(app_, host_, gid_, std::move(hidden));
  app_.dataChanged();
  result.installationChanged = true;
  return result;
}

std::shared_ptr<Screen> openSubcheck(Application& app, ScreenHost& host, SubcheckArgs args) {
  CheckTextOptions options;
  options.id = "subcheck";
  options.resource = args.resource;
  options.seltypeid = args.seltypeid;
  options.gid = args.gid;
  options.highlight = args.highlight;
  options.highlightJust = true;
  const int seltypeid = args.seltypeid;
  auto link = [&app, &host, seltypeid](int linkid) {
    // The nearest laboratories need the map, which this build does not have.
    if (seltypeid == kDoctorPlan && linkid >= kFirstMapLink && linkid <= kLastMapLink) {
      host.showMessage(MessageBox::make(
          app.context(), "В текущей версии программы этот функционал не поддерживается",
          "Ближайшие лаборатории"));
      return EventResult();
    }
    return EventResult::refused("the list has no link " + std::to_string(linkid));
  };
  return std::make_shared<CheckScreen>(app, host, app.context().translate(args.caption),
                                       std::move(options), std::move(link), true);
}

std::shared_ptr<Screen> doctorPage(Application& app, ScreenHost& host, const std::string& gid) {
  const Context& context = app.context();
  const Map setup = loadSetupData(app.store(), gid);
  CheckTextOptions options;
  options.id = "doctor";
  options.resource = "doctor-u";
  options.seltypeid = kDoctorPlan;
  options.gid = gid;
  options.start = setup["dat1"].asDate();
  options.highlight = health::getCurPeriod(context, setup);
  auto link = [&app, &host, gid](int linkid) {
    host.push(openSubcheck(app, host, {"doctorhelp-u", kDoctorPlan, gid, "Анализы", linkid}));
    return EventResult();
  };
  return std::make_shared<CheckScreen>(app, host, pageTitle(context, kDoctorPage),
                                       std::move(options), std::move(link), false);
}

std::shared_ptr<Screen> hospitalListsPage(Application& app, ScreenHost& host) {
  CheckTextOptions options;
  options.id = "checks";
  options.resource = "checks-u";
  options.lineDistance = 15;
  const std::string shared = newID2(1, 0);
  auto link = [&app, &host, shared](int linkid) {
    if (linkid < 1 || linkid > static_cast<int>(kHospital.size()))
      return EventResult::refused("the page has no list " + std::to_string(linkid));
    const HospitalList& list = kHospital[static_cast<std::size_t>(linkid - 1)];
    host.push(
        openSubcheck(app, host, {list.resource, kHospitalLists + linkid, shared, list.caption}));
    return EventResult();
  };
  return std::make_shared<CheckScreen>(app, host, app.context().translate("Может понадобиться"),
                                       std::move(options), std::move(link), true);
}

}  // namespace lad::shell
