// The page and type of the PDF reports, and the text measures that all their layout rests on.
#pragma once

#include <string>
#include <string_view>

#include "core/text_split.h"
#include "drawing/geometry.h"

namespace lad {
class Context;
}

namespace lad::reports {

// The page of every report, in PDF units.
inline constexpr drawing::Size kReportPage{1200, 1657};

struct PdfSettings {
  drawing::Size page = kReportPage;
  double ot = 15;  // the base distance: margins are multiples of it
  double imsize = 500;
  double fontsize = 25;
  double weekfontsize = 35;
  double yearfontsize = 40;
  double iconsize = 40;
  drawing::Color textcolor{0, 0, 0};
  drawing::Color text2color{0.5, 0.5, 0.5};
  drawing::Color captioncolor{0.2, 0.2, 0.2};
  drawing::Color caption2color{0.4, 0.4, 0.4};
  double wh = 0;  // height of a week heading
  double dh = 0;  // height of a date heading

  // The vertical working range of a page.
  double top() const { return 10 * ot; }
  double bottom() const { return page.h - 10 * ot; }
  // Where a row's text begins, and how wide it is.
  double rowTextX() const { return 11 * ot + iconsize; }
  double rowTextWidth() const { return page.w - 20 * ot - iconsize - ot; }
};

// The settings of a report on pages of that size.
PdfSettings pdfPrepare(const Context& context, drawing::Size page);

// Sets the heights of the week and date headings from the settings' type sizes.
void measureHeadings(const Context& context, PdfSettings& s);

// The height of the text wrapped in the width, plus 1; 0 for no text.
double textHeight(std::string_view text, drawing::Font f, double width);

// The measured height of the text in plain type, plus a quarter of the minimum, cut to whole
// units, but not less than the minimum; 0 for no text.
double pdfStringHeight(std::string_view text, double width, double fontsize, int minheight);

// The text on one line in the width: as it is when it fits, else with its middle replaced by
// "…" so that its beginning and end stay.
std::string cutInMiddle(std::string_view text, drawing::Font f, double width);

// Measures as the rows of a report draw their text.
class RowTextMeasurer : public TextMeasurer {
 public:
  explicit RowTextMeasurer(double fontsize) : fontsize_(fontsize) {}
  double textHeight(std::string_view text, double width) const override;

 private:
  double fontsize_;
};

}  // namespace lad::reports
