// One installation: its edition, data folder, settings, clock and shared values. Several
// contexts may live in one process (tests run two installations side by side).
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/clock.h"
#include "core/dates.h"
#include "core/edition.h"
#include "core/process_values.h"
#include "core/settings.h"
#include "core/translation.h"

namespace lad {

struct ContextOptions {
  int appid = 1;
  int langid = 1;
  std::filesystem::path dataDir = "data";
  std::string version;                 // the program's short version, such as "0.1.0"
  std::shared_ptr<Clock> clock;        // nullptr: the system clock in the configured zone
  std::filesystem::path resourcesDir;  // the program's read-only files: templates, translations
};

class Context {
 public:
  // Creates the data folder layout and opens the settings; nothing else happens before launch().
  explicit Context(ContextOptions options);

  const Edition& edition() const { return *edition_; }
  const std::string& version() const { return version_; }
  const std::filesystem::path& dataDir() const { return dataDir_; }
  std::filesystem::path documentsDir() const { return dataDir_ / "Documents"; }
  std::filesystem::path libraryDir() const { return dataDir_ / "Library"; }
  std::filesystem::path tempDir() const { return dataDir_ / "tmp"; }
  const std::filesystem::path& resourcesDir() const { return resourcesDir_; }

  SettingsStore& settings() { return settings_; }
  const SettingsStore& settings() const { return settings_; }
  const Clock& clock() const { return *clock_; }
  // Dates in the installation's zone and language.
  const DateCodec& dates() const { return dates_; }
  ProcessValues& values() { return values_; }
  const ProcessValues& values() const { return values_; }

  // Loads the translation table of the installation's language.
  void prepareTranslate();
  // Every user-visible literal passes through here.
  std::string translate(std::string_view text) const { return translator_.translate(text); }
  const Translator& translator() const { return translator_; }

 private:
  const Edition* edition_;
  std::string version_;
  std::filesystem::path dataDir_;
  std::filesystem::path resourcesDir_;
  SettingsStore settings_;
  std::shared_ptr<Clock> clock_;
  DateCodec dates_;
  ProcessValues values_;
  Translator translator_;
};

}  // namespace lad
