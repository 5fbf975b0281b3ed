#include "store/values/pill_reading.h"

#include <gtest/gtest.h>

#include "core/json_text.h"
#include "store/dictionary.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

class PillReadingTest : public testing::StoreTest {
 protected:
  void SetUp() override { open(1); }
};

TEST_F(PillReadingTest, LengthsDosesAndFrequenciesInBothForms) {
  const Context& c = *context;
  const std::pair<std::string, std::string> cases[] = {
      {intervalToRead3(c, "1<td>недели", true), "1 неделя"},
      {intervalToRead3(c, "1<td>недели", false), "1 неделю"},
      {intervalToRead3(c, "5<td>дни", false), "5 дней"},
      {intervalToRead3(c, "22<td>месяцы", false), "22 месяца"},
      {intervalToRead3(c, "", false), ""},
      {intervalToRead(c, "0<td>1", true), "1 неделя"},
      {intervalToRead(c, "4<td>2", true), "5 месяцев"},
      {dozaToRead3(c, "1/2<td>мл."), "1/2 миллилитра"},
      {dozaToRead3(c, "2<td>ч.лож."), "2 чайные ложки"},
      {dozaToRead(c, "2<td>0"), "1/2 миллилитра"},
      {dozaToRead(c, "24<td>8"), "22 капли"},
      {periodToRead3(c, "2<td>раз в день"), "2 раза в день"},
      {periodToRead(c, "1<td>1"), "2 раза в сутки"},
  };
  for (const auto& [got, expected] : cases) EXPECT_EQ(got, expected);
}

// A damaged value's run of 19 or more digits reads as the int limit; the count read from it then
// goes one past that limit or two below it, never round.
TEST_F(PillReadingTest, LongDigitRunsReadAsTheIntLimit) {
  const Context& c = *context;
  const Date first = c.dates().encodeDate(20, 3, 2026);
  const std::pair<std::string, std::string> cases[] = {
      {intervalToRead(c, "99999999999999999999<td>0", true), "2147483648 дней"},
      {intervalToRead3(c, "9999999999999999999<td>дни", true), "2147483647 дней"},
      {dozaToRead(c, "-99999999999999999999<td>2"), "-2147483650 штук"},
      {periodToRead3(c, "-9999999999999999999<td>раз в сутки"), "-2147483648 раз в сутки"},
      {std::to_string(pillLengthToDays(c, "99999999999999999999<td>недели", first)), "2147483647"},
      {std::to_string(pillLengthToDays(c, "-99999999999999999999<td>дни", first)), "-2147483648"},
      {std::to_string(pillLengthToDays(c, "99999999999999999999<td>месяцы", first)),
       "3652425"},  // ten thousand years
  };
  for (const auto& [got, expected] : cases) EXPECT_EQ(got, expected);
}

TEST_F(PillReadingTest, ACourseReadsAsOneSentenceWithItsDay) {
  const DateCodec& dates = context->dates();
  const Date first = dates.encodeDate(20, 3, 2026);  // the course crosses the change to summer time
  EXPECT_EQ(pillLengthToDays(*context, "1<td>месяцы", first), 31);
  EXPECT_EQ(pillLengthToDays(*context, "3<td>годы", first), 0);

  List list;
  addToList(list, "00000000-0000-0000-0002-000000000901", "Фолиевая кислота", 101, false);
  addToList(list, "00000000-0000-0000-0004-000000000010", "Ежедневно", 102, false);
  addToList(list, "00000000-0000-0000-0004-000000000018", "После еды", 103, false);
  const Value pill = jsonToDictionary(
      R"({"pillname": "00000000-0000-0000-0002-000000000901", "pilldoza": "1<td>шт.",
          "pillperiod": "00000000-0000-0000-0004-000000000010", "pillinter": "3<td>раз в день",
          "pilleat": "00000000-0000-0000-0004-000000000018", "pilllength": "2<td>недели",
          "pillsdate": "20.03.2026"})");
  const std::string sentence =
      "Фолиевая кислота: 1 штука, Ежедневно, 3 раза в день, После еды, 2 недели";
  EXPECT_EQ(pillsToRead(*context, pill, list, std::nullopt), sentence);
  EXPECT_EQ(pillsToRead(*context, pill, list, dates.encodeDate(31, 3, 2026)),
            sentence + " (12 день из 14)");
}

}  // namespace
}  // namespace lad
