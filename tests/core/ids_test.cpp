#include "core/ids.h"

#include <gtest/gtest.h>

#include <regex>

namespace lad {
namespace {

TEST(Ids, FixedIdentifierOfAGroupAndANumber) {
  EXPECT_EQ(newID2(1, 1), "00000000-0000-0000-0001-000000000001");
  EXPECT_EQ(newID2(2, 31), "00000000-0000-0000-0002-000000000031");
  EXPECT_EQ(newID2(4, 72), "00000000-0000-0000-0004-000000000072");
  EXPECT_EQ(newID2(2, 0), "00000000-0000-0000-0002-000000000000");
  EXPECT_EQ(newID2(2, 999999999999), "00000000-0000-0000-0002-999999999999");
  EXPECT_EQ(newID2(2, 1234567890123), "00000000-0000-0000-0002-234567890123");
}

TEST(Ids, RandomIdentifiersAreUpperCaseAndNew) {
  const std::regex shape("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
  const std::string a = newID(), b = newID();
  EXPECT_TRUE(std::regex_match(a, shape)) << a;
  EXPECT_TRUE(std::regex_match(b, shape)) << b;
  EXPECT_NE(a, b);
}

}  // namespace
}  // namespace lad
