#include "shell/pages.h"

#include "core/edition.h"
#include "shell/checks/check_screen.h"
#include "shell/contraction_screen.h"
#include "shell/cycle/cycle_calendar.h"
#include "shell/cycle/cycle_today.h"
#include "shell/day_schedule_page.h"
#include "shell/diary/diary_list.h"
#include "shell/title_page.h"
#include "shell/week/baby_page.h"
#include "shell/week/today_page.h"
#include "shell/week/woman_page.h"

namespace lad::shell {

std::set<int> builtPages(int appid) {
  // Every edition's menu has the diary and the day schedule.
  std::set<int> pages{kDiaryPage, kSchedulePage};
  // The title page, the week pages, the contraction counter and the doctor's plan are a
  // pregnancy's; the child's graphs on the same rows are still to come.
  if (isPregnancyEdition(appid))
    pages.insert({kTodayPage, kTitlePage, kBabyPage, kWomanPage, kContractionsPage, kDoctorPage});
  // The cycle edition's today and woman's pages are her cycle's.
  if (isCycleEdition(appid)) pages.insert({kTodayPage, kWomanPage});
  return pages;
}

std::shared_ptr<Screen> makePage(int page, const PageArgs& args) {
  switch (page) {
    case kTitlePage:
      if (!isPregnancyEdition(args.app.context().values().appid)) return nullptr;
      return std::make_shared<TitlePage>(args.app, args.gid, args.scale);
    case kContractionsPage:
      if (!isPregnancyEdition(args.app.context().values().appid)) return nullptr;
      return ContractionScreen::open(args.app, args.gid, args.scale);
    case kDoctorPage:
      if (!isPregnancyEdition(args.app.context().values().appid)) return nullptr;
      return doctorPage(args.app, args.host, args.gid);
    case kTodayPage:
      if (isPregnancyEdition(args.app.context().values().appid))
        return std::make_shared<TodayPage>(args.app, args.gid, args.scale);
      if (!isCycleEdition(args.app.context().values().appid)) return nullptr;
      return std::make_shared<CycleToday>(args.app, args.host, args.gid, args.diary);
    case kBabyPage:
      if (!isPregnancyEdition(args.app.context().values().appid)) return nullptr;
      return std::make_shared<BabyPage>(args.app, args.host, args.gid, args.scale);
    case kWomanPage:
      if (isPregnancyEdition(args.app.context().values().appid))
        return std::make_shared<WomanPage>(args.app, args.host, args.gid, args.scale);
      if (!isCycleEdition(args.app.context().values().appid)) return nullptr;
      return std::make_shared<CycleCalendar>(args.app, args.host, args.gid, args.diary, false,
                                             args.fromMenu);
    case kSchedulePage:
      return std::make_shared<DaySchedulePage>(args.app, args.host, args.gid, args.diary,
                                               args.fromMenu);
    case kDiaryPage:
      return std::make_shared<DiaryList>(args.app, args.host, args.gid, args.diary, args.fromMenu);
    default:
      return nullptr;
  }
}

}  // namespace lad::shell
