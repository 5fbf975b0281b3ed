#include "reports/day_caps.h"

#include "core/context.h"
#include "core/date_names.h"
#include "core/text_fill.h"

namespace lad::reports {

double dayCapEnd(const PdfSettings& s, double y, bool big, bool small) {
  if (big) y += s.wh + 3 * s.ot;
  if (small) y += s.dh + s.ot;
  return y;
}

DayCapPainter::DayCapPainter(const Context& context, const PdfSettings& settings)
    : context_(context), s_(settings) {}

std::string DayCapPainter::groupHeading(const Map& day) const {
  const int appid = context_.values().appid;
  if (isChildEdition(appid))
    return fillIn(context_.translate("%d-й месяц"), day["month"].intValue());
  if (isCycleEdition(appid))
    return capitalizeFirst(
        monthName(static_cast<int>(day["group"].intValue()), context_.translator()));
  return fillIn(context_.translate("%d неделя"), day["group"].intValue());
}

double DayCapPainter::draw(drawing::Canvas& canvas, double y, const Map& day, bool big,
                           bool small) const {
  const double width = s_.page.w - 20 * s_.ot;
  if (big)
    canvas.drawText(groupHeading(day), {10 * s_.ot, y, width, s_.wh}, {s_.weekfontsize, true},
                    s_.captioncolor, drawing::Align::Left);
  if (small)
    canvas.drawText(day["day"].text(), {10 * s_.ot, dayCapEnd(s_, y, big, false), width, s_.dh},
                    {s_.fontsize, true}, s_.caption2color, drawing::Align::Left);
  return dayCapEnd(s_, y, big, small);
}

}  // namespace lad::reports
