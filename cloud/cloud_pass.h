// One pass of the cloud folder in the modes that read it: in sync mode the change files of the
// other installations are applied; during the import of the old format its files are taken in
// until the whole folder is complete, and then the installation turns to sync by itself.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

#include "cloud/cloud_scan.h"

namespace lad {
class Store;
}  // namespace lad

namespace lad::cloud {

// The modes of the cloud setting that this program acts on.
enum CloudMode { kCloudOff = 1, kCloudImport = 3, kCloudSync = 11, kCloudRemote = 12 };

// A one-time message for the person at the screen, untranslated.
struct CloudNotice {
  std::string caption;
  std::string text;
};

struct PassOutcome {
  ScanReport report;
  std::vector<std::string> importErrors;
  std::vector<CloudNotice> notices;
  bool dataChanged = false;  // pages must load again
};

// Files refused by a pass, with the change date they had: a refused file is tried again only
// once it has changed.
using RefusedFiles = std::map<std::string, Date>;

struct PassOptions {
  std::chrono::milliseconds settle = kSettleTime;
  RefusedFiles* refused = nullptr;  // none: every refused file is tried at every pass
  ApplyProgress progress;           // after each file applied or refused
};

// Runs the pass and keeps the folder's percent complete in the shared values. Does nothing in
// the other modes.
PassOutcome cloudPass(Store& store, const PassOptions& options = {});

// Sync mode was chosen: the setting is stored and a full pass is owed.
void chooseCloudSync(Context& context);

}  // namespace lad::cloud
