#include "shell/cycle/cycle_marks.h"

#include "core/context.h"
#include "core/text_fill.h"
#include "core/word_forms.h"

namespace lad::shell {

using health::CyclePhase;

std::string phaseName(CyclePhase phase) {
  switch (phase) {
    case CyclePhase::Period:
      return "period";
    case CyclePhase::Ovulation:
      return "ovulation";
    case CyclePhase::Pregnancy:
      return "pregnancy";
    case CyclePhase::Ordinary:
      break;
  }
  return "";
}

namespace {
constexpr int kLongestCycleShown = 60;
}  // namespace

int shownCycleDay(const health::CycleDay& day) {
  return day.cycleDay <= kLongestCycleShown ? day.cycleDay : 0;
}

std::optional<CycleMarkView> cycleMark(const Context& context, const health::CycleDay& day,
                                       std::string target) {
  CycleMarkView mark{phaseName(day.phase), day.open, "", std::move(target)};
  if (day.phase == CyclePhase::Pregnancy)
    mark.caption = context.translate("Беременность");
  else if (shownCycleDay(day) > 0)
    mark.caption = fillIn(context.translate("%d-й день цикла"), day.cycleDay);
  else
    return std::nullopt;
  return mark;
}

std::string cycleSummary(const Context& context, const health::CycleDay& today) {
  if (today.phase == CyclePhase::Pregnancy) return context.translate("Отмечена беременность.");
  if (today.cycleDay <= 0) return "";
  if (today.cycleDay == 1) return context.translate("Сегодня первый день цикла.");
  const int passed = today.cycleDay - 1;
  const std::string since =
      fillIn(context.translate("с первого дня последних месячных %@ %d %@"),
             {rusForms(passed, "прошел", "прошло", "прошло"), std::to_string(passed),
              rusForms(passed, "день", "дня", "дней")});
  if (shownCycleDay(today) == 0) return capitalizeFirst(since) + ".";
  return fillIn(context.translate("Сегодня %d-й день цикла"), today.cycleDay) + ": " + since + ".";
}

}  // namespace lad::shell
