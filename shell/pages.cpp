#include "shell/pages.h"

#include "shell/contraction_screen.h"
#include "shell/title_page.h"

namespace lad::shell {

const std::set<int>& builtPages() {
  static const std::set<int> pages{kTitlePage, kContractionsPage};
  return pages;
}

std::shared_ptr<Screen> makePage(int page, Application& app, const std::string& gid, double scale) {
  switch (page) {
    case kTitlePage:
      return std::make_shared<TitlePage>(app, gid);
    case kContractionsPage:
      return ContractionScreen::open(app, gid, scale);
    default:
      return nullptr;
  }
}

}  // namespace lad::shell
