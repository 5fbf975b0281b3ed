#include "reports/pdf_rows.h"

#include <system_error>

#include "drawing/text_measure.h"
#include "store/values/list_codecs.h"

namespace lad::reports {

namespace {

bool isSentenceLines(int tp) {
  return tp == 23 || tp == 29;
}

bool isFile(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::is_regular_file(file, error);
}

}  // namespace

bool isTimedLines(int tp) {
  return tp == 4 || tp == 5 || tp == 30 || tp == 31;
}

RowShape rowShape(int tp) {
  if (tp == 100) return RowShape::Photo;
  return isTimedLines(tp) || isSentenceLines(tp) ? RowShape::Lines : RowShape::Plain;
}

std::string rowIconFile(const std::filesystem::path& imagesDir, const std::string& pic) {
  if (pic.empty()) return "";
  for (const auto& name : {"c-" + pic, pic})
    if (isFile(imagesDir / name)) return (imagesDir / name).string();
  return "";
}

RowPainter::RowPainter(const Context& context, const PdfSettings& settings,
                       std::filesystem::path imagesDir, const List& listData)
    : context_(context),
      s_(settings),
      imagesDir_(std::move(imagesDir)),
      listData_(listData),
      lineHeight_(textHeight("99", {settings.fontsize, false}, settings.rowTextWidth())),
      timeWidth_(
          drawing::measureText("99:99 ", {settings.fontsize, false}, settings.rowTextWidth()).w) {}

double RowPainter::drawRow(drawing::Canvas* canvas, double y, const ReportRow& row,
                           std::optional<Date> date) const {
  if (isTimedLines(row.tp)) return drawMulti(canvas, y, row);
  if (isSentenceLines(row.tp)) return drawMulti2(canvas, y, row, date);
  if (row.tp == 100) return y;
  return drawPart(canvas, y, row.pic, row.text);
}

// Drawing adds the distance under a row to what measuring gives, for a row with a value.
double RowPainter::drawnEnd(double y, const ReportRow& row, std::optional<Date> date) const {
  const double end = drawRow(nullptr, y, row, date);
  const RowShape shape = rowShape(row.tp);
  const std::string& value = shape == RowShape::Lines ? row.source : row.text;
  return shape == RowShape::Photo || value.empty() ? end : end + s_.ot;
}

void RowPainter::drawIcon(drawing::Canvas& canvas, double y, const std::string& pic) const {
  const std::string file = rowIconFile(imagesDir_, pic);
  if (!file.empty()) canvas.drawImage(file, {10 * s_.ot, y, s_.iconsize, s_.iconsize});
}

double RowPainter::drawPart(drawing::Canvas* canvas, double y, const std::string& pic,
                            const std::string& text) const {
  if (text.empty()) return y;
  const drawing::Font font{s_.fontsize, false};
  const double h = textHeight(text, font, s_.rowTextWidth());
  if (!canvas) return y + h;
  drawIcon(*canvas, y, pic);
  canvas->drawText(text, {s_.rowTextX(), y + (s_.iconsize - lineHeight_) / 2, s_.rowTextWidth(), h},
                   font, s_.textcolor, drawing::Align::Left);
  return y + h + s_.ot;
}

double RowPainter::drawMulti(drawing::Canvas* canvas, double y, const ReportRow& row) const {
  if (row.source.empty()) return y;
  const drawing::Font font{s_.fontsize, false};
  const double textWidth = s_.rowTextWidth() - timeWidth_;
  if (canvas) drawIcon(*canvas, y, row.pic);
  for (const Value& line : multiFromString(row.source, row.tp)) {
    const std::string text = line["cap"].text();
    const double h = textHeight(text, font, textWidth);
    if (canvas) {
      const double top = y + s_.ot / 2;
      canvas->drawText(line["time"].text(), {s_.rowTextX(), top, timeWidth_, h}, font,
                       s_.text2color, drawing::Align::Left);
      canvas->drawText(text, {s_.rowTextX() + timeWidth_, top, textWidth, h}, font, s_.textcolor,
                       drawing::Align::Left);
    }
    y += h;
  }
  return canvas ? y + s_.ot : y;
}

double RowPainter::drawMulti2(drawing::Canvas* canvas, double y, const ReportRow& row,
                              std::optional<Date> date) const {
  if (row.source.empty()) return y;
  const drawing::Font font{s_.fontsize, false};
  List lines;
  multi2FromString(context_, lines, row.source, listData_, row.tp, date);
  if (canvas) drawIcon(*canvas, y, row.pic);
  for (const Value& line : lines) {
    const std::string text = line["text"].text();
    const double h = textHeight(text, font, s_.rowTextWidth());
    if (canvas)
      canvas->drawText(text, {s_.rowTextX(), y + s_.ot / 2, s_.rowTextWidth(), h}, font,
                       s_.textcolor, drawing::Align::Left);
    y += h;
  }
  return canvas ? y + s_.ot : y;
}

}  // namespace lad::reports
