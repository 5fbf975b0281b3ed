#include "store/values/reading_forms.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>

#include "core/ids.h"
#include "tests/support/test_files.h"

namespace lad {
namespace {

using Text = std::optional<std::string>;

struct TextCase {
  Text value;
  const char* expected;
};

// Checks each stored text against the sentence that the reader makes of it.
template <std::size_t N, class Reader>
void expectReadings(const TextCase (&cases)[N], Reader read) {
  for (const TextCase& c : cases) EXPECT_EQ(read(c.value), c.expected) << c.value.value_or("null");
}

Value entry(const std::string& index, const std::string& cap) {
  Map m;
  m.set("index", index);
  m.set("cap", cap);
  return Value(std::move(m));
}

// Dictionary guids are 36 characters long; anything of 9 or fewer is an old index.
const std::string kChamomile = "6F9619FF-8B86-D011-B42D-00C04FC964AA";
const std::string kPills = "6F9619FF-8B86-D011-B42D-00C04FC964BB";
const std::string kUnknown = "6F9619FF-8B86-D011-B42D-00C04FC964EE";

// The JSON list of tests, one object per caption; an empty caption makes an object without one.
std::string testsOf(std::initializer_list<std::string> captions) {
  std::string json;
  for (const std::string& caption : captions)
    json += (json.empty() ? "[" : ", ") + (caption.empty()
                                               ? std::string(R"({"result": "5"})")
                                               : R"({"captiontype": ")" + caption + R"("})");
  return json + "]";
}

class ReadingFormsTest : public ::testing::Test {
 protected:
  testing::TempDir dir;
  Context russian{ContextOptions{1, 1, dir.path() / "ru", "1.0", nullptr, {}}};
  const List entries{entry(kChamomile, "Ромашка<tr>1"), entry(kPills, "Парацетамол"),
                     entry(newID2(2, 7), "Прививка")};
};

TEST_F(ReadingFormsTest, ChecksReadTheFirstPartOfEachFoundName) {
  const TextCase cases[] = {
      {std::nullopt, ""},
      {kChamomile, "Ромашка"},
      {kPills + "<tr>" + kChamomile, "Парацетамол\nРомашка"},
      {kUnknown + "<tr>" + kPills, "Парацетамол"},
      {"7", "Прививка"},
      {"000000007<tr>" + kChamomile, "Прививка\nРомашка"},
  };
  expectReadings(cases, [&](const Text& value) { return checkStringToRead(value, entries); });
}

TEST_F(ReadingFormsTest, TeethReadWhetherTheyCameOrFellOut) {
  const TextCase cases[] = {
      {"", ""},
      {"100", "Прорезался "},
      {"101", "Выпал верхний второй коренной (55)"},
      {"21<tr>abc", "Прорезался \nПрорезался "},
  };
  expectReadings(cases, [&](const Text& value) { return toothStringToRead(russian, value); });
}

TEST_F(ReadingFormsTest, TestsJoinTheirWholeNamesByPosition) {
  const TextCase cases[] = {
      {std::nullopt, ""},
      {R"({"captiontype": ")" + kChamomile + R"("})", ""},
      {testsOf({kChamomile}).substr(0, 20), ""},
      {testsOf({kChamomile, kPills}), "Ромашка<tr>1, Парацетамол"},
      {testsOf({kUnknown, kPills}), ", Парацетамол"},
      {testsOf({"", "7", kUnknown}), ", Прививка"},
      {testsOf({kPills, kUnknown}), "Парацетамол"},
  };
  expectReadings(cases, [&](const Text& value) { return analizyStringToRead(value, entries); });
}

TEST_F(ReadingFormsTest, BodySizesReadOneLineEachInOrder) {
  const TextCase cases[] = {
      {std::nullopt, ""},
      {"{", ""},
      {R"({"bio5": "12", "bio1": "35.5", "bio2": "", "bio4": 40})",
       "Окружность головы: 35.5\nОбхват бедер: 40\nДлина стопы: 12"},
      {R"({"bio2": "", "bio3": "50"})", "Обхват талии: 50"},
  };
  expectReadings(cases, [&](const Text& value) { return biosizeStringToRead(russian, value); });
}

}  // namespace
}  // namespace lad
