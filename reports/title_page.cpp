#include "reports/title_page.h"

#include "core/context.h"

namespace lad::reports {

namespace {

constexpr double kCaptionSize = 70;
constexpr double kMeasureWidth = 2000;
const drawing::Color kTitleBlack{0, 0, 0, 0.8};
const drawing::Color kCycleCaption{0.3529, 0.2039, 0.0784};

// How many of the pairs "cap1"/"val1" ... the edition's title page shows.
int pairsOf(int appid) {
  if (isChildEdition(appid)) return 3;
  if (isCycleEdition(appid)) return 1;
  return 2;
}

}  // namespace

double drawTitlePart(drawing::Canvas& canvas, const PdfSettings& s, double y,
                     const std::string& caption, const std::string& value) {
  const double h = pdfStringHeight("99", kMeasureWidth, s.fontsize, 0);
  const double half = s.page.w / 2;
  const drawing::Font plain{s.fontsize, false}, bold{s.fontsize, true};
  canvas.drawText(cutInMiddle(caption, plain, half), {0, y, half, h}, plain, kTitleBlack,
                  drawing::Align::Right);
  const double valueWidth = half - 5 * s.ot;
  canvas.drawText(cutInMiddle(value, bold, valueWidth), {half + s.ot, y, valueWidth, h}, bold,
                  {0, 0, 0}, drawing::Align::Left);
  return y + h + s.ot;
}

void drawTitlePage(drawing::Canvas& canvas, const Context& context, const PdfSettings& s,
                   const std::filesystem::path& imagesDir, const Map& dic) {
  canvas.drawImage((imagesDir / "pdftitle.jpg").string(), {0, 0, s.page.w, s.page.h});
  const int appid = context.values().appid;
  const std::string caption = dic["caption"].text();
  const drawing::Font font{kCaptionSize, true};
  const double captionHeight = pdfStringHeight(caption, kMeasureWidth, kCaptionSize, 0);
  const double captionWidth = s.page.w - 10 * s.ot;
  canvas.drawText(cutInMiddle(caption, font, captionWidth),
                  {32 * s.ot, s.page.h / 2 - 6 * s.ot, captionWidth, captionHeight}, font,
                  isCycleEdition(appid) ? kCycleCaption : kTitleBlack, drawing::Align::Left);
  double y = s.page.h / 2 + captionHeight + 5 * s.ot;
  y = drawTitlePart(canvas, s, y, context.translate("Дата формирования отчета:"),
                    context.dates().dateToString(context.clock().now(), "dd.MM.yyyy"));
  for (int pair = 1; pair <= pairsOf(appid); ++pair) {
    const std::string n = std::to_string(pair);
    y = drawTitlePart(canvas, s, y, dic["cap" + n].text(), dic["val" + n].text());
  }
}

}  // namespace lad::reports
