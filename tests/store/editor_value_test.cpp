#include "store/values/editor_value.h"

#include <gtest/gtest.h>

#include <string>

#include "core/json_text.h"

namespace lad {
namespace {

Value row(int tp, const char* field, const char* source) {
  Map m;
  m.set("tp", tp);
  m.set("field", field);
  m.set("source", source);
  return Value(std::move(m));
}

std::string compact(const std::string& json) {
  return jsonIs(json) ? jsonToDictionary(json).toJson() : json;
}

struct EditorCase {
  int tp;
  const char* oldValue;
  List rows;
  int pos;
  const char* expected;  // compact JSON, or the text itself
};

const Value kHeading = row(0, "", "Заголовок");

// A measurement row pair as the list editors give it: a heading, the time and the value.
List measurement(const char* time, const char* value) {
  return {kHeading, row(1, "time", time), row(1, "temp", value)};
}

TEST(EditorValueTest, PlainKindsTakeRowOneOrAnObjectOfTheirRows) {
  const EditorCase cases[] = {
      {1, "old", {kHeading, row(1, "weight", "3.5")}, -1, "3.5"},
      {13, "", {kHeading, row(1, "note", "текст"), row(1, "x", "y")}, -1, "текст"},
      {2, "old", {kHeading}, -1, ""},
      {9,
       "",
       {kHeading, row(1015, "a", "1"), row(1, "b", "2"), row(1015, "c", "3")},
       -1,
       R"({"a":"1","c":"3"})"},
      {15,
       "",
       {kHeading, row(1, "a", "1"), row(1, "b", "2"), row(1, "c", "3")},
       -1,
       R"({"a":"1","b":"2"})"},
      {16,
       "",
       {kHeading, row(1, "a", "1"), row(1, "b", "2"), row(1, "c", "3"), row(1, "d", "4"),
        row(1, "e", "5"), row(1, "f", "6")},
       -1,
       R"({"a":"1","b":"2","f":"6","c":"3"})"},
      {16, "", {kHeading, row(1, "a", "1")}, -1, R"({"a":"1"})"},
      {77, "kept", {kHeading, row(1, "a", "1")}, -1, "kept"},
  };
  for (const EditorCase& c : cases)
    EXPECT_EQ(compact(jsonFromDic(c.tp, c.oldValue, c.rows, c.pos)), c.expected) << c.tp;
}

TEST(EditorValueTest, ListKindsReplaceOrAppendAndSortByTimeWhereTheyMust) {
  const char* two = R"([{"time":"10:00","temp":"1"},{"time":"20:00","temp":"2"}])";
  const EditorCase cases[] = {
      {30, two, measurement("15:00", "3"), -1,
       R"([{"time":"10:00","temp":"1"},{"time":"15:00","temp":"3"},{"time":"20:00","temp":"2"}])"},
      {23, two, measurement("15:00", "3"), -1,
       R"([{"time":"10:00","temp":"1"},{"time":"20:00","temp":"2"},{"time":"15:00","temp":"3"}])"},
      {29, two, measurement("23:00", "3"), 0,
       R"([{"time":"23:00","temp":"3"},{"time":"20:00","temp":"2"}])"},
      {31, two, measurement("23:00", "3"), 0,
       R"([{"time":"20:00","temp":"2"},{"time":"23:00","temp":"3"}])"},
      {23, two, measurement("01:00", "5"), 7,
       R"([{"time":"10:00","temp":"1"},{"time":"20:00","temp":"2"},{"time":"01:00","temp":"5"}])"},
      {31, R"({"time":"10:00"})", measurement("01:00", "5"), 0, R"([{"time":"01:00","temp":"5"}])"},
      {4,
       two,
       {kHeading, row(1, "time", "12:00"), row(1, "temp", "6"), row(1, "x", "y")},
       0,
       R"([{"time":"10:00","temp":"1"},{"time":"12:00","temp":"6"},{"time":"20:00","temp":"2"}])"},
      {5, "not json", measurement("08:00", "7"), -1, R"([{"time":"08:00","temp":"7"}])"},
  };
  for (const EditorCase& c : cases)
    EXPECT_EQ(compact(jsonFromDic(c.tp, c.oldValue, c.rows, c.pos)), c.expected)
        << c.tp << " at " << c.pos;
}

}  // namespace
}  // namespace lad
