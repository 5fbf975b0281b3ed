#include "content/resource.h"

#include <gtest/gtest.h>

#include "tests/support/test_files.h"

namespace lad::content {
namespace {

TEST(Resource, FindsJsonThenTextThenTheEmptyResource) {
  testing::TempDir dir;
  testing::writeFile(dir.path() / "both-u.jsn", " [] \n");
  testing::writeFile(dir.path() / "both-u.txt", "text of both");
  testing::writeFile(dir.path() / "plain-u.txt", "\n\t tp<val>4 \r\n");
  testing::writeFile(dir.path() / "empty-u.txt", "nothing here\n");
  struct Case {
    const char* name;
    const char* text;
    bool json;
  };
  const Case cases[] = {
      {"both-u", "[]", true},
      {"plain-u", "tp<val>4", false},
      {"missing-u", "nothing here", false},
      {"../tmp/plain-u", "nothing here", false},
      {"", "nothing here", false},
  };
  for (const Case& c : cases) {
    const Resource r = loadResource(dir.path(), c.name);
    EXPECT_EQ(r.text, c.text) << c.name;
    EXPECT_EQ(r.json, c.json) << c.name;
  }
  EXPECT_EQ(fileToString(dir.path(), "both-u"), "text of both");
  EXPECT_EQ(fileToString(dir.path() / "none", "both-u"), "");
  EXPECT_EQ(trimText(" \n "), "");
}

TEST(Resource, ExtractsTheBodyLinesOfOneGroup) {
  const std::string text =
      "tp<val>1<tr>groupid<val>1<br>tp<val>4<tr>text<val>a<br>tp<val>2<tr>text<val>head<br>"
      "tp<val>4<tr>text<val><br>tp<val>4<tr>text<val>b<br>"
      "tp<val>1<tr>groupid<val>2<br>tp<val>4<tr>text<val>c";
  EXPECT_EQ(extractGroupText(text, 1), "a\nb");
  EXPECT_EQ(extractGroupText(text, 2), "c");
  EXPECT_EQ(extractGroupText(text, 3), "");
}

}  // namespace
}  // namespace lad::content
