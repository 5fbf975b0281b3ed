#include "shell/pages.h"

#include "shell/title_page.h"

namespace lad::shell {

namespace {

constexpr int kTitlePage = 3;

}  // namespace

const std::set<int>& builtPages() {
  static const std::set<int> pages{kTitlePage};
  return pages;
}

std::unique_ptr<Screen> makePage(int page, Application& app, const std::string& gid) {
  switch (page) {
    case kTitlePage:
      return std::make_unique<TitlePage>(app, gid);
    default:
      return nullptr;
  }
}

}  // namespace lad::shell
