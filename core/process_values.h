// Values that the whole installation shares, under their customary names, with their values at
// launch. One instance per installation (never a global), reached through the Context.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {

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
  bool cloudWatching = false;  // the cloud folder is watched and read in this run
  std::string cloudError;
  bool oldCloudFound = false;
  bool dropboxReady = false;
  bool themeDarkIcons = true;
  bool themeDarkHeader = true;
  bool colorIcons = true;
  // The theme's colours as CSS, set with the background.
  std::string themeCaptionColour;
  std::string themeTextColour;
  std::string themeHighlightColour;
  std::string themeAccentColour;
  std::string pendingPdf;
  bool pushArrived = false;
  List tabMenu;
  std::string appGuid;
  std::string versionTag;
  std::string startUse;
};

}  // namespace lad
