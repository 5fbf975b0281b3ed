#include "store/values/reading_forms.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>

#include "core/ids.h"
#include "tests/support/test_files.h"
#include "tests/support/translation_table.h"

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
      {"", ""},
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
      {std::nullopt, ""},
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
      {kChamomile, ""},
      {R"({"captiontype": ")" + kChamomile + R"("})", ""},
      {testsOf({kChamomile}).substr(0, 20), ""},
      {testsOf({kChamomile, kPills}), "Ромашка<tr>1, Парацетамол"},
      {testsOf({kUnknown, kPills}), ", Парацетамол"},
      {testsOf({"", "7", kUnknown}), ", Прививка"},
      {testsOf({kPills, kUnknown}), "Парацетамол"},
  };
  expectReadings(cases, [&](const Text& value) { return analizyStringToRead(value, entries); });
}

TEST_F(ReadingFormsTest, DietsReadTheirNames) {
  const TextCase cases[] = {
      {std::nullopt, ""},           {"", ""},      {"11", "Кремлевская диета"}, {"12", ""},
      {"1000", "Диета прекращена"}, {"диета", ""},
  };
  expectReadings(cases, [&](const Text& value) { return dietaStringToRead(russian, value); });
}

TEST_F(ReadingFormsTest, BodySizesReadOneLineEachInOrder) {
  const TextCase cases[] = {
      {std::nullopt, ""},
      {"35", ""},
      {"{", ""},
      {R"({"bio5": "12", "bio1": "35.5", "bio2": "", "bio4": 40})",
       "Окружность головы: 35.5\nОбхват бедер: 40\nДлина стопы: 12"},
      {R"({"bio2": "", "bio3": "50"})", "Обхват талии: 50"},
  };
  expectReadings(cases, [&](const Text& value) { return biosizeStringToRead(russian, value); });
}

TEST_F(ReadingFormsTest, WordsAreTranslatedAndEntryNamesAreNot) {
  testing::germanTranslator(dir.path() / "translate.sqlite",
                            {{"Выпал ", "Ausgefallen "},
                             {"верхний клык (53)", "oberer Eckzahn (53)"},
                             {"Японская диета", "Japanische Diät"},
                             {"Обхват груди: %@", "Brustumfang: %@"},
                             {"Овуляция", "Eisprung"}});
  Context german{ContextOptions{1, 2, dir.path() / "de", "1.0", nullptr, dir.path()}};
  german.prepareTranslate();
  EXPECT_EQ(toothStringToRead(german, "103"), "Ausgefallen oberer Eckzahn (53)");
  EXPECT_EQ(dietaStringToRead(german, "41"), "Japanische Diät");
  EXPECT_EQ(biosizeStringToRead(german, R"({"bio2": "60"})"), "Brustumfang: 60");
  EXPECT_EQ(womanDayToRead(german, 4), "Eisprung");
  EXPECT_EQ(checkStringToRead(kPills, entries), "Парацетамол");
}

}  // namespace
}  // namespace lad
