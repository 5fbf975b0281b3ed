#include "reports/pdf_settings.h"

#include "core/context.h"
#include "core/text_fill.h"
#include "drawing/text_measure.h"

namespace lad::reports {

namespace {

// The byte offsets at which the UTF-8 characters of the text begin.
std::vector<std::size_t> characterStarts(std::string_view text) {
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i)
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) starts.push_back(i);
  return starts;
}

// The first half of `kept` characters, "…", and the second half.
std::string keepEnds(std::string_view text, const std::vector<std::size_t>& starts,
                     std::size_t kept) {
  const std::size_t head = (kept + 1) / 2, tail = kept / 2;
  return std::string(text.substr(0, starts[head])) + "…" +
         std::string(text.substr(starts[starts.size() - tail]));
}

}  // namespace

PdfSettings pdfPrepare(const Context& context, drawing::Size page) {
  PdfSettings s;
  s.page = page;
  measureHeadings(context, s);
  return s;
}

void measureHeadings(const Context& context, PdfSettings& s) {
  const std::string week = fillIn(context.translate("%d неделя"), 1);
  s.wh = pdfStringHeight(week, s.page.w, s.weekfontsize, 10);
  s.dh = pdfStringHeight(week, s.page.w, s.fontsize, 10);
}

double textHeight(std::string_view text, drawing::Font f, double width) {
  if (text.empty()) return 0;
  return drawing::measureText(text, f, width).h + 1;
}

double pdfStringHeight(std::string_view text, double width, double fontsize, int minheight) {
  if (text.empty()) return 0;
  const double a = textHeight(text, {fontsize, false}, width) + minheight / 4;
  return a > minheight ? static_cast<int>(a) : minheight;
}

std::string cutInMiddle(std::string_view text, drawing::Font f, double width) {
  if (drawing::measureText(text, f).w <= width) return std::string(text);
  const std::vector<std::size_t> starts = characterStarts(text);
  // The most characters that still fit with "…" between them.
  std::size_t fits = 0, tooMany = starts.size();
  while (tooMany - fits > 1) {
    const std::size_t kept = (fits + tooMany) / 2;
    (drawing::measureText(keepEnds(text, starts, kept), f).w <= width ? fits : tooMany) = kept;
  }
  return keepEnds(text, starts, fits);
}

double RowTextMeasurer::textHeight(std::string_view text, double width) const {
  return reports::textHeight(text, {fontsize_, false}, width);
}

}  // namespace lad::reports
