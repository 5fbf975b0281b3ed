// An installation whose clock stands in Europe/Berlin, which changes to summer time on
// 2026-03-29 and back on 2026-10-25, and pregnancy setup dictionaries built from day texts.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/context.h"
#include "tests/support/test_files.h"

namespace lad::testing {

class HealthTest : public ::testing::Test {
 protected:
  // The temporary folder is also the program's resource folder, where a test may put a
  // translation table of its own.
  explicit HealthTest(int langid = 1)
      : clock(std::make_shared<ManualClock>(Date{}, "Europe/Berlin")),
        context(ContextOptions{1, langid, dir.path() / "data", "1.0", clock, dir.path()}) {}

  // A moment given as local "yyyy-MM-dd" or "yyyy-MM-dd HH:mm".
  Date at(const std::string& local) const { return context.dates().dateFromString(local).value(); }
  // Midnight of the day `offset` days after `day`, at the local time of day `time`.
  Date after(const std::string& day, int offset, const std::string& time = "00:00") const {
    const Date d = context.dates().addDays(at(day), offset);
    return at(context.dates().dateToString(d, "yyyy-MM-dd") + " " + time);
  }
  void today(Date d) { clock->set(d); }

  // A running pregnancy with its first day, conception and expected birth.
  Map pregnancy(const std::string& dat1, const std::string& dat2, const std::string& birthdate) {
    Map setup;
    setup.set("dat1", at(dat1));
    setup.set("dat2", at(dat2));
    setup.set("birthdate", at(birthdate));
    return setup;
  }

  TempDir dir;
  std::shared_ptr<ManualClock> clock;
  Context context;
};

}  // namespace lad::testing
