// An old value lifted to the current form must read as the same sentence as before.
#include <gtest/gtest.h>

#include <string>

#include "core/ids.h"
#include "core/json_text.h"
#include "store/values/picker_lists.h"
#include "store/values/pill_reading.h"
#include "store/values/reading_forms.h"
#include "store/values/value_conversion.h"
#include "tests/support/test_files.h"

namespace lad {
namespace {

constexpr int kPregnancy = 1;

Value entry(std::int64_t oldIndex, const std::string& cap) {
  Map m;
  m.set("index", newID2(2, oldIndex));
  m.set("cap", cap);
  return Value(std::move(m));
}

std::string rows(std::size_t i, std::size_t j) {
  return std::to_string(i) + "<td>" + std::to_string(j);
}

class ConversionReadingTest : public ::testing::Test {
 protected:
  testing::TempDir dir;
  Context context{ContextOptions{1, 1, dir.path() / "ru", "1.0", nullptr, {}}};
  const List entries{entry(2, "Отеки<tr>1"), entry(3, "Тошнота"), entry(5, "Общий анализ крови"),
                     entry(17, "После еды"), entry(10, "Ежедневно")};
};

TEST_F(ConversionReadingTest, EveryPickerRowOfACourseReadsTheSameInBothForms) {
  using OldReader = std::string (*)(const Context&, std::string_view);
  struct Field {
    const char* name;
    int set;
    OldReader old;
    OldReader current;
  };
  const Field fields[] = {{"pilldoza", kDosePicker, dozaToRead, dozaToRead3},
                          {"pillinter", kFrequencyPicker, periodToRead, periodToRead3}};
  // The old reader put a fraction of a spoon in the plural ("1/2 чайные ложки"); the current
  // one says "1/2 чайной ложки". Whole amounts read the same in both forms.
  constexpr std::size_t kFractionRows = 3;
  for (const Field& f : fields)
    for (std::size_t i = f.set == kDosePicker ? kFractionRows : 0; i < listFor(f.set, 0).size();
         ++i)
      for (std::size_t j = 0; j < listFor(f.set, 1).size(); ++j) {
        const std::string old = rows(i, j);
        const std::string reading = f.old(context, old);
        ASSERT_FALSE(reading.empty()) << f.name << " " << old;
        EXPECT_EQ(f.current(context, oldList(f.name, old)), reading) << f.name << " " << old;
      }
  EXPECT_EQ(dozaToRead(context, "2<td>4"), "1/2 чайные ложки");
  EXPECT_EQ(dozaToRead3(context, oldList("pilldoza", "2<td>4")), "1/2 чайной ложки");
  EXPECT_EQ(dozaToRead3(context, oldList("pilldoza", "1<td>0")), dozaToRead(context, "1<td>0"));
  for (const bool nominative : {true, false})
    for (std::size_t i = 0; i < listFor(kLengthPicker, 0).size(); ++i)
      for (std::size_t j = 0; j < listFor(kLengthPicker, 1).size(); ++j) {
        const std::string old = rows(i, j);
        const std::string reading = intervalToRead(context, old, nominative);
        ASSERT_FALSE(reading.empty()) << old;
        EXPECT_EQ(intervalToRead3(context, oldList("pilllength", old), nominative), reading) << old;
      }
}

TEST_F(ConversionReadingTest, OldIndexListsReadAsTheirGuids) {
  for (const char* keyword : {"changes", "fillings", "bolezn", "allergen"}) {
    const std::string old = "2<tr>3<tr>99";
    const std::string reading = checkStringToRead(old, entries);
    EXPECT_EQ(reading, "Отеки\nТошнота");
    EXPECT_EQ(checkStringToRead(oldValueToJson(kPregnancy, keyword, old, nullptr), entries),
              reading)
        << keyword;
  }
}

TEST_F(ConversionReadingTest, AnOldCourseReadsAsItsSentence) {
  const std::string course = oldValueToJson(
      kPregnancy, "pills",
      "5<table>2<td>0<table>1<td>0<table>10<table>17<table>9<td>0<table>01.03.2026<table>08:00",
      nullptr);
  const Value pills = jsonToArray(course);
  ASSERT_TRUE(pills.asList() && pills.asList()->size() == 1u) << course;
  const std::string sentence = pillsToRead(context, pills.asList()->front(), entries, std::nullopt);
  for (const std::string& part :
       {dozaToRead(context, "2<td>0"), periodToRead(context, "1<td>0"),
        intervalToRead(context, "9<td>0", false), std::string("Общий анализ крови")})
    EXPECT_NE(sentence.find(part), std::string::npos) << sentence << " lacks " << part;
}

}  // namespace
}  // namespace lad
