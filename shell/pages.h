// The pages of the ring that this build has screens for, and the screen of each.
#pragma once

#include <memory>
#include <set>
#include <string>

#include "shell/application.h"
#include "shell/screen.h"

namespace lad::shell {

inline constexpr int kTitlePage = 3;
inline constexpr int kContractionsPage = 6;

// Page ids (menu ids below 21) with a screen in this build.
const std::set<int>& builtPages();

// The screen of a built page for a profile, drawn at the browser's scale; nullptr for a page
// without one.
std::shared_ptr<Screen> makePage(int page, Application& app, const std::string& gid, double scale);

}  // namespace lad::shell
