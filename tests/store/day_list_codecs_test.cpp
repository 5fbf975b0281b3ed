#include <gtest/gtest.h>

#include "core/context.h"
#include "core/json_text.h"
#include "store/values/list_codecs.h"
#include "tests/support/test_files.h"

namespace lad {
namespace {

// Each line as "index time cap", joined by "; ".
std::string describe(const List& lines) {
  std::string text;
  for (const Value& l : lines)
    text += (text.empty() ? "" : "; ") + l["index"].text() + " " + l["time"].text() + " " +
            l["cap"].text();
  return text;
}

TEST(DayListCodecsTest, MeasurementLinesReadBothForms) {
  struct Case {
    const char* value;
    int kind;
    const char* expected;
  } const cases[] = {
      {R"([{"time":"08:00","temp":"36.6"},{"time":"21:00","temp":"37.2"}])", 4,
       "1 08:00 36.6; 2 21:00 37.2"},
      {R"([{"time":"07:30","pressure1":"120","pressure2":"80","comment":"после сна"}])", 30,
       "1 07:30 120/80 - после сна"},
      {R"([{"time":"12:00","pressure1":"110","comment":""}])", 30, "1 12:00 110/"},
      {R"([{"time":"18:00","in":"300","out":"200"}])", 31, "1 18:00 300>200"},
      {"08:00<td>36.6<tr>09:15<td>120/80", 30, "1 08:00 36.6; 2 09:15 120/80"},
      {"08:00", 4, "1 08:00 "},
      {"", 4, ""},
      {"[не json", 4, ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(describe(multiFromString(c.value, c.kind)), c.expected) << c.value;
}

TEST(DayListCodecsTest, CoursesAndSpansGiveTheirSentences) {
  testing::TempDir dir;
  Context context{ContextOptions{2, 1, dir.path(), "1.0", nullptr, {}}};
  List target;
  multi2FromString(context, target, R"([{"start":"10:00","end":"11:30","interval":"01:30"}])", {},
                   29, std::nullopt);
  ASSERT_EQ(target.size(), 1u);
  EXPECT_EQ(target[0]["text"].text(), "с 10:00 до 11:30 (01:30)");

  multi2FromString(context, target, "старый текст", {}, 29, std::nullopt);
  EXPECT_EQ(target.size(), 1u) << "an old span gives nothing";
  multi2FromString(context, target, "Парацетамол<table>1", {}, 23, std::nullopt);
  ASSERT_EQ(target.size(), 2u) << "the target is not emptied";
  EXPECT_EQ(target[1]["text"].text(), "Парацетамол<table>1");
  EXPECT_FALSE(target[1].asMap()->contains("source"));
}

}  // namespace
}  // namespace lad
