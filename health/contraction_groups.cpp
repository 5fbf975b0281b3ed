#include "health/contraction_groups.h"

#include "health/contraction_period.h"

namespace lad::health {

namespace {

constexpr std::int64_t kGroupBreak = 3600;

void closeGroup(ContractionGroup& g, int count, Date lastEnd, const DateCodec& dates) {
  g.count = count;
  g.name += "-" + dates.dateToString(lastEnd, "dd.MM.yy HH:mm");
}

}  // namespace

std::vector<ContractionGroup> recountOst(std::vector<Contraction>& list, const DateCodec& dates) {
  std::vector<ContractionGroup> groups;
  int count = 0;
  for (std::size_t i = 0; i < list.size(); ++i) {
    Contraction& c = list[i];
    if (i == 0) {
      // The first group's name has always used the 12-hour clock.
      c.len2 = 0;
      groups.push_back({dates.dateToString(c.start, "dd.MM.yy hh:mm"), 1});
      count = 1;
      continue;
    }
    c.len2 = secondsBetween(list[i - 1].end, c.start);
    if (c.len2 > kGroupBreak) {
      closeGroup(groups.back(), count, list[i - 1].end, dates);
      c.len2 = 0;
      groups.push_back({dates.dateToString(c.start, "dd.MM.yy HH:mm"), 1});
      count = 1;
    } else {
      ++count;
    }
  }
  if (count > 1) closeGroup(groups.back(), count, list.back().end, dates);
  return groups;
}

ContractionRowText rowText(const Contraction& c, const Context& context) {
  const std::string pause = cperiod(c.len2);
  std::string pauseText = context.translate("первая схватка в группе");
  if (pause != "00:00") {
    pauseText = context.translate("через %@");
    if (const auto at = pauseText.find("%@"); at != std::string::npos)
      pauseText.replace(at, 2, pause);
  }
  return {cperiod(c.len), context.dates().dateToString(c.start, "dd.MM.yyyy HH:mm:ss"), pauseText};
}

std::size_t positionOf(const std::vector<ContractionGroup>& groups, std::size_t section,
                       std::size_t row) {
  std::size_t before = 0;
  for (std::size_t i = 0; i < section && i < groups.size(); ++i)
    before += static_cast<std::size_t>(groups[i].count);
  return before + row;
}

}  // namespace lad::health
