#include "shell/reminder_feed.h"

#include "core/ids.h"
#include "core/settings.h"

namespace lad::shell {

namespace {

constexpr std::string_view kTokenKey = "feedToken";

// Takes as long for a near miss as for a far one, so that timing tells nothing of the token.
bool sameText(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  unsigned char diff = 0;
  for (std::size_t i = 0; i < a.size(); ++i) diff |= static_cast<unsigned char>(a[i] ^ b[i]);
  return diff == 0;
}

}  // namespace

std::string feedToken(SettingsStore& settings) {
  std::string token = settings.stringForKey(kTokenKey);
  return token.empty() ? renewFeedToken(settings) : token;
}

std::string renewFeedToken(SettingsStore& settings) {
  std::string token = newID();
  settings.set(kTokenKey, Value(token));
  settings.synchronize();
  return token;
}

bool isFeedName(const SettingsStore& settings, std::string_view name) {
  const std::string token = settings.stringForKey(kTokenKey);
  if (token.empty() || !name.ends_with(kFeedSuffix)) return false;
  return sameText(name.substr(0, name.size() - kFeedSuffix.size()), token);
}

std::string feedPath(std::string_view token) {
  return std::string(kFeedAddress) + std::string(token) + std::string(kFeedSuffix);
}

}  // namespace lad::shell
