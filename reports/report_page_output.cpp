#include "reports/report_page_output.h"

#include "reports/picture_size.h"

namespace lad::reports {

namespace {

const drawing::Color kNumberColor{0, 0, 0, 0.8};
const drawing::Shadow kPhotoShadow{{0.7, 0.7, 0.7}, {2, 2}, 3};

}  // namespace

ReportPageOutput::ReportPageOutput(const Context& context, drawing::PdfDocument& pdf,
                                   const PdfSettings& settings, const RowPainter& rows,
                                   std::filesystem::path imagesDir)
    : pdf_(pdf),
      s_(settings),
      rows_(rows),
      caps_(context, settings),
      imagesDir_(std::move(imagesDir)) {}

// pdfNewPage: the frame pictures at the top and bottom, and the page's number, counting the
// title page.
void ReportPageOutput::newPage(bool close) {
  if (close) pdf_.endPage();
  ++pageCount_;
  drawing::Canvas& c = pdf_.canvas();
  const double w = s_.page.w, h = s_.page.h;
  for (const auto& [name, atBottom] :
       {std::pair{"pdftitle-top.jpg", false}, std::pair{"pdftitle-bottom.jpg", true}}) {
    const std::string file = (imagesDir_ / name).string();
    if (const auto size = pictureSize(file)) {
      const double drawn = w * size->height / size->width;
      c.drawImage(file, {0, atBottom ? h - drawn : 0, w, drawn});
    }
  }
  const drawing::Font font{s_.fontsize * 1.2, false};
  c.drawText(std::to_string(pageCount_ + 1), {0, h - 8.7 * s_.ot, w - 2 * s_.ot, s_.fontsize * 2},
             font, kNumberColor, drawing::Align::Right);
}

double ReportPageOutput::dayCap(double y, const Map& day, bool big, bool small) {
  return caps_.draw(pdf_.canvas(), y, day, big, small);
}

double ReportPageOutput::row(double y, const ReportRow& row, std::optional<Date> date) {
  return rows_.drawRow(&pdf_.canvas(), y, row, date);
}

bool ReportPageOutput::photo(const std::string& file,
                             const std::function<std::optional<drawing::Rect>()>& place) {
  if (const auto box = place()) {
    pdf_.canvas().fillShadow(*box, kPhotoShadow);
    pdf_.canvas().drawImage(file, *box);
  }
  return false;
}

void ReportPageOutput::endPages() {
  pdf_.endPage();
}

}  // namespace lad::reports
