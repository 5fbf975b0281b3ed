// A first-use hint of a screen: the help sign in the header and a moving hand beside it, shown
// until the user has been through it once; the key (such as "noteHelp") remembers that in the
// settings.
#pragma once

#include <optional>
#include <string>

#include "core/settings.h"
#include "core/value.h"

namespace lad::shell {

class HelpHint {
 public:
  HelpHint(SettingsStore& settings, std::string key) : settings_(settings), key_(std::move(key)) {}

  bool due() const { return settings_.helpCheck(key_); }
  // The hint's node while it is due, with the tap target that ends it.
  std::optional<Value> view() const;
  // Ends the hint for good; false for a target that is not the hint's.
  bool tap(std::string_view target);

 private:
  std::string target() const { return "help:" + key_; }

  SettingsStore& settings_;
  std::string key_;
};

}  // namespace lad::shell
