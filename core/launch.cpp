#include "core/launch.h"

#include <algorithm>

#include "core/ids.h"
#include "core/menu_table.h"

namespace lad {

namespace {

// A stored mode 2 runs as 11 once and is written back as a boolean, which reads as 1 at the
// next launch; the retired modes 4 and 5 fall back to 1. The folder is watched from launch in
// sync mode only.
void readCloudMode(SettingsStore& settings, ProcessValues& v) {
  if (!settings.contains("icloud")) return;
  v.cloudMode = static_cast<int>(settings.integerForKey("icloud"));
  if (v.cloudMode == 2) {
    v.cloudMode = 11;
    settings.set("icloud", Value(v.cloudMode != 0));
  }
  if (v.cloudMode == 4 || v.cloudMode == 5) {
    v.cloudMode = 1;
    settings.set("icloud", true);
  }
  v.cloudWatching = v.cloudMode == 11;
}

void readStoredFlags(SettingsStore& settings, ProcessValues& v) {
  if (settings.contains("accStop")) v.accStop = settings.boolForKey("accStop");
  if (settings.contains("pillsAlarm")) v.pillsAlarm = settings.boolForKey("pillsAlarm");
  if (settings.contains("backgroundId"))
    v.backgroundId = static_cast<int>(settings.integerForKey("backgroundId"));
  for (auto [key, flag] : {std::pair{"chatIndi", &v.chatIndi}, {"showRec", &v.showRec}}) {
    if (settings.contains(key))
      *flag = settings.boolForKey(key);
    else
      settings.set(key, *flag);
  }
}

}  // namespace

void launch(Context& context) {
  SettingsStore& settings = context.settings();
  ProcessValues& v = context.values();
  const int appid = v.appid;
  const int langid = v.langid;
  v = ProcessValues{};
  v.appid = appid;
  v.langid = langid;

  settings.set("WebKitDiskImageCacheEnabled", false);
  settings.remove("deactive");
  readCloudMode(settings, v);
  readStoredFlags(settings, v);
  context.prepareTranslate();

  if (!settings.contains("appguid")) settings.set("appguid", newID());
  v.appGuid = settings.stringForKey("appguid");

  v.tabMenu = buildMenuTable(appid, langid, context.version(),
                             [&](std::string_view s) { return context.translate(s); });
  v.versionTag = context.version();
  std::replace(v.versionTag.begin(), v.versionTag.end(), '.', '-');
  settings.synchronize();
}

}  // namespace lad
