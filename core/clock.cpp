#include "core/clock.h"

#include <unicode/timezone.h>

#include <stdexcept>

namespace lad {

std::unique_ptr<icu::TimeZone> openTimeZone(const std::string& name) {
  std::unique_ptr<icu::TimeZone> tz(
      icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)));
  icu::UnicodeString id, unknown;
  tz->getID(id);
  icu::TimeZone::getUnknown().getID(unknown);
  if (id == unknown) throw std::invalid_argument("unknown time zone: " + name);
  return tz;
}

// Opening the zone checks its name.
Clock::Clock(const std::string& zone) : zone_(zone) {
  openTimeZone(zone);
}

Clock::~Clock() = default;

Date Clock::now() const {
  return std::chrono::time_point_cast<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

std::string Clock::hostZone() {
  std::unique_ptr<icu::TimeZone> tz(icu::TimeZone::detectHostTimeZone());
  icu::UnicodeString id;
  tz->getID(id);
  std::string name;
  id.toUTF8String(name);
  if (name.empty() || name == "Etc/Unknown") return "UTC";
  return name;
}

}  // namespace lad
