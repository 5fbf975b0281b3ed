// The picture pages of the photo book: which layout a page takes and where its photos stand.
#include <gmock/gmock.h>

#include <fstream>

#include "drawing/recording_canvas.h"
#include "reports/book_layouts.h"
#include "reports/book_picture_page.h"
#include "reports/book_style.h"
#include "tests/drawing/sample_jpeg.h"

namespace lad::testing {
namespace {

using drawing::Command;
using drawing::Rect;
using reports::layoutRect;
using Kind = drawing::Command::Kind;

constexpr double kOt = 30;
const drawing::Size kPage = reports::kInnerPage;

Rect at(int layout, int pos) {
  return layoutRect(layout, pos, kPage, kOt).value_or(Rect{-1, -1, -1, -1});
}

TEST(BookLayouts, TheLayoutOfACountByKindAndWhereEachPhotoStands) {
  for (int kind = 1; kind <= 5; ++kind) EXPECT_EQ(reports::chooseLayout(1, kind), 10);
  for (int kind : {2, 4, 5}) {
    EXPECT_EQ(reports::chooseLayout(2, kind), 23);
    EXPECT_EQ(reports::chooseLayout(4, kind), 41);
  }
  for (int kind : {1, 3}) {
    EXPECT_EQ(reports::chooseLayout(2, kind), 20);
    EXPECT_EQ(reports::chooseLayout(6, kind), 40);
  }
  EXPECT_EQ(at(10, 1), (Rect{0, 0, 3338, 2588}));
  EXPECT_EQ(at(21, 2), (Rect{3338.0 / 3, 300, 3338 - 3338.0 / 3, 1388}));
  // Layout 40: 1 and 2 in the upper row.
  EXPECT_EQ(at(40, 1), (Rect{0, 300, 1669, 994}));
  EXPECT_EQ(at(40, 2), (Rect{1669, 300, 1669, 994}));
  // The passe-partout layouts keep 4 ot between photos about the page's middle.
  const Rect a = at(41, 1), b = at(41, 2), d = at(41, 4);
  EXPECT_DOUBLE_EQ(a.w, 1669 - 12 * kOt);
  EXPECT_DOUBLE_EQ(a.h, 3 * a.w / 4);
  EXPECT_DOUBLE_EQ(b.x - a.right(), 4 * kOt);
  EXPECT_DOUBLE_EQ(d.y - a.bottom(), 4 * kOt);
  EXPECT_DOUBLE_EQ(at(23, 1).y, (2588 - at(23, 1).h) / 2);
  EXPECT_EQ(at(29, 2), at(23, 2));
  EXPECT_DOUBLE_EQ(at(31, 1).h, 5 * at(31, 1).w / 4);
  // Places a layout does not have, and the layouts that place nothing.
  EXPECT_FALSE(layoutRect(20, 3, kPage, kOt));
  EXPECT_FALSE(layoutRect(40, 5, kPage, kOt));
  for (int none : {13, 19, 24, 28, 34, 39}) EXPECT_FALSE(layoutRect(none, 1, kPage, kOt));
  // Frames: the passe-partout layouts in kinds 2, 4 and 5 only.
  for (const auto& [layout, kind, framed] :
       {std::tuple{41, 2, true}, {12, 4, true}, {32, 5, true}, {41, 3, false}, {29, 2, false}})
    EXPECT_EQ(reports::layoutHasFrame(layout, kind), framed) << layout << " " << kind;
}

TEST(BookPicturePage, PhotosFillTheirPlacesAndAnUnreadableOneGivesUpItsPlace) {
  TempDir dir;
  const std::string wide = (dir.path() / "wide.jpg").string();
  const std::string tall = (dir.path() / "tall.jpg").string();
  const std::string broken = (dir.path() / "broken.jpg").string();
  writeJpeg(wide, 400, 300);
  writeJpeg(tall, 300, 400);
  std::ofstream(broken) << "no picture";
  EXPECT_EQ(reports::readableImages({{wide}, {broken}, {tall}}),
            (std::vector<reports::BookImage>{{wide}, {tall}}));

  // Kind 2, three in use: layout 31 with frames, and no line under it.
  reports::PicturePage page{{{wide}, {broken}, {tall}, {wide, false}}, 0, "Подпись"};
  drawing::RecordingCanvas framed;
  EXPECT_EQ(reports::buildImagePage(framed, page, kPage, 2, kOt), 31);
  const std::vector<Command> images = framed.ofKind(Kind::Image);
  ASSERT_EQ(images.size(), 2u);
  EXPECT_EQ(images[0].text, wide);
  EXPECT_EQ(images[1].text, tall);
  for (int pos : {1, 2}) {
    const Rect place = at(31, pos);
    const Command& image = images[pos - 1];
    EXPECT_EQ(image.path, drawing::Path().addRect(place));
    // Filled: the whole place is covered, the photo's aspect kept, centred.
    EXPECT_GE(image.rect.w, place.w - 1e-9);
    EXPECT_GE(image.rect.h, place.h - 1e-9);
    EXPECT_TRUE(std::abs(image.rect.w - place.w) < 1e-9 || std::abs(image.rect.h - place.h) < 1e-9);
    EXPECT_NEAR(image.rect.centre().x, place.centre().x, 1e-9);
    EXPECT_NEAR(image.rect.w / image.rect.h, pos == 1 ? 4.0 / 3 : 3.0 / 4, 1e-9);
  }
  const std::vector<Command> frames = framed.ofKind(Kind::FillRect);
  ASSERT_EQ(frames.size(), 2u);
  EXPECT_TRUE(framed.ofKind(Kind::Text).empty());

  // Kind 3, two in use: layout 20 without frames, the line under them.
  page.images = {{wide}, {tall}};
  drawing::RecordingCanvas plain;
  EXPECT_EQ(reports::buildImagePage(plain, page, kPage, 3, kOt), 20);
  EXPECT_TRUE(plain.ofKind(Kind::FillRect).empty());
  EXPECT_EQ(plain.ofKind(Kind::Image)[1].path, drawing::Path().addRect(at(20, 2)));
  const std::vector<Command> line = plain.ofKind(Kind::Text);
  ASSERT_EQ(line.size(), 1u);
  EXPECT_EQ(line[0].text, "Подпись");
  EXPECT_GT(line[0].rect.y, at(20, 1).bottom());
  // A layout given by hand holds only its capacity.
  page = {{{wide}, {tall}, {wide}}, 10, ""};
  drawing::RecordingCanvas one;
  EXPECT_EQ(reports::buildImagePage(one, page, kPage, 1, kOt), 10);
  EXPECT_EQ(one.ofKind(Kind::Image).size(), 1u);
}

}  // namespace
}  // namespace lad::testing
