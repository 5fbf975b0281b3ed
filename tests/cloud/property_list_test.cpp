#include "cloud/property_list.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

std::optional<Value> read(const Bytes& bytes, std::string* error = nullptr) {
  return fromPropertyList(bytes, error);
}

TEST(PropertyListTest, EveryKindOfValueComesBackAsItWent) {
  Map inner;
  inner.set("negative", std::int64_t{-5});
  inner.set("large", std::int64_t{1} << 40);
  inner.set("real", 61.5);
  inner.set("yes", true);
  inner.set("no", false);
  inner.set("text", "Первое шевеление");
  inner.set("before2001", *dateFromIso("1990-05-01T10:00:00.250Z"));
  inner.set("date", *dateFromIso("2026-03-30T08:00:00.125Z"));
  inner.set("bytes", Bytes{0, 1, 255});
  Map root;
  root.set("list", List{Value(1), Value("a"), Value(List{}), Value(Map{})});
  root.set("map", std::move(inner));
  const Value value(std::move(root));
  EXPECT_EQ(read(toPropertyList(value)).value_or(Value()).toJson(), value.toJson());

  // Nulls have no form in a property list: they are left out.
  Map withNull;
  withNull.set("gone", nullptr);
  withNull.set("kept", List{Value(nullptr), Value(2)});
  Map without;
  without.set("kept", List{Value(2)});
  EXPECT_EQ(read(toPropertyList(Value(withNull))), Value(without));
}

TEST(PropertyListTest, WhatIsNoBinaryPropertyListIsRefusedWithAReason) {
  Map root;
  root.set("gid", "G");
  root.set("data", List{Value(1), Value(2)});
  const Bytes good = toPropertyList(Value(root));
  const std::string xml = "<?xml version=\"1.0\"?><plist><dict/></plist>";
  Value deep{List{}};
  for (int i = 0; i < 40; ++i) deep = Value(List{deep});

  const std::vector<std::pair<std::string, Bytes>> cases = {
      {"empty", {}},
      {"xml", Bytes(xml.begin(), xml.end())},
      {"cut", Bytes(good.begin(), good.begin() + good.size() / 2)},
      {"magic only", Bytes(good.begin(), good.begin() + 8)},
      {"deep", toPropertyList(deep)},
  };
  for (const auto& [what, bytes] : cases) {
    std::string error;
    EXPECT_FALSE(read(bytes, &error)) << what;
    EXPECT_FALSE(error.empty()) << what;
  }
}

}  // namespace
}  // namespace lad
