// The secret address at which a phone's calendar app subscribes to the installation's
// reminders. The token is made once per installation and kept in its settings; a new one makes
// the old address stop working.
#pragma once

#include <string>
#include <string_view>

namespace lad {
class SettingsStore;
}

namespace lad::shell {

inline constexpr std::string_view kFeedAddress = "/calendar/";
inline constexpr std::string_view kFeedSuffix = ".ics";

// The installation's token, made and stored at the first call.
std::string feedToken(SettingsStore& settings);
// Replaces the token; the old address answers no more.
std::string renewFeedToken(SettingsStore& settings);
// Whether the name ("TOKEN.ics") is the present address's, compared in constant time.
bool isFeedName(const SettingsStore& settings, std::string_view name);
// The address's path on this server.
std::string feedPath(std::string_view token);

}  // namespace lad::shell
