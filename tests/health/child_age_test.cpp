#include "health/child_age.h"

#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using testing::HealthTest;

class MonthAge : public HealthTest {};

TEST_F(MonthAge, YearsMonthsAndDaysInCalendarUnits) {
  struct Case {
    const char* from;
    const char* to;
    const char* text;
  };
  const Case cases[] = {
      {"2025-01-10", "2026-03-13", "1 год, 2 месяца и 3 дня"},
      {"2025-01-10", "2026-03-10", "1 год и 2 месяца"},
      {"2025-01-10", "2025-01-11", "1 день"},
      {"2025-01-10", "2025-01-31", "21 день"},
      {"2025-01-10", "2025-02-01", "22 дня"},
      {"2025-01-10", "2025-01-21", "11 дней"},
      {"2021-01-10", "2026-01-10", "5 лет"},
      {"2024-01-10", "2026-01-12", "2 года и 2 дня"},
      {"2025-01-10", "2025-12-10", "11 месяцев"},
      {"2026-03-28", "2026-04-28 00:30", "1 месяц"},  // over the 23-hour day
      {"2026-10-24 22:00", "2026-11-24 00:30", "1 месяц"},
      {"2026-01-31", "2026-02-28", "1 месяц"},
      {"2024-02-29", "2025-03-28", "1 год и 1 месяц"},  // a year from 29 February ends on the 28th
      {"2024-02-29", "2025-03-01", "1 год и 1 день"},
      {"2026-05-10", "2026-03-05", ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(monthAge(context, at(c.from), at(c.to), false, false), c.text)
        << c.from << " " << c.to;
}

TEST_F(MonthAge, FlagsForNoDaysAndForTheFirstDay) {
  struct Case {
    const char* from;
    const char* to;
    bool noempty, nodays;
    const char* text;
  };
  const Case cases[] = {
      {"2026-03-29", "2026-03-29 23:00", true, false, "Только что родился"},
      {"2026-03-29", "2026-03-29 23:00", false, false, ""},
      {"2026-03-29", "2026-03-24", true, false, "Только что родился"},
      {"2025-01-10", "2026-03-13", false, true, "1 год, 2 месяца"},
      {"2026-03-10", "2026-03-13", true, true, ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(monthAge(context, at(c.from), at(c.to), c.noempty, c.nodays), c.text)
        << c.from << " " << c.to << " " << c.noempty << c.nodays;
}

}  // namespace
}  // namespace lad::health
