// The pages of the ring that this build has screens for, and the screen of each.
#pragma once

#include <memory>
#include <set>
#include <string>

#include "shell/application.h"
#include "shell/diary/diary_state.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

inline constexpr int kTodayPage = 1;
inline constexpr int kSchedulePage = 2;
inline constexpr int kTitlePage = 3;
inline constexpr int kBabyPage = 4;
inline constexpr int kWomanPage = 5;
inline constexpr int kContractionsPage = 6;
inline constexpr int kDoctorPage = 7;
inline constexpr int kDiaryPage = 8;

// What a page is made with: the installation, the session that shows it (for the screens it
// opens), the profile, the browser's scale, and the diary's state in this session.
struct PageArgs {
  Application& app;
  ScreenHost& host;
  std::string gid;
  double scale;
  DiaryState& diary;
  bool fromMenu;  // the user brought the page up, rather than a change of data
};

// Page ids (menu ids below 21) with a screen in this build, for an edition.
std::set<int> builtPages(int appid);

// The screen of a built page for a profile, drawn at the browser's scale; nullptr for a page
// without one.
std::shared_ptr<Screen> makePage(int page, const PageArgs& args);

}  // namespace lad::shell
