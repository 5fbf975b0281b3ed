#include "core/value.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>

namespace lad {
namespace {

TEST(ValueCoercion, TextReadsItsLeadingNumber) {
  EXPECT_EQ(Value("3 шт.").intValue(), 3);
  EXPECT_EQ(Value("  -12abc").intValue(), -12);
  EXPECT_EQ(Value("+7").intValue(), 7);
  EXPECT_EQ(Value("").intValue(), 0);
  EXPECT_EQ(Value("99999999999999999999").intValue(), INT32_MAX);  // a 32-bit int, clamped
  EXPECT_EQ(Value("2147483648").intValue(), INT32_MAX);
  EXPECT_EQ(Value("-2147483648").intValue(), INT32_MIN);
  EXPECT_EQ(Value("1.9").intValue(), 1);

  EXPECT_DOUBLE_EQ(Value("36,6").doubleValue(), 36.0);  // only "." is a decimal point
  EXPECT_DOUBLE_EQ(Value("-.5").doubleValue(), -0.5);
  EXPECT_DOUBLE_EQ(Value("5.").doubleValue(), 5.0);
  EXPECT_DOUBLE_EQ(Value(".").doubleValue(), 0.0);
  EXPECT_DOUBLE_EQ(Value("1e3 г").doubleValue(), 1000.0);
  EXPECT_DOUBLE_EQ(Value("2e").doubleValue(), 2.0);
}

TEST(ValueCoercion, DecimalPointIgnoresTheProcessLocale) {
  // A locale with a decimal comma, where the machine has one; the reading must not change.
  const bool switched = std::setlocale(LC_NUMERIC, "de_DE.UTF-8") != nullptr ||
                        std::setlocale(LC_NUMERIC, "ru_RU.UTF-8") != nullptr;
  EXPECT_DOUBLE_EQ(Value("36.6").doubleValue(), 36.6);
  EXPECT_EQ(Value(36.6).text(), "36.6");
  if (switched) std::setlocale(LC_NUMERIC, "C");
}

TEST(ValueCoercion, NumbersTextsAndBooleansCrossOver) {
  EXPECT_EQ(Value(2.9).intValue(), 2);
  EXPECT_EQ(Value(-2.9).intValue(), -2);
  EXPECT_EQ(Value(1e300).intValue(), INT64_MAX);
  EXPECT_FALSE(Value(0.0).boolValue());
  EXPECT_EQ(Value(true).text(), "1");
  EXPECT_EQ(Value(0.1).text(), "0.1");
  EXPECT_EQ(Value(Date{}).text(), "");
  for (const char* yes : {"YES", "yes", "true", "T", "1", "0001", " 7", "-5", "y"})
    EXPECT_TRUE(Value(yes).boolValue()) << yes;
  for (const char* no : {"NO", "no", "false", "0", "", " ", "-0", "000", "abc"})
    EXPECT_FALSE(Value(no).boolValue()) << no;
}

TEST(ValueJson, RoundTripKeepsTypesOrderDatesAndBytes) {
  Map inner;
  inner.set("z", 1.5);
  inner.set("a", List{1, "x", nullptr, false});
  Map m;
  m.set("when", Date(std::chrono::milliseconds(1700000000123)));
  m.set("raw", Bytes{0, 1, 2, 250, 255});
  m.set("inner", inner);
  m.set("count", std::int64_t{9007199254740993});
  m.set("text", "Ладанея <tr> \"q\"");
  const Value original(m);

  auto back = Value::fromJson(original.toJson(2));
  ASSERT_TRUE(back);
  EXPECT_EQ(*back, original) << "equal values are of equal types";
  EXPECT_EQ(original.toJson().find("{\"when\":{\"$date\":\"2023-11-14T22:13:20.123Z\"}"), 0u);
}

TEST(ValueJson, BadInputGivesAnErrorNotACrash) {
  std::string error;
  EXPECT_FALSE(Value::fromJson("{\"a\":", &error));
  EXPECT_FALSE(error.empty());

  error.clear();
  EXPECT_FALSE(Value::fromJson("{\"$date\":\"yesterday\"}", &error));
  EXPECT_NE(error.find("$date"), std::string::npos);

  EXPECT_FALSE(Value::fromJson("{\"$bytes\":\"a=b=\"}"));
  EXPECT_FALSE(Value::fromJson(std::string(5000, '[') + std::string(5000, ']'), &error));

  // Tag-like keys among others are plain members.
  auto plain = Value::fromJson("{\"$date\":\"x\",\"other\":1}");
  ASSERT_TRUE(plain);
  EXPECT_EQ((*plain)["$date"].text(), "x");
  auto number = Value::fromJson("{\"$date\":5}");
  ASSERT_TRUE(number);
  EXPECT_EQ((*number)["$date"].intValue(), 5);
}

TEST(ValueJson, IsoDatesAreStrict) {
  EXPECT_TRUE(dateFromIso("2024-02-29T23:59:59Z"));
  EXPECT_FALSE(dateFromIso("2023-02-29T00:00:00Z"));
  EXPECT_FALSE(dateFromIso("2024-01-01T24:00:00Z"));
  EXPECT_FALSE(dateFromIso("2024-01-01T00:00:00"));
  EXPECT_EQ(dateToIso(*dateFromIso("1999-12-31T23:59:58.5Z")), "1999-12-31T23:59:58.500Z");
  EXPECT_EQ(dateToIso(Date(std::chrono::milliseconds(-1))), "1969-12-31T23:59:59.999Z");
}

}  // namespace
}  // namespace lad
