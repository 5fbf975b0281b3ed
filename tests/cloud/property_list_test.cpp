#include "cloud/property_list.h"

#include <gtest/gtest.h>

namespace lad::cloud {
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

// A binary property list of `levels` arrays, each holding `width` references to the next one.
Bytes chainedArrays(std::uint32_t levels, std::uint8_t width) {
  const auto be32 = [](Bytes& out, std::uint64_t n, int bytes) {
    for (int i = bytes - 1; i >= 0; --i) out.push_back(static_cast<std::uint8_t>(n >> (8 * i)));
  };
  Bytes out{'b', 'p', 'l', 'i', 's', 't', '0', '0'};
  std::vector<std::uint64_t> offsets;
  for (std::uint32_t i = 0; i < levels; ++i) {
    offsets.push_back(out.size());
    const bool last = i + 1 == levels;
    out.push_back(static_cast<std::uint8_t>(0xA0 | (last ? 0 : width)));
    for (int k = 0; k < width && !last; ++k) be32(out, i + 1, 4);
  }
  const std::uint64_t table = out.size();
  for (std::uint64_t offset : offsets) be32(out, offset, 4);
  out.insert(out.end(), {0, 0, 0, 0, 0, 0, 4, 4});
  be32(out, levels, 8);
  be32(out, 0, 8);
  be32(out, table, 8);
  return out;
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

  // Texts with a zero character stop the library.
  const Bytes zero = {'b', 'p', 'l', 'i', 's', 't', '0', '0', 0x52, 'a', 0, 8, 0, 0, 0,
                      0,   0,   0,   1,   1,   0,   0,   0,   0,    0,   0, 0, 1, 0, 0,
                      0,   0,   0,   0,   0,   0,   0,   0,   0,    0,   0, 0, 0, 11};
  std::string error;
  EXPECT_FALSE(read(zero, &error));
  EXPECT_EQ(error, "the property list holds a text with a zero character");

  // Lists that the library would read until the stack or the memory ran out.
  EXPECT_TRUE(read(chainedArrays(33, 1)));
  EXPECT_TRUE(read(chainedArrays(10, 2)));
  for (std::uint32_t levels : {34u, 100'000u}) {
    EXPECT_FALSE(read(chainedArrays(levels, 1), &error)) << levels;
    EXPECT_EQ(error, "the property list nests too deeply");
  }
  EXPECT_FALSE(read(chainedArrays(28, 2), &error));
  EXPECT_EQ(error, "the property list expands to too many values");
}

}  // namespace
}  // namespace lad::cloud
