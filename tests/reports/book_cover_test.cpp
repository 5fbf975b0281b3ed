// The photo book's jacket and cover, checked on the recording canvas.
#include "reports/book_cover.h"

#include <gmock/gmock.h>

#include <numbers>

#include "drawing/recording_canvas.h"
#include "reports/book_style.h"
#include "tests/drawing/sample_jpeg.h"

namespace lad::testing {
namespace {

using drawing::Command;
using Kind = drawing::Command::Kind;

// The centre and radius of each circle of the path, in order.
std::vector<std::pair<drawing::Point, double>> circles(const drawing::Path& path) {
  std::vector<std::pair<drawing::Point, double>> out;
  for (const auto& op : path.ops())
    if (op.kind == drawing::Path::Kind::Arc) out.emplace_back(op.to, op.radius);
  return out;
}

drawing::RecordingCanvas drawCover(drawing::Size page, const Map& dic, int appid = 1,
                                   const std::filesystem::path& images = "/images") {
  drawing::RecordingCanvas canvas;
  reports::drawBookCover(canvas, page, dic, appid, images);
  return canvas;
}

const Command* textOf(const std::vector<Command>& commands, const std::string& text) {
  for (const Command& c : commands)
    if (c.kind == Kind::Text && c.text == text) return &c;
  return nullptr;
}

TEST(BookCover, TheRingThePhotoInItTheLinesAndTheTurnedSpine) {
  TempDir dir;
  const std::string photo = (dir.path() / "child.jpg").string();
  writeJpeg(photo);
  Map dic;
  dic.set("caption", "Ева");
  dic.set("label1", "Дата родов: 08.10.2026");
  dic.set("labelroot", "Дата родов: 08.10.2026");
  dic.set("labelbottom", "Книга сформирована программой \"Ладанея\"");
  dic.set("booktype", 3);
  dic.set("imagepath", photo);

  struct Expected {
    drawing::Size page;
    double front, top, column, spine;
  };
  for (const Expected& e : {Expected{reports::kJacketPage, 4974, 0, 3380, 4854},
                            Expected{reports::kCoverPage, 3684, 108, 3508, 3508}}) {
    const drawing::RecordingCanvas canvas = drawCover(e.page, dic);
    const std::vector<Command>& commands = canvas.commands();
    const drawing::Point centre{e.front + e.column / 2, e.top + 250 + 600};
    // The ring: two concentric circles of 1200 and 1160 across, filled even-odd.
    const Command& ring = commands.front();
    ASSERT_EQ(ring.kind, Kind::FillPath);
    EXPECT_EQ(ring.rule, drawing::FillRule::EvenOdd);
    EXPECT_EQ(circles(ring.path),
              (std::vector{std::make_pair(centre, 600.0), std::make_pair(centre, 580.0)}));
    // The photograph fills the inner circle and is cut to it.
    const Command& picture = commands[1];
    ASSERT_EQ(picture.kind, Kind::Image);
    EXPECT_EQ(picture.text, photo);
    EXPECT_EQ(circles(picture.path), (std::vector{std::make_pair(centre, 580.0)}));
    EXPECT_NEAR(picture.rect.h, 1160, 1e-9);
    // The caption in the column of its side, the lines under the ring.
    const Command* caption = textOf(commands, "Ева");
    const Command* label = textOf(commands, "Дата родов: 08.10.2026");
    ASSERT_TRUE(caption && label);
    EXPECT_EQ(caption->rect.x, e.front);
    EXPECT_EQ(caption->rect.w, e.column);
    EXPECT_GT(label->rect.y, centre.y + 600);
    // The emblem: the photo again, in a small circle.
    const auto images = canvas.ofKind(Kind::Image);
    ASSERT_EQ(images.size(), 2u);
    EXPECT_EQ(circles(images[1].path)[0].second, 45);
    // The spine's line is turned a quarter about a point on the spine.
    const Command& spine = commands.back();
    EXPECT_EQ(spine.text, "Дата родов: 08.10.2026");
    EXPECT_DOUBLE_EQ(spine.angle, std::numbers::pi / 2);
    EXPECT_DOUBLE_EQ(spine.rect.centre().x, e.spine);
  }
}

TEST(BookCover, WithoutAPhotoTheEditionsPictureInASolidRing) {
  TempDir images;
  for (const char* name : {"ti-preg3.png", "b-ti-preg.png", "ti-child2.png", "b-ti-child.png"})
    writeJpeg(images.path() / name);
  Map dic;
  dic.set("caption", "Без имени");
  const auto cover = [&](int kind, int appid) {
    dic.set("booktype", kind);
    return drawCover(reports::kCoverPage, dic, appid, images.path()).commands();
  };
  const auto picture = [&](int kind, int appid) {
    return std::filesystem::path(cover(kind, appid)[1].text).filename().string();
  };
  EXPECT_EQ(picture(1, 1), "ti-preg3.png");
  EXPECT_EQ(picture(2, 14), "b-ti-preg.png");
  EXPECT_EQ(picture(5, 2), "ti-child2.png");
  EXPECT_EQ(picture(2, 2), "b-ti-child.png");
  // The ring is solid: white, black in kind 3.
  EXPECT_EQ(cover(1, 1).front().color, (drawing::Color{1, 1, 1, 1}));
  EXPECT_EQ(cover(3, 1).front().color, (drawing::Color{0, 0, 0, 1}));
}

}  // namespace
}  // namespace lad::testing
