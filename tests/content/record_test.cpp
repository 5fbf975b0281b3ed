#include "content/record.h"

#include <gtest/gtest.h>

namespace lad::content {
namespace {

TEST(PlainText, KeepsGroupFromRecordBeforeAndTakesLastKey) {
  const auto translate = [](std::string_view s) { return "T:" + std::string(s); };
  const PlainText parsed = parsePlainText(
      "tp<val>1<tr>groupid<val>2.9<br>"
      "tp<val>4.7<tr>text<val>a<tr>text<val>b<tr>colour<val>red<tr>format<val>CAP!<br>"
      "tp<val>4<tr>groupid<val>3<tr>linkid<val>7.5<tr>checkid<val>12<br>"
      "tp<val>2<tr>groupid<val>-1e30",
      translate);
  ASSERT_EQ(parsed.records.size(), 4u);
  EXPECT_TRUE(parsed.faults.empty());
  const std::vector<int> groups{parsed.records[0].groupid, parsed.records[1].groupid,
                                parsed.records[2].groupid, parsed.records[3].groupid};
  EXPECT_EQ(groups, (std::vector<int>{2, 2, 3, std::numeric_limits<int>::min()}));
  const Record& second = parsed.records[1];
  EXPECT_EQ(second.tp, 4);
  EXPECT_EQ(second.text, "T:b");
  EXPECT_EQ(second.format, "CAP!");
  EXPECT_FALSE(second.checkid);
  EXPECT_EQ(parsed.records[2].linkid, 7);
  EXPECT_EQ(parsed.records[2].checkid, "12");
  EXPECT_EQ(parsed.records[2].text, "");
  EXPECT_TRUE(parsePlainText("").records.empty());
}

TEST(JsonGroups, ItemsTakeTheirGroupsNumberAndBadTextsGiveNothing) {
  const auto groups = parseJsonGroups(
      R"([{"groupid":2,"Content":[{"tp":4,"text":"a","groupid":9,"linkid":3,"checkid":5},)"
      R"({"tp":"8","weblink":"https://x"}, 7]}, "junk", {"groupid":4}])");
  ASSERT_EQ(groups.size(), 2u);
  ASSERT_EQ(groups[0].items.size(), 2u);
  const Record& first = groups[0].items[0];
  EXPECT_EQ(first.groupid, 2);
  EXPECT_EQ(first.linkid, 3);
  EXPECT_EQ(first.checkid, "5");
  EXPECT_EQ(groups[0].items[1].tp, 8);
  EXPECT_EQ(groups[0].items[1].weblink, "https://x");
  EXPECT_EQ(groups[1].groupid, 4);
  EXPECT_TRUE(groups[1].items.empty());
  for (const char* bad : {"", "[", "{\"groupid\":1}", "[1,2"})
    EXPECT_TRUE(parseJsonGroups(bad).empty()) << bad;
}

std::vector<Group> groupsOf(std::vector<std::pair<int, std::string>> entries) {
  std::vector<Group> out;
  for (auto& [id, texts] : entries) {
    Group g{id, {}};
    for (char c : texts) {
      g.items.emplace_back().text = std::string(1, c);
      g.items.back().groupid = id;
    }
    out.push_back(std::move(g));
  }
  return out;
}

std::string shape(const std::vector<Group>& groups) {
  std::string out;
  for (const Group& g : groups) {
    out += std::to_string(g.groupid) + ":";
    for (const Record& r : g.items) out += r.text;
    out += " ";
  }
  return out;
}

TEST(JsonGroups, MergesAppendedGroups) {
  struct Case {
    std::vector<std::pair<int, std::string>> base, extra;
    std::string merged;
  };
  const Case cases[] = {
      {{{1, "a"}, {3, "c"}}, {{1, "x"}, {3, "y"}}, "1:ax 3:cy "},
      {{{1, "a"}, {3, "c"}}, {{2, "x"}}, "1:a 2:x 3:c "},
      {{{1, "a"}, {3, "c"}}, {{3, "x"}, {1, "y"}}, "1:a 1:y 3:cx "},
      {{{1, "a"}, {3, "c"}}, {{2, "x"}, {3, "y"}}, "1:a 2:x 3:c 3:y "},
      {{{1, "a"}}, {{0, "x"}, {9, "y"}}, "0:x 1:a 9:y "},
      {{}, {{5, "x"}}, "5:x "},
  };
  for (const Case& c : cases) {
    auto base = groupsOf(c.base);
    mergeGroups(base, groupsOf(c.extra));
    EXPECT_EQ(shape(base), c.merged);
  }
}

}  // namespace
}  // namespace lad::content
