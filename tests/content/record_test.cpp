#include "content/record.h"

#include <gtest/gtest.h>

namespace lad::content {
namespace {

// Each record's fields that the cases set, as "tp group text|format link check web".
std::vector<std::string> fieldsOf(const std::vector<Record>& records) {
  std::vector<std::string> out;
  for (const Record& r : records)
    out.push_back(std::to_string(r.tp) + " " + std::to_string(r.groupid) + " " + r.text + "|" +
                  r.format + " " + std::to_string(r.linkid) + " " + r.checkid.value_or("-") + " " +
                  r.weblink);
  return out;
}

TEST(PlainText, KeepsGroupFromRecordBeforeAndTakesLastKey) {
  const auto translate = [](std::string_view s) { return "T:" + std::string(s); };
  const PlainText parsed = parsePlainText(
      "tp<val>1<tr>groupid<val>2.9<br>"
      "tp<val>4.7<tr>text<val>a<tr>text<val>b<tr>colour<val>red<tr>format<val>CAP!<br>"
      "tp<val>4<tr>groupid<val>3<tr>linkid<val>7.5<tr>checkid<val>12<br>"
      "tp<val>2<tr>groupid<val>-1e30",
      translate);
  EXPECT_TRUE(parsed.faults.empty());
  EXPECT_EQ(fieldsOf(parsed.records),
            (std::vector<std::string>{"1 2 | 0 - ", "4 2 T:b|CAP! 0 - ", "4 3 | 7 12 ",
                                      "2 -2147483648 | 0 - "}));
  EXPECT_TRUE(parsePlainText("").records.empty());
}

TEST(JsonGroups, ItemsTakeTheirGroupsNumberAndBadTextsGiveNothing) {
  const auto groups = parseJsonGroups(
      R"([{"groupid":2,"Content":[{"tp":4,"text":"a","groupid":9,"linkid":3,"checkid":5},)"
      R"({"tp":"8","weblink":"https://x"}, 7]}, "junk", {"groupid":4}])");
  ASSERT_EQ(groups.size(), 2u);
  EXPECT_EQ(fieldsOf(groups[0].items),
            (std::vector<std::string>{"4 2 a| 3 5 ", "8 2 | 0 - https://x"}));
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
