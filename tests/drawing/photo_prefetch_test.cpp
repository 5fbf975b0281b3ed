#include "drawing/photo_prefetch.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/drawing/sample_jpeg.h"

namespace lad::drawing {
namespace {

using testing::TempDir;

// A photo file whose width tells it apart from the others.
std::string writePhoto(const TempDir& dir, const std::string& name, int width) {
  testing::writeJpeg(dir.path() / name, width, 40);
  return (dir.path() / name).string();
}

TEST(PhotoPrefetch, PhotosComeInTheirOrderAndWhatWasPassedOrNotAskedForIsReadByTheCaller) {
  TempDir dir;
  const std::string a = writePhoto(dir, "a.jpg", 100), b = writePhoto(dir, "b.jpg", 80),
                    c = writePhoto(dir, "c.jpg", 60), broken = (dir.path() / "x.jpg").string();
  std::ofstream(broken) << "not a photo";
  PhotoPrefetch prefetch({a, broken, b, c}, 200, 1);

  EXPECT_EQ(prefetch.take(b, 100), nullptr) << "another side is not the one read ahead";
  const auto second = prefetch.take(b, 200);
  ASSERT_NE(second, nullptr) << "a photo further on, past one never taken";
  EXPECT_EQ(second->image.width, 80);
  EXPECT_FALSE(second->jpeg.empty()) << "kept as the document keeps it";
  EXPECT_EQ(prefetch.take(a, 200), nullptr) << "the document is past it";
  EXPECT_EQ(prefetch.take(broken, 200), nullptr);
  const auto last = prefetch.take(c, 200);
  ASSERT_NE(last, nullptr);
  EXPECT_EQ(last->image.width, 60);
  EXPECT_EQ(prefetch.take(c, 200), nullptr) << "taken once";
}

TEST(PhotoPrefetch, ADocumentLeftHalfWayStopsTheReaderAhead) {
  TempDir dir;
  std::vector<std::string> files;
  for (int k = 0; k < 8; ++k) files.push_back(writePhoto(dir, std::to_string(k) + ".jpg", 50));
  auto prefetch = std::make_unique<PhotoPrefetch>(files, 100, 2);
  ASSERT_NE(prefetch->take(files[0], 100), nullptr);
  prefetch.reset();  // must not wait for the photos never asked for: a hang fails by time-out
}

}  // namespace
}  // namespace lad::drawing
