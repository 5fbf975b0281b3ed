// The photo book made from a diary: the recorded pages, the pages drawn, and book.pdf.
#include <gmock/gmock.h>

#include <fstream>

#include "core/atomic_file.h"
#include "platform/images.h"
#include "reports/book_job.h"
#include "reports/book_pdf.h"
#include "reports/diary_pages.h"
#include "reports/report_days.h"
#include "store/day_photo.h"
#include "tests/reports/pdf_reader.h"
#include "tests/store/day_fixture.h"

namespace lad::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class BookTest : public DayTest {
 protected:
  void pregnancy() {
    openEdition(1);
    addPregnancy(*store, kGid, day(5, 1, 2026), "60");
  }
  void photo(Date on, int width = 600, int height = 400) {
    const platform::Image image{width, height,
                                std::vector<std::uint8_t>(std::size_t(width) * height * 3, 150)};
    ASSERT_TRUE(saveDayPhoto(*context, on, kGid, platform::encodeJpeg(image, 80), nullptr));
  }
  void breakPhoto(Date on) {
    std::ofstream(dayPhotoFiles(*context, on, kGid).full) << "no picture";
  }
  // The first pass alone, for a book of the kind.
  std::vector<reports::BookCommand> record(int kind = 1) {
    const auto settings = reports::bookSettings(*context, reports::kInnerPage, kind);
    const auto days = reports::loadReportDays(*store, kGid, 8, 0, day(5, 1, 2026), listData);
    const reports::RowPainter rows(*context, settings, LADANEYA_IMAGES_DIR, listData);
    reports::BookRecorder recorder(settings, rows);
    reports::DiaryPages(recorder, settings, rows).drawPages(days);
    return recorder.commands();
  }
  std::vector<reports::BookPage> prepare(int kind = 1, int year = 0) {
    std::string error;
    const auto pages = reports::prepareBook(*store, {kGid, kind, year, reports::bookFile(*context)},
                                            {LADANEYA_IMAGES_DIR, {}, {}}, &error);
    EXPECT_TRUE(pages) << error;
    return pages.value_or(std::vector<reports::BookPage>{});
  }
};

std::string funcs(const std::vector<reports::BookCommand>& commands) {
  std::string out;
  for (const auto& c : commands)
    out += (out.empty() ? "" : " ") + c.func + "@" + std::to_string(c.page);
  return out;
}

std::vector<int> numbers(const std::vector<reports::BookPage>& pages) {
  std::vector<int> out;
  for (const auto& p : pages) out.push_back(p.page);
  return out;
}

