#include "drawing/text_measure.h"

#include <gtest/gtest.h>
#include <pango/pangocairo.h>

#include <thread>

#include "tests/support/wait_counter.h"

namespace lad::drawing {
namespace {

TEST(TextMeasure, SizeFollowsTextAndFont) {
  const Size two = measureText("22", {9, false});
  const Size four = measureText("2222", {9, false});
  EXPECT_GT(two.w, 0);
  EXPECT_GT(two.h, 0);
  EXPECT_NEAR(four.w, 2 * two.w, 1);
  EXPECT_EQ(four.h, two.h);

  EXPECT_NEAR(measureText("22", {18, false}).w, 2 * two.w, 1);
  EXPECT_GT(measureText("22", {9, true}).w, two.w);
}

TEST(TextMeasure, BreaksAtLineFeedsAndBetweenWordsInTheWidth) {
  const Font f{9, false};
  const auto one = breakText("двадцать два", f);
  ASSERT_EQ(one.size(), 1u);
  EXPECT_TRUE(one[0].baseline > 0 && one[0].baseline < measureText("22", f).h) << "within its line";

  const auto fed = breakText("22\n\n33", f);
  ASSERT_EQ(fed.size(), 3u);
  EXPECT_EQ(fed[0].text, "22");
  EXPECT_EQ(fed[1].text, "");
  EXPECT_EQ(fed[2].text, "33");
  EXPECT_NEAR(fed[2].baseline - fed[0].baseline, 2 * measureText("22", f).h, 0.01);

  // A width that holds two words: the four words go two to a line, as measured.
  const std::string text = "двадцать два двадцать два";
  const double width = measureText("двадцать два", f).w + 2;
  const auto wrapped = breakText(text, f, width);
  ASSERT_EQ(wrapped.size(), 2u);
  EXPECT_EQ(wrapped[0].text, "двадцать два ");
  EXPECT_EQ(wrapped[1].text, "двадцать два");
  EXPECT_NEAR(wrapped[1].baseline + measureText("22", f).h - wrapped[0].baseline,
              measureText(text, f, width).h, 0.01);
}

// Every thread that measures loads its own fonts; the installation's worker thread is started
// anew with each launch, so a thread's fonts must go when it ends. pango matches fonts on short
// threads of its own that hold the font map for a moment, so it may go just after the thread.
TEST(TextMeasure, AThreadsFontsGoWithTheThread) {
  static lad::testing::WaitCounter gone;
  std::thread([] {
    EXPECT_GT(measureText("22", {9, false}).w, 0);
    g_object_weak_ref(
        G_OBJECT(pango_cairo_font_map_get_default()), [](gpointer, GObject*) { gone.bump(); },
        nullptr);
  }).join();
  EXPECT_TRUE(gone.waitAtLeast(1));
}

}  // namespace
}  // namespace lad::drawing
