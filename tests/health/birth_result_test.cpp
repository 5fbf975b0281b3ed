#include "health/birth_result.h"

#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using testing::HealthTest;

class BirthResult : public HealthTest {};

TEST_F(BirthResult, ShortAndLongLinesSayWhatIsKnown) {
  struct Case {
    Value result;
    const char* shortLine;
    const char* longLine;  // for a girl
  };
  const Case cases[] = {
      {R"({"rost":"52","ves":"3400","type":"1","time":"10:15"})", "Рост: 52, Вес: 3400",
       "Родилась девочка: рост: 52, вес: 3400, время рождения: 10:15"},
      {R"({"ves":"3400"})", "Вес: 3400", "Родилась девочка: вес: 3400"},
      {R"({"rost":51,"time":"23:05"})", "Рост: 51",
       "Родилась девочка: рост: 51, время рождения: 23:05"},
      {R"({"rost":"","ves":"","type":"2"})", "", ""},  // fields left empty are not known
      {"52<tr>3400<tr>1<tr>10:15", "-", ""},           // the older form is read elsewhere
      {"{\"rost\":", "-", ""},
      {Value(), "-", ""},
      {Value(3400), "-", ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(shortBirthResult(context, c.result), c.shortLine) << c.result.toJson();
    EXPECT_EQ(longBirthResult(context, c.result, 2), c.longLine) << c.result.toJson();
  }
}

TEST_F(BirthResult, LongLineNamesTheBabyBySex) {
  const Value result = R"({"ves":"3400"})";
  EXPECT_EQ(longBirthResult(context, result, 0), "Родился малыш: вес: 3400");
  EXPECT_EQ(longBirthResult(context, result, 1), "Родился мальчик: вес: 3400");
  EXPECT_EQ(longBirthResult(context, result, 7), "вес: 3400");
}

}  // namespace
}  // namespace lad::health