TEST_F(BookTest, FivePhotosWithoutTextMakeAPageOfFourThenAPageOfOne) {
  pregnancy();
  for (int d = 6; d <= 10; ++d) photo(day(d, 1, 2026));
  const auto commands = record();
  EXPECT_EQ(funcs(commands), "bookSaveImagePage@3 bookSaveImagePage@4");

  const auto pages = prepare();
  // The jacket, the cover, the two picture pages and the pregnancy's weight chart.
  ASSERT_THAT(numbers(pages), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(pages[2].picture.tp, 40);
  EXPECT_EQ(pages[2].picture.images.size(), 4u);
  EXPECT_EQ(pages[4].picture.tp, 12);
  EXPECT_EQ(pages[3].file.filename(), "book4.jpg");
}

TEST_F(BookTest, PicturePagesFollowTheTextTheirPhotosStoodIn) {
  pregnancy();
  put("note", "Первый день", day(6, 1, 2026));
  for (int d = 6; d <= 9; ++d) photo(day(d, 1, 2026));
  put("note", "После фотографий", day(10, 1, 2026));
  const auto commands = record();
  EXPECT_EQ(funcs(commands),
            "pdfDrawDayCap@3 drawPDFPart@3 bookSavePage@3 bookSaveImagePage@4 pdfDrawDayCap@5 "
            "drawPDFPart@5 bookSavePage@5");
  EXPECT_TRUE(commands[0].needBig);
  EXPECT_EQ(commands[0].top, 10 * 30);
  // Behind the picture page the text goes on at the top of a page, in the same week.
  EXPECT_FALSE(commands[4].needBig);
  EXPECT_TRUE(commands[4].needSmall);
  EXPECT_EQ(commands[4].top, 10 * 30 + 3 * 30);
  EXPECT_EQ(commands[5].row.text, "После фотографий");
}

TEST_F(BookTest, ADiaryWithoutPhotosHasTheJacketTheCoverAndTextPages) {
  openEdition(2);
  addChild(*store, kGid, day(10, 1, 2026), "3.2", "50");
  put("note", "Первая улыбка", day(20, 2, 2026));
  put("note", "Первый зуб", day(20, 3, 2026));
  const auto pages = prepare(2, 1);
  ASSERT_THAT(numbers(pages), ElementsAre(1, 2, 3));
  for (const auto& page : pages) {
    EXPECT_FALSE(page.isimages);
    EXPECT_TRUE(std::filesystem::exists(page.file));
  }
}

TEST_F(BookTest, AnUnreadablePhotoIsLeftOutAndAPageWithNoneLeftIsDropped) {
  pregnancy();
  for (int d = 6; d <= 10; ++d) photo(day(d, 1, 2026));
  breakPhoto(day(7, 1, 2026));
  breakPhoto(day(10, 1, 2026));
  const auto pages = prepare(4);
  // Page 4 held only the broken photo; its number stays unused.
  ASSERT_THAT(numbers(pages), ElementsAre(1, 2, 3, 5));
  EXPECT_EQ(pages[2].picture.images.size(), 3u);
  EXPECT_EQ(pages[2].picture.tp, 31);
  EXPECT_FALSE(std::filesystem::exists(pages[2].file.parent_path() / "book4.jpg"));
}

TEST_F(BookTest, BookPdfHasThePagesAtTheirSizesAndTheCreator) {
  pregnancy();
  put("note", "Первая запись дневника", day(6, 1, 2026));
  photo(day(6, 1, 2026), 400, 600);
  photo(day(8, 1, 2026));
  const auto file = reports::bookFile(*context);
  EXPECT_EQ(file, context->documentsDir() / "book.pdf");
  std::string error;
  ASSERT_TRUE(reports::makeBook(*store, {kGid, 2, 0, file}, {LADANEYA_IMAGES_DIR, {}, {}}, &error))
      << error;
  renderPages(file, "book");
  const auto pdf = readPdf(file);
  ASSERT_TRUE(pdf);
  EXPECT_EQ(pdf->creator, "Ладанея (1.0)");
  // Jacket, cover, the text page, the picture page of two and the weight chart.
  ASSERT_EQ(pdf->pages.size(), 5u);
  const double pixels[][2] = {{9838, 2671}, {7125, 2888}, {3338, 2588}, {3338, 2588}, {3338, 2588}};
  for (std::size_t page = 0; page < 5; ++page) {
    EXPECT_NEAR(pdf->pages[page].width, pixels[page][0] / 4.1667, 0.01) << page;
    EXPECT_NEAR(pdf->pages[page].height, pixels[page][1] / 4.1667, 0.01) << page;
  }

  // A kind outside 1 to 5 is refused, and a failure half way leaves the book that was there,
  // and no temporary file.
  const auto before = readWholeFile(file);
  EXPECT_FALSE(
      reports::makeBook(*store, {kGid, 6, 0, file}, {LADANEYA_IMAGES_DIR, {}, {}}, &error));
  EXPECT_EQ(error, "a book's kind is a number from 1 to 5, not 6");
  const auto folder = reports::bookFolder(*context);
  EXPECT_FALSE(reports::saveBook({folder / "book1.jpg", folder / "book99.jpg"}, file, "x", &error));
  EXPECT_THAT(error, HasSubstr("book99.jpg"));
  EXPECT_EQ(readWholeFile(file), before);
  EXPECT_FALSE(std::filesystem::exists(atomicTempPath(file)));
}

}  // namespace
}  // namespace lad::testing
