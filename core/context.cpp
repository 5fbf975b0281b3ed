#include "core/context.h"

#include <stdexcept>

namespace lad {

namespace {

const Edition& checkedEdition(int appid) {
  const Edition* e = editionFor(appid);
  if (!e) throw std::invalid_argument("no edition has appid " + std::to_string(appid));
  return *e;
}

std::filesystem::path preparedDataDir(const std::filesystem::path& dir) {
  std::filesystem::create_directories(dir / "Library");
  std::filesystem::create_directories(dir / "Documents");
  std::filesystem::create_directories(dir / "tmp");
  return dir;
}

// The installation's time zone is a setting; the host's zone when it is absent or unknown.
std::shared_ptr<Clock> configuredClock(const SettingsStore& settings) {
  std::string zone = settings.stringForKey("timeZone");
  if (!zone.empty()) {
    try {
      return std::make_shared<Clock>(zone);
    } catch (const std::invalid_argument&) {
    }
  }
  return std::make_shared<Clock>();
}

}  // namespace

Context::Context(ContextOptions options)
    : edition_(&checkedEdition(options.appid)),
      version_(std::move(options.version)),
      dataDir_(preparedDataDir(options.dataDir)),
      resourcesDir_(std::move(options.resourcesDir)),
      settings_(dataDir_ / "Library" / "Preferences.json"),
      clock_(options.clock ? std::move(options.clock) : configuredClock(settings_)),
      dates_(clock_->zone(), options.langid) {
  values_.appid = options.appid;
  values_.langid = options.langid;
}

void Context::prepareTranslate() {
  translator_.prepare(values_.langid, resourcesDir_ / "translate.sqlite");
}

}  // namespace lad
