#include "shell/pages.h"

#include "shell/contraction_screen.h"
#include "shell/diary/diary_list.h"
#include "shell/title_page.h"

namespace lad::shell {

const std::set<int>& builtPages() {
  static const std::set<int> pages{kTitlePage, kContractionsPage, kDiaryPage};
  return pages;
}

std::shared_ptr<Screen> makePage(int page, const PageArgs& args) {
  switch (page) {
    case kTitlePage:
      return std::make_shared<TitlePage>(args.app, args.gid);
    case kContractionsPage:
      return ContractionScreen::open(args.app, args.gid, args.scale);
    case kDiaryPage:
      return std::make_shared<DiaryList>(args.app, args.host, args.gid, args.diary, args.fromMenu);
    default:
      return nullptr;
  }
}

}  // namespace lad::shell
