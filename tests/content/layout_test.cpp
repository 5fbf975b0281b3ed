#include <gtest/gtest.h>

#include <set>

#include "content/queries.h"
#include "content/text_data.h"
#include "core/ids.h"
#include "tests/support/test_files.h"

namespace lad::content {
namespace {

const DateCodec& berlin() {
  static const DateCodec codec("Europe/Berlin", 1);
  return codec;
}

// One line of text, as high as its type size, whatever the width.
LayoutTools oneLineTools() {
  LayoutTools tools;
  tools.dates = &berlin();
  tools.measure = [](std::string_view, double size, double) { return size; };
  tools.imageSize = [](std::string_view name) {
    return name == "p" ? std::optional<drawing::Size>({600, 300}) : std::nullopt;
  };
  return tools;
}

// Groups 1..n, each opened by a kind 1 record and holding a heading and a body line.
std::string groupsText(int n) {
  std::string text;
  for (int g = 1; g <= n; ++g) {
    const std::string id = std::to_string(g);
    text += std::string(g > 1 ? "<br>" : "") + "tp<val>1<tr>groupid<val>" + id +
            "<br>tp<val>2<tr>text<val>H" + id + "<br>tp<val>4<tr>text<val>B" + id +
            "<tr>hiddentext<val>h" + id;
  }
  return text;
}

std::set<int> groupsOfRows(const TextLayout& layout, RowKind kind) {
  std::set<int> out;
  for (const Row& r : layout.rows)
    if (r.kind == kind) out.insert(r.group);
  return out;
}

std::vector<int> groupIds(const TextLayout& layout) {
  std::vector<int> out;
  for (const GroupSpan& g : layout.groups) out.push_back(g.groupid);
  return out;
}

TEST(Layout, TextWithoutGroupsIsGroupZeroAndKeepsRowsPastAFault) {
  TextData data(oneLineTools());
  data.prepareFromString("tp<val>2<tr>text<val>A<br>tp<val>4<tr>oops<tr>text<val>b");
  const TextLayout& l = data.layout();
  ASSERT_EQ(l.rows.size(), 2u);
  EXPECT_EQ(l.groups, (std::vector<GroupSpan>{{0, 5, 53}}));
  EXPECT_EQ(l.rows[1].text, "b");
  ASSERT_EQ(l.faults.size(), 1u);
  EXPECT_EQ(l.faults[0].record, 1);
}

TEST(Layout, OneGroupShowsItsBodyLinesAndTheWholeTable) {
  TextData data(oneLineTools());
  data.prepareFromString(groupsText(3));
  const TextLayout all = data.layout();
  EXPECT_EQ(groupIds(all), (std::vector<int>{1, 2, 3}));
  EXPECT_EQ(all.groupMax, 3);
  for (std::size_t i = 1; i < all.groups.size(); ++i)
    EXPECT_EQ(all.groups[i - 1].bottom, all.groups[i].top);
  EXPECT_EQ(all.rows.size(), 6u);

  data.justGroup(2);
  data.prepareFromString(groupsText(3));
  ASSERT_EQ(data.layout().rows.size(), 1u);
  EXPECT_EQ(data.layout().rows[0].text, "B2");

  data.justGroup(7);
  data.prepareFromString(groupsText(3));
  EXPECT_TRUE(data.layout().rows.empty());
  EXPECT_EQ(groupIds(data.layout()), groupIds(all));
  EXPECT_EQ(hiddenText(data.layout(), ""), "h1");
}

TEST(Layout, LoadsSpansOfSixGroupsOverlappingByOne) {
  const std::pair<int, int> partial[] = {{-5, -1}, {2, 0}, {3, 0}, {4, 1}, {8, 5}};
  for (auto [n, start] : partial) EXPECT_EQ(specialPartial(n), start) << n;

  testing::TempDir dir;
  testing::writeFile(dir.path() / "long-u.txt", groupsText(12));
  TextData data(oneLineTools());
  data.specialPartial(8);
  data.prepareFromFile(dir.path(), "long-u");
  const TextLayout middle = data.layout();
  EXPECT_EQ(groupsOfRows(middle, RowKind::Text), (std::set<int>{5, 6, 7, 8, 9, 10}));
  EXPECT_EQ(middle.rows.front().partialButton, 1);
  EXPECT_EQ(middle.rows.back().partialButton, 2);

  data.nextSpan();
  EXPECT_EQ(data.partialStart(), 10);
  EXPECT_EQ(groupsOfRows(data.layout(), RowKind::Text), (std::set<int>{10, 11, 12}));
  EXPECT_EQ(data.layout().rows.front().partialButton, 1);
  EXPECT_EQ(data.layout().rows.back().kind, RowKind::Text);

  const auto back = data.prevSpan();
  EXPECT_EQ(data.partialStart(), 5);
  ASSERT_TRUE(back);
  const auto ten = std::find_if(middle.groups.begin(), middle.groups.end(),
                                [](const GroupSpan& g) { return g.groupid == 10; });
  ASSERT_NE(ten, middle.groups.end());
  EXPECT_EQ(*back, ten->top - 10);
}

TEST(Queries, FindsTheGroupToScrollTo) {
  const std::vector<GroupSpan> groups{{1, 20, 40}, {3, 40, 60}, {5, 60, 80}};
  struct Case {
    int n;
    bool just;
    std::optional<double> y;
  };
  const Case cases[] = {
      {3, true, 30},  {2, true, 30},  {9, true, std::nullopt}, {0, true, 10},
      {9, false, 50}, {4, false, 30}, {1, false, 10},          {0, false, std::nullopt},
  };
  for (const Case& c : cases) EXPECT_EQ(hlGroup(groups, c.n, c.just), c.y) << c.n << c.just;
  EXPECT_EQ(hlGroup({}, 1, true), std::nullopt);
}

TEST(Queries, StepsAroundTheGroups) {
  const std::array<int, 4> steps[] = {{1, 3, 2, 3}, {3, 3, 1, 2}, {5, 3, 1, 4}, {0, 3, 1, 3}};
  for (auto [current, max, next, prev] : steps) {
    EXPECT_EQ(nextGroup(current, max), next) << current;
    EXPECT_EQ(prevGroup(current, max), prev) << current;
  }
}

TEST(Layout, PlacesPicturesLinksButtonsAndTicksOfJson) {
  TextData data(oneLineTools());
  data.prepareFromJson(R"([{"groupid":1,"Content":[
    {"tp":4,"text":"t","checkid":"7","hiddentext":"h7"},
    {"tp":4,"text":"l","linkid":4,"weblink":"https://a"},
    {"tp":7,"text":"w","weblink":"https://b"},
    {"tp":4,"text":"big","bigpic":"x","checkid":7},
    {"tp":8,"text":"Go","linkid":2},
    {"tp":6,"pic":"p"}]}])");
  const TextLayout& l = data.layout();
  ASSERT_EQ(l.rows.size(), 7u);
  std::vector<double> ys, heights;
  for (const Row& r : l.rows) {
    ys.push_back(r.y);
    heights.push_back(r.height);
  }
  EXPECT_EQ(ys, (std::vector<double>{12, 49, 67, 87, 192, 237, 392}));
  EXPECT_EQ(heights, (std::vector<double>{32, 13, 15, 100, 40, 150, 0}));
  EXPECT_EQ(l.rows[4].kind, RowKind::Button);
  EXPECT_EQ(l.groups, (std::vector<GroupSpan>{{1, 12, 397}}));
  EXPECT_EQ(l.webLinks, std::vector<std::string>{"https://b"});
  EXPECT_EQ(l.rows[1].weblink, 0);
  EXPECT_EQ(l.rows[2].weblink, 1);
  EXPECT_EQ(l.rows[3].tick, 1);
  EXPECT_EQ(hiddenText(l, newID2(2, 7)), "h7");
  EXPECT_EQ(l.checks.items(), (std::vector<Tick>{{newID2(2, 7), false}, {newID2(2, 7), false}}));
}

TEST(Ticks, ANewBoxStartsAsTheFirstOfItsIdentifier) {
  TickList ticks;
  ticks.add("a");
  EXPECT_TRUE(ticks.toggle(0));
  EXPECT_EQ(ticks.add("a"), 1);
  ticks.add("b");
  EXPECT_FALSE(ticks.toggle(9));
  ticks.setCheckData({"b"});  // leaves the other boxes as they are
  EXPECT_EQ(ticks.items(), (std::vector<Tick>{{"a", true}, {"a", true}, {"b", true}}));
}

// Without a measure of its own the layout wraps text in the browser's font at the column's width.
TEST(Layout, MeasuresWithTheBrowsersFont) {
  LayoutTools tools;
  tools.dates = &berlin();
  LayoutSettings narrow;
  narrow.columnWidth = 160;
  TextData data(tools, narrow);
  data.prepareFromString(
      "tp<val>4<tr>text<val>Сегодня малыш слышит голос мамы и узнаёт его среди других голосов");
  EXPECT_GT(data.layout().rows[0].height, 3 * 12);
}

}  // namespace
}  // namespace lad::content
