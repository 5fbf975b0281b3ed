#include "health/body_index.h"

#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using testing::HealthTest;

class BodyIndexTest : public HealthTest {};

TEST_F(BodyIndexTest, ClassesAtTheirLimits) {
  struct Case {
    const char* rost;
    const char* ves;
    const char* text;
    int bodytype;
  };
  // With a height of 100 cm the index equals the weight.
  const Case cases[] = {
      {"100", "19.8", "Индекс тела равен 19.8.\nУ вас худощавое телосложение.", 1},
      {"100", "19.81", "Индекс тела равен 19.8.\nУ вас среднее телосложение.", 2},
      {"100", "26", "Индекс тела равен 26.0.\nУ вас среднее телосложение.", 2},
      {"100", "26.01", "Индекс тела равен 26.0.\nУ вас тучное телосложение.", 3},
      {"170", "65.5 кг", "Индекс тела равен 22.7.\nУ вас среднее телосложение.", 2},
  };
  for (const Case& c : cases) {
    const BodyIndex index = correctBodyIndex(context, c.rost, c.ves);
    EXPECT_EQ(index.text, c.text) << c.rost << " " << c.ves;
    EXPECT_EQ(index.bodytype, c.bodytype) << c.rost << " " << c.ves;
  }
}

TEST_F(BodyIndexTest, UndefinedWithoutAPositiveHeightAndWeight) {
  const std::pair<const char*, const char*> cases[] = {
      {"0", "60"}, {"170", ""}, {"170", "abc"}, {"-170", "60"}, {"170", "-60"},
  };
  for (const auto& [rost, ves] : cases) {
    const BodyIndex index = correctBodyIndex(context, rost, ves);
    EXPECT_EQ(index.text, "Индекс тела не определен") << rost << " " << ves;
    EXPECT_EQ(index.bodytype, 2) << rost << " " << ves;
  }
}

}  // namespace
}  // namespace lad::health
