#include "platform/cbor_reader.h"

#include <gtest/gtest.h>

namespace lad::platform {
namespace {

using namespace std::string_literals;

TEST(CborReaderTest, ReadsTheKindsThatKeysUseAndIntegersAndLengthsInEveryWidth) {
  // {1: 2, 3: -7, "fmt": "none", -2: h'0102', "list": [true, null, 500]}
  const std::string data =
      "\xa5\x01\x02\x03\x26\x63"
      "fmt"
      "\x64"
      "none"
      "\x21\x42\x01\x02\x64"
      "list"
      "\x83\xf5\xf6\x19\x01\xf4"s;
  const CborRead read = readCbor(data + "tail");
  ASSERT_TRUE(read.item) << read.error;
  EXPECT_EQ(read.used, data.size());
  const CborItem& map = *read.item;
  EXPECT_EQ(map.find(1)->integer, 2);
  EXPECT_EQ(map.find(3)->integer, -7);
  EXPECT_EQ(map.find("fmt")->bytes, "none");
  EXPECT_EQ(map.find(-2)->kind, CborItem::Kind::Bytes);
  EXPECT_EQ(map.find(-2)->bytes, "\x01\x02"s);
  const CborItem& list = *map.find("list");
  std::vector<std::int64_t> simpleAndNumbers;
  for (const CborItem& item : list.items) simpleAndNumbers.push_back(item.integer);
  EXPECT_EQ(simpleAndNumbers, (std::vector<std::int64_t>{21, 22, 500}));
  EXPECT_EQ(map.find("absent"), nullptr);
  EXPECT_EQ(list.find(0), nullptr);  // not a map
  EXPECT_EQ(readCbor("\x1b\x7f\xff\xff\xff\xff\xff\xff\xff"s).item->integer, INT64_MAX);
  EXPECT_EQ(readCbor("\x3b\x7f\xff\xff\xff\xff\xff\xff\xff"s).item->integer, INT64_MIN);
  EXPECT_EQ(readCbor("\x39\x01\x00"s).item->integer, -257);
  EXPECT_EQ(readCbor("\x1a\x00\x01\x00\x00"s).item->integer, 65536);
  const std::string long_(300, 'x');
  const CborRead text = readCbor("\x79\x01\x2c"s + long_);
  ASSERT_TRUE(text.item);
  EXPECT_EQ(text.item->bytes, long_);
}

TEST(CborReaderTest, BadInputIsAnErrorNeverAnOverread) {
  const std::string bad[] = {
      ""s,
      "\x18"s,                                  // argument missing
      "\x1b\x80\x00\x00\x00\x00\x00\x00\x00"s,  // beyond int64
      "\x44\x01\x02"s,                          // byte string cut short
      "\x5b\xff\xff\xff\xff\xff\xff\xff\xff"s,  // absurd length
      "\x9b\xff\xff\xff\xff\xff\xff\xff\xff"s,  // absurd count
      "\xbb\x80\x00\x00\x00\x00\x00\x00\x00"s,  // map count that doubles past the input
      "\xa1\x01"s,                              // map value missing
      "\x5f\x41\x00\xff"s,                      // indefinite length
      "\xc2\x41\x00"s,                          // tag
      "\xf9\x3c\x00"s,                          // half float
      "\xf7"s,                                  // undefined
      std::string(40, '\x81') + "\x01",         // nested too deeply
  };
  for (const std::string& b : bad) {
    const CborRead read = readCbor(b);
    EXPECT_FALSE(read.item) << "input of " << b.size() << " bytes";
    EXPECT_FALSE(read.error.empty());
  }
  // Every prefix of a good item is refused.
  const std::string good =
      "\xa2\x01\x02\x63"
      "abc"
      "\x82\x41\x00\x20"s;
  ASSERT_TRUE(readCbor(good).item);
  for (std::size_t n = 0; n < good.size(); ++n) EXPECT_FALSE(readCbor(good.substr(0, n)).item);
}

}  // namespace
}  // namespace lad::platform
