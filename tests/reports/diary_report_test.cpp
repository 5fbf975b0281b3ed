#include "reports/diary_report.h"

#include <gmock/gmock.h>

#include "platform/images.h"
#include "reports/pdf_settings.h"
#include "reports/report_input.h"
#include "store/day_photo.h"
#include "tests/reports/pdf_reader.h"
#include "tests/store/day_fixture.h"

namespace lad::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class DiaryReportTest : public DayTest {
 protected:
  // Makes the profile's report, renders its pages for a look, and reads it back.
  PdfFile report(const std::string& name, int year = 1) {
    const auto file = reports::reportFile(*context);
    std::string error;
    EXPECT_TRUE(reports::saveDiaryReport(*store, kGid, year,
                                         reports::diaryReportInput(*store, kGid, year), file,
                                         {LADANEYA_IMAGES_DIR, {}}, &error))
        << error;
    renderPages(file, name);
    auto pdf = readPdf(file);
    EXPECT_TRUE(pdf);
    return pdf.value_or(PdfFile{});
  }
  void pregnancy() {
    openEdition(1);
    addPregnancy(*store, kGid, day(5, 1, 2026), "60");
  }
  void photo(Date on, const platform::Image& image) {
    const auto jpeg = platform::encodeJpeg(image, 80);
    ASSERT_TRUE(saveDayPhoto(*context, on, kGid, jpeg, nullptr));
  }
};

platform::Image grey(int width, int height) {
  return {width, height, std::vector<std::uint8_t>(std::size_t(width) * height * 3, 128)};
}

TEST_F(DiaryReportTest, TitlePageThenTheDaysUnderTheirHeadingsWithPageNumbers) {
  pregnancy();
  put("note", "Первая запись дневника", day(6, 1, 2026));
  put("ves", "61.5", day(13, 1, 2026));
  const PdfFile pdf = report("pregnancy");
  EXPECT_EQ(pdf.title, "Ладанея");
  ASSERT_EQ(pdf.pages.size(), 2u);
  EXPECT_DOUBLE_EQ(pdf.pages[1].width, 1200);
  EXPECT_DOUBLE_EQ(pdf.pages[1].height, 1657);
  // The title page: the day it was made and the expected birth.
  const PdfPage& title = pdf.pages[0];
  EXPECT_THAT(title.text(), HasSubstr("Дата формирования отчета: 30.03.2026"));
  EXPECT_THAT(title.text(), HasSubstr("Приблизительная дата родов: 12.10.2026"));
  // The first page of days: the weeks and the days in order, the number 2 last.
  const PdfPage& days = pdf.pages[1];
  EXPECT_THAT(days.text(), HasSubstr("1 неделя 06 января 2026 Первая запись дневника"));
  EXPECT_EQ(days.words.back().text, "2");
}

TEST_F(DiaryReportTest, AnEmptyDiaryGivesTheTitlePageAndOneEmptyPage) {
  pregnancy();
  const PdfFile pdf = report("empty");
  ASSERT_EQ(pdf.pages.size(), 2u);
  EXPECT_EQ(pdf.pages[1].text(), "2");
  // A second report replaces the first one.
  put("note", "Запись", day(6, 1, 2026));
  EXPECT_THAT(report("empty-again").pages[1].text(), HasSubstr("Запись"));
}

TEST_F(DiaryReportTest, ALongNoteRunsOverPagesWithItsHeadingsOnlyOnTheFirst) {
  pregnancy();
  std::string note;
  for (int i = 1; i <= 900; ++i) note += (i > 1 ? " " : "") + ("слово" + std::to_string(i));
  put("note", note, day(6, 1, 2026));
  put("doctor", "Вопрос к доктору", day(7, 1, 2026));
  const PdfFile pdf = report("long-note");
  ASSERT_GE(pdf.pages.size(), 4u);
  std::string pieces;
  for (std::size_t p = 1; p < pdf.pages.size(); ++p) {
    const PdfPage& page = pdf.pages[p];
    for (const PdfWord& w : page.words)
      if (w.text.starts_with("слово")) pieces += (pieces.empty() ? "" : " ") + w.text;
    const auto first = std::ranges::find_if(
        page.words, [](const PdfWord& w) { return w.text.starts_with("слово"); });
    ASSERT_NE(first, page.words.end());
    if (p > 1) {  // no headings again; each piece stands at the top of its page
      EXPECT_THAT(page.text(), Not(HasSubstr("неделя")));
      EXPECT_NEAR(first->y, 150, 15) << "page " << p + 1;
    }
  }
  EXPECT_EQ(pieces, note);
  EXPECT_EQ(pdf.pages[1].text().find("1 неделя 06 января 2026 слово1 "), 0u);
  // The next day goes on under the last piece.
  EXPECT_THAT(pdf.pages.back().text(), HasSubstr("07 января 2026 Вопрос к доктору"));
}

