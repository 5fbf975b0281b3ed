#include "store/day_regims.h"

#include "core/edition.h"

namespace lad {

namespace {

struct RegimRow {
  DayEdition edition;
  int regim;
  DayRegim plan;
};

using R = DayRows;
constexpr DayEdition P = DayEdition::Pregnancy;
constexpr DayEdition C = DayEdition::Child;
constexpr DayEdition W = DayEdition::Woman;

// {rows, fill, keepAll, simple}
constexpr RegimRow kRegims[] = {
    {P, 1, {R::All, true, false, true}},      {P, 2, {R::All, false, false, true}},
    {P, 3, {R::Weight, false, false, true}},  {P, 4, {R::All, true, false, false}},
    {P, 5, {R::All, true, true, false}},      {P, 8, {R::NoAlarmPills, true, false, false}},
    {P, 9, {R::Counts, true, false, true}},   {C, 1, {R::All, true, false, true}},
    {C, 2, {R::All, false, false, true}},     {C, 3, {R::Weight, false, false, true}},
    {C, 4, {R::Height, false, false, true}},  {C, 5, {R::All, true, true, false}},
    {C, 6, {R::NoAlarm, true, false, false}}, {C, 8, {R::NoAlarmPills, true, false, false}},
    {W, 1, {R::All, true, false, true}},      {W, 2, {R::All, false, false, true}},
    {W, 3, {R::NoAlarm, true, false, false}}, {W, 4, {R::All, true, true, false}},
    {W, 5, {R::Weight, false, false, true}},  {W, 6, {R::Temperature, false, false, true}},
};

}  // namespace

DayEdition dayEdition(int appid) {
  if (isChildEdition(appid)) return DayEdition::Child;
  if (isCycleEdition(appid)) return DayEdition::Woman;
  return DayEdition::Pregnancy;
}

DayRegim dayRegim(DayEdition edition, int regim) {
  for (const RegimRow& row : kRegims)
    if (row.edition == edition && row.regim == regim) return row.plan;
  return {};
}

bool isCountsRegim(DayEdition edition, int regim) {
  return edition == P && regim == 9;
}

bool isReportRegim(DayEdition edition, int regim) {
  return (edition == P && regim == 4) || (edition == C && regim == 6) ||
         (edition == W && regim == 3);
}

}  // namespace lad
