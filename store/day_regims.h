// What a load of diary days wants, by edition and regim: which records, whether the days
// without records are filled in, which of those are kept, and whether display strings are made
// at once.
#pragma once

namespace lad {

enum class DayEdition { Pregnancy, Child, Woman };

// appid 1 and 14 keep a pregnancy, 2 a child, 3 the woman's cycle.
DayEdition dayEdition(int appid);

enum class DayRows {
  All,
  Weight,        // ves only
  Height,        // rost only
  NoAlarm,       // all but alarm
  NoAlarmPills,  // all but alarm and pills
  Temperature,   // temp only, one entry per measurement
  Counts,        // counts of records per day
};

struct DayRegim {
  DayRows rows = DayRows::All;
  bool fill = false;     // the days between records are made
  bool keepAll = false;  // every made day is kept, not only those with a photo
  bool simple = true;    // display strings wait until the day is shown
};

// The plan of a regim; an unknown regim loads all records and fills nothing.
DayRegim dayRegim(DayEdition edition, int regim);

// The single day regim of every edition.
inline constexpr int kOneDayRegim = 2;
// The regim of the counts per day; it exists in the pregnancy editions only.
bool isCountsRegim(DayEdition edition, int regim);
// The regims of the PDF reports, which show the full picture of a day.
bool isReportRegim(DayEdition edition, int regim);

}  // namespace lad
