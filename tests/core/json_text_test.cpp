#include "core/json_text.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

TEST(JsonText, OnlyTheFirstCharacterTellsTheFormAndReadingGivesATreeOrNull) {
  EXPECT_TRUE(jsonIs("{"));
  EXPECT_TRUE(jsonIs("[not json"));
  EXPECT_FALSE(jsonIs(" [1]"));  // a leading blank
  EXPECT_FALSE(jsonIs("\"text\""));
  EXPECT_FALSE(jsonIs(""));
  EXPECT_FALSE(jsonIs(std::nullopt));
  EXPECT_EQ(jsonToDictionary(R"({"n":[3]})"), Value::fromJson(R"({"n":[3]})").value());
  EXPECT_EQ(jsonToArray("[1, \"2\"]"), Value(List{1, "2"}));
  EXPECT_EQ(jsonToArray(" [1]"), Value(List{1}));
  for (const char* bad : {"[", "{", "", "{a:1}", "[1,]", "10:00<td>1"}) {
    EXPECT_TRUE(jsonToDictionary(bad).isNull()) << bad;
    EXPECT_TRUE(jsonToArray(bad).isNull()) << bad;
  }
}

TEST(JsonText, WritesListsAndMapsIndentedOverSeveralLines) {
  Map regimen;
  regimen.set("key", "A1");
  regimen.set("name", "Фолиевая кислота");
  regimen.set("times", List{"09:00", "21:00"});
  const std::string text = jsonFromObject(Value(regimen));
  EXPECT_NE(text.find("\n  \"name\""), std::string::npos);
  EXPECT_NE(text.find("Фолиевая кислота"), std::string::npos);  // UTF-8, not escaped
  EXPECT_EQ(jsonToDictionary(text), Value(regimen));
  for (const Value& scalar : {Value(), Value("text"), Value(3)})
    EXPECT_EQ(jsonFromObject(scalar), "");
}

}  // namespace
}  // namespace lad
