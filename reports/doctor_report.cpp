#include "reports/doctor_report.h"

#include <cmath>

#include "core/context.h"
#include "core/json_text.h"
#include "core/text_fill.h"
#include "drawing/pdf_document.h"
#include "reports/pdf_settings.h"
#include "store/day_loader.h"
#include "store/day_regims.h"
#include "store/store.h"
#include "store/values/value_conversion.h"

namespace lad::reports {

namespace {

struct Column {
  const char* title;
  double x, w;
};

struct Kind {
  const char* file;
  const char* title;
  const char* heading;
  const char* icon;
  const char* field;
  std::vector<Column> columns;
};

const Kind& kindOf(DoctorReport kind) {
  static const Kind pressure{"pressure.pdf",
                             "Отчет по замерам давления",
                             "Отчет по замерам давления\nза %@",
                             "pdf-pressure.png",
                             "pressure",
                             {{"Давление", 400, 200}, {"Комментарий", 600, 500}}};
  static const Kind fluid{
      "water.pdf",
      "Отчет по употреблению жидкостей",
      "Отчет по употреблению жидкостей\nза %@",
      "pdf-zhid.png",
      "zhid",
      {{"Выпито (мил.)", 200, 200}, {"Выделено (мил.)", 400, 200}, {"Комментарий", 600, 500}}};
  return kind == DoctorReport::Pressure ? pressure : fluid;
}

constexpr double kIconSide = 160;
constexpr double kHeadingSize = 40;
constexpr double kTableSize = 30;
const drawing::Color kHeadingColor{0, 0, 0, 0.8};
const drawing::Color kBlack{0, 0, 0};

// The day's entries of the field in the current form, also when they were stored in the old one.
List entriesOf(Store& store, DoctorReport kind, Date date, const std::string& gid) {
  const int appid = store.context().values().appid;
  if (dayEdition(appid) != DayEdition::Pregnancy) return {};
  const List days = loadNoteData(store, kOneDayRegim, 0, date, gid);
  if (days.empty()) return {};
  const std::string value = days.front()[kindOf(kind).field].text();
  const Value entries = jsonToArray(
      jsonIs(value) ? value : oldValueToJson(appid, kindOf(kind).field, value, nullptr));
  return entries.asList() ? *entries.asList() : List{};
}

class DoctorPage {
 public:
  DoctorPage(drawing::Canvas& canvas, const Context& context, DoctorReport kind)
      : c_(canvas), context_(context), kind_(kind), k_(kindOf(kind)) {}

  void draw(const std::filesystem::path& imagesDir, Date date, const List& entries) {
    const double w = kReportPage.w;
    c_.drawImage((imagesDir / k_.icon).string(), {(w - kIconSide) / 2, 70, kIconSide, kIconSide});
    const std::string heading =
        fillIn(context_.translate(k_.heading), {context_.dates().dateToString(date, "dd.MM.yyyy")});
    const double top = 230 + 3 * kOt;
    const drawing::Font headingFont{kHeadingSize, false};
    const double headingHeight = textHeight(heading, headingFont, w);
    c_.drawText(heading, {0, top, w, headingHeight}, headingFont, kHeadingColor,
                drawing::Align::Center);
    double y = top + headingHeight + 4 * kOt;
    for (const Column& column : k_.columns)
      text(context_.translate(column.title), column.x, y, column.w);
    y = rule(y);
    double drunk = 0, passed = 0;
    for (const Value& entry : entries) {
      if (kind_ == DoctorReport::Pressure) {
        text(entry["time"].text(), 200, y, 100);
        text(entry["pressure1"].text() + "/" + entry["pressure2"].text(), 400, y, 200);
      } else {
        text(entry["in"].text(), 200, y, 200);
        text(entry["out"].text(), 400, y, 200);
        drunk += std::trunc(entry["in"].doubleValue());
        passed += std::trunc(entry["out"].doubleValue());
      }
      const std::string comment = entry["comment"].text();
      c_.drawText(comment, {600, y, 500, textHeight(comment, font(), 500)}, font(), kBlack,
                  drawing::Align::Left);
      y += line() + kOt;
    }
    if (kind_ != DoctorReport::Fluid) return;
    y = rule(y);
    text(context_.translate("Итого"), 600, y, 100);
    text(formatFixed(drunk, 0), 200, y, 200);
    text(formatFixed(passed, 0), 400, y, 200);
  }

 private:
  static constexpr double kOt = 15;
  static drawing::Font font() { return {kTableSize, false}; }
  double line() const { return textHeight("Давление", font(), kReportPage.w); }

  void text(const std::string& t, double x, double y, double w) {
    c_.drawText(t, {x, y, w, line()}, font(), kBlack, drawing::Align::Left);
  }
  // A rule under a line of the table from y; the y where the next line starts.
  double rule(double y) {
    const double at = y + line() + 2 * kOt;
    drawing::Path path;
    path.moveTo({100, at});
    path.lineTo({1100, at});
    c_.strokePath(path, kBlack, 1);
    return at + kOt;
  }

  drawing::Canvas& c_;
  const Context& context_;
  DoctorReport kind_;
  const Kind& k_;
};

}  // namespace

std::filesystem::path doctorReportFile(const Context& context, DoctorReport kind) {
  return context.documentsDir() / kindOf(kind).file;
}

bool saveDoctorReport(Store& store, DoctorReport kind, Date date, const std::string& gid,
                      const std::filesystem::path& imagesDir, const std::filesystem::path& target,
                      std::string* error) {
  const Context& context = store.context();
  const List entries = entriesOf(store, kind, date, gid);
  const std::string title = context.translate(kindOf(kind).title);
  drawing::PdfDocument pdf(target, kReportPage, title, title);
  DoctorPage(pdf.canvas(), context, kind).draw(imagesDir, date, entries);
  pdf.endPage();
  return pdf.finish(error);
}

}  // namespace lad::reports
