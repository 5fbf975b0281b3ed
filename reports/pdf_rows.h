// The rows of a day in the diary report: an icon and a wrapped text, or an icon and lines with
// a time column, or an icon and the sentences of a structured value. Each drawing function
// takes the y of the row and gives the y behind it; with no canvas it only measures.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/dates.h"
#include "core/value.h"
#include "drawing/canvas.h"
#include "reports/pdf_settings.h"

namespace lad::reports {

// One filled field of a day, as the report draws it.
struct ReportRow {
  int tp = 0;
  std::string pic;
  std::string text;    // the display form: what a plain row shows
  std::string source;  // the stored value: what the line kinds read
};

enum class RowShape { Plain, Lines, Photo };
RowShape rowShape(int tp);
// The rows of lines with a time column; the other rows of lines read structured values.
bool isTimedLines(int tp);

// The picture file of a row's icon: its "c-" form when there is one, else the plain one; empty
// when neither exists.
std::string rowIconFile(const std::filesystem::path& imagesDir, const std::string& pic);

class RowPainter {
 public:
  RowPainter(const Context& context, const PdfSettings& settings, std::filesystem::path imagesDir,
             const List& listData);

  // Any row by its kind; a photo row draws nothing.
  double drawRow(drawing::Canvas* canvas, double y, const ReportRow& row,
                 std::optional<Date> date) const;
  // The y that drawing the row would give, without drawing it.
  double drawnEnd(double y, const ReportRow& row, std::optional<Date> date) const;
  // drawPDFPart: a plain row whose first line stands centred on the icon.
  double drawPart(drawing::Canvas* canvas, double y, const std::string& pic,
                  const std::string& text) const;

 private:
  double drawMulti(drawing::Canvas* canvas, double y, const ReportRow& row) const;
  double drawMulti2(drawing::Canvas* canvas, double y, const ReportRow& row,
                    std::optional<Date> date) const;
  void drawIcon(drawing::Canvas& canvas, double y, const std::string& pic) const;

  const Context& context_;
  const PdfSettings& s_;
  std::filesystem::path imagesDir_;
  const List& listData_;
  double lineHeight_;  // of "99": a line of row text
  double timeWidth_;   // of "99:99 ": the time column
};

}  // namespace lad::reports
