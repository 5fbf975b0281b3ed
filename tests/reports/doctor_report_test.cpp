#include "reports/doctor_report.h"

#include <gmock/gmock.h>

#include "tests/reports/pdf_reader.h"
#include "tests/store/day_fixture.h"

namespace lad::testing {
namespace {

using reports::DoctorReport;
using ::testing::HasSubstr;
using ::testing::Not;

class DoctorReportTest : public DayTest {
 protected:
  PdfFile report(DoctorReport kind, const std::string& name) {
    const auto file = reports::doctorReportFile(*context, kind);
    std::string error;
    EXPECT_TRUE(reports::saveDoctorReport(*store, kind, day(6, 1, 2026), kGid, LADANEYA_IMAGES_DIR,
                                          file, &error))
        << error;
    renderPages(file, name);
    auto pdf = readPdf(file);
    EXPECT_TRUE(pdf && pdf->pages.size() == 1);
    return pdf.value_or(PdfFile{{}, {}, {PdfPage{}}});
  }
};

TEST_F(DoctorReportTest, PressureMeasurementsOfTheDayInATable) {
  openEdition(1);
  put("pressure",
      R"([{"time":"08:00","pressure1":"120","pressure2":"80","comment":"после сна"},)"
      R"({"time":"20:30","pressure1":"135","pressure2":"90","comment":""}])",
      day(6, 1, 2026));
  put("pressure", R"([{"time":"09:00","pressure1":"110","pressure2":"70","comment":""}])",
      day(7, 1, 2026));
  const PdfFile pdf = report(DoctorReport::Pressure, "pressure");
  EXPECT_EQ(pdf.title, "Отчет по замерам давления");
  const PdfPage& page = pdf.pages[0];
  EXPECT_THAT(page.text(), HasSubstr("Отчет по замерам давления за 06.01.2026 Давление Комментарий "
                                     "08:00 120/80 после сна 20:30 135/90"));
  EXPECT_THAT(page.text(), Not(HasSubstr("110/70")));
  // One measurement's line under another.
  const PdfWord* first = page.find("120/80");
  const PdfWord* second = page.find("135/90");
  ASSERT_TRUE(first && second);
  EXPECT_GT(second->y, first->y + 30);
}

TEST_F(DoctorReportTest, FluidsAddUpTheirWholeMillilitresAlsoFromTheOldForm) {
  openEdition(1);
  put("zhid", "10:00<table>250.7<table>200<table>утро<end>14:00<table>300<table>100.9<table>",
      day(6, 1, 2026));
  const PdfPage page = report(DoctorReport::Fluid, "water").pages[0];
  EXPECT_THAT(page.text(), HasSubstr("250.7 200 утро 300 100.9"));
  const PdfWord* total = page.find("Итого");
  const PdfWord* drunk = page.find("550");
  const PdfWord* passed = page.find("300");
  ASSERT_TRUE(total && drunk && passed);
  EXPECT_NEAR(drunk->y, total->y, 2);
  EXPECT_NEAR(page.words.back().y, total->y, 2);
  EXPECT_EQ(page.words.back().text, "Итого");
}

TEST_F(DoctorReportTest, OtherEditionsGetTheHeadingAndAnEmptyTable) {
  openEdition(2);
  const PdfPage page = report(DoctorReport::Fluid, "water-child").pages[0];
  EXPECT_EQ(page.text(),
            "Отчет по употреблению жидкостей за 06.01.2026 Выпито (мил.) Выделено (мил.) "
            "Комментарий 0 0 Итого");
}

}  // namespace
}  // namespace lad::testing
