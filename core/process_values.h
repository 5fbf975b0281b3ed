// Values that the whole installation shares, under their customary names, with their values at
// launch. One instance per installation (never a global), reached through the Context.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/value.h"

namespace lad {

constexpr std::size_t kPageDirtyCount = 19;

struct ProcessValues {
  int appid = 1;
  int langid = 1;
  bool accStop = true;
  bool pillsAlarm = false;
  int backgroundId = 2;
  int backgroundCount = 9;
  int bookCount = 5;
  bool chatIndi = true;
  bool showRec = true;
  int cloudMode = 1;
  int cloudPercent = -1;
  std::string cloudError;
  bool oldCloudFound = false;
  bool dropboxReady = false;
  bool isTablet = false;
  double scaleX = 1.0;
  double scaleY = 1.0;
  bool themeDarkIcons = true;
  bool themeDarkHeader = true;
  bool colorIcons = true;
  // The theme's colours as CSS, set with the background.
  std::string themeCaptionColour;
  std::string themeTextColour;
  std::string themeHighlightColour;
  std::string themeAccentColour;
  std::string pendingPdf;
  int modalOpen = 0;
  bool popupOpen = false;
  bool pushArrived = false;
  bool menuNeedsUpdate = false;
  int homePage = 0;
  List tabMenu;
  std::array<std::uint8_t, kPageDirtyCount> pageDirty{};
  std::string appGuid;
  std::string versionTag;
  std::string startUse;
  int badgeCount = 0;

  void markAllPagesDirty() { pageDirty.fill(1); }
};

}  // namespace lad