// The room left for the next day's row under a first day with that note, as the pages count it.
double roomUnder(const Context& context, const std::string& first) {
  const reports::PdfSettings s = reports::pdfPrepare(context, reports::kReportPage);
  const double afterHeadings = s.top() + s.wh + 3 * s.ot + s.dh + s.ot;
  const double y = afterHeadings +
                   reports::textHeight(first, {s.fontsize, false}, s.rowTextWidth()) + s.ot +
                   3 * s.ot;
  return s.page.h - 10 * s.ot - y - (s.dh + s.ot);
}

TEST_F(DiaryReportTest, ARowThatDoesNotFitMovesWholeUnlessMoreThan300AreLeft) {
  std::string later;
  for (int i = 1; i <= 150; ++i) later += (i > 1 ? " " : "") + ("после" + std::to_string(i));
  for (const bool split : {false, true}) {
    pregnancy();
    // The first day's note is as many lines long as leaves just 300 or less, or just more.
    std::string first = "строка";
    while (roomUnder(*context, first + "\nстрока") > 300) first += "\nстрока";
    if (!split) first += "\nстрока";
    ASSERT_EQ(roomUnder(*context, first) > 300, split);
    put("note", first, day(6, 1, 2026));
    put("note", later, day(7, 1, 2026));
    const PdfFile pdf = report(split ? "split-row" : "moved-row");
    ASSERT_GE(pdf.pages.size(), 3u);
    EXPECT_EQ(pdf.pages[1].text().find("после1 ") != std::string::npos, split);
    EXPECT_EQ(pdf.pages[2].text().find("07 января 2026 после1 ") == 0, !split)
        << pdf.pages[2].text();
  }
}

TEST_F(DiaryReportTest, PhotosStandAtTheEndOfTheirDayAndABrokenOneIsLeftOut) {
  pregnancy();
  photo(day(8, 1, 2026), grey(4000, 3000));
  put("note", "С фотографией", day(8, 1, 2026));
  photo(day(9, 1, 2026), grey(300, 600));
  photo(day(11, 1, 2026), grey(300, 600));
  // A photo file that does not read: its day has nothing else and is not shown at all.
  photo(day(10, 1, 2026), grey(10, 10));
  std::ofstream(dayPhotoFiles(*context, day(10, 1, 2026), kGid).full) << "no picture";
  const PdfFile pdf = report("photos");
  ASSERT_GE(pdf.pages.size(), 3u);
  EXPECT_THAT(pdf.pages[1].text(), HasSubstr("08 января 2026 С фотографией"));
  EXPECT_THAT(pdf.pages[1].text(), HasSubstr("09 января 2026"));
  // The third photo does not fit under the others and opens a page with its day's heading.
  EXPECT_THAT(pdf.pages[2].text(), HasSubstr("11 января 2026"));
  for (const PdfPage& page : pdf.pages) EXPECT_THAT(page.text(), Not(HasSubstr("10 января")));
}

TEST_F(DiaryReportTest, TheChildAndCycleEditionsHeadTheirMonths) {
  openEdition(2);
  addChild(*store, kGid, day(10, 1, 2026), "3.2", "50");
  put("note", "Первая улыбка", day(20, 2, 2026));
  const PdfFile pdf = report("child");
  ASSERT_EQ(pdf.pages.size(), 2u);
  // The child's year ends on the day before the birthday.
  EXPECT_THAT(pdf.pages[0].text(), HasSubstr("Период отчета: 10.01.2026 - 09.01.2027"));
  EXPECT_THAT(pdf.pages[1].text(), HasSubstr("2-й месяц"));

  openEdition(3);
  put("note", "Спокойный день", day(12, 3, 2026));
  EXPECT_THAT(report("cycle", 2026).pages.at(1).text(), HasSubstr("Март"));
}

TEST_F(DiaryReportTest, AFileThatCannotBeWrittenLeavesNothingBehind) {
  pregnancy();
  const auto missing = dir.path() / "no-such-folder" / "report.pdf";
  std::string error;
  EXPECT_FALSE(reports::saveDiaryReport(*store, kGid, 1, reports::diaryReportInput(*store, kGid, 1),
                                        missing, {LADANEYA_IMAGES_DIR, {}}, &error));
  EXPECT_THAT(error, HasSubstr("report.pdf"));
  EXPECT_FALSE(std::filesystem::exists(missing.parent_path()));
  EXPECT_EQ(reports::getReportSize(missing), 0);
  const auto file = reports::reportFile(*context);
  std::ofstream(file) << std::string(3 * 1048576 + 10, 'x');
  EXPECT_EQ(reports::getReportSize(file), 3);
}

}  // namespace
}  // namespace lad::testing
