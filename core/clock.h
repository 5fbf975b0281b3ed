// The installation's sense of time: what "now" is and in which time zone calendar days fall.
// Tests pin both.
#pragma once

#include <unicode/uversion.h>

#include <atomic>
#include <memory>
#include <string>

#include "core/value.h"

U_NAMESPACE_BEGIN
class TimeZone;
U_NAMESPACE_END

namespace lad {

// Opens a zone of the time zone database by its name; throws std::invalid_argument for a name
// the database does not know.
std::unique_ptr<icu::TimeZone> openTimeZone(const std::string& name);

class Clock {
 public:
  // Throws std::invalid_argument for a zone name the time zone database does not know.
  explicit Clock(const std::string& zone = hostZone());
  virtual ~Clock();

  virtual Date now() const;
  const std::string& zone() const { return zone_; }

  static std::string hostZone();

 private:
  std::string zone_;
};

// A clock that stands still until told to move.
class ManualClock : public Clock {
 public:
  ManualClock(Date start, const std::string& zone) : Clock(zone), now_(start.time_since_epoch()) {}
  Date now() const override { return Date(now_.load()); }
  void set(Date d) { now_ = d.time_since_epoch(); }
  void advance(std::chrono::milliseconds by) { now_ = now_.load() + by; }

 private:
  std::atomic<std::chrono::milliseconds> now_;
};

}  // namespace lad
