#include "store/values/picker_lists.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

struct RowCase {
  int set;
  int wheel;
  std::int64_t row;
  const char* text;
};

TEST(PickerListsTest, RowsReadAsTheirTextsAndBackAndUnknownOnesAreSafe) {
  const RowCase cases[] = {
      {kLengthPicker, 0, 0, "1"},      {kLengthPicker, 0, 99, "100"}, {kDosePicker, 0, 2, "1/2"},
      {kDosePicker, 0, 3, "1"},        {kDosePicker, 0, 202, "200"},  {kDosePicker, 1, 0, "мл."},
      {kFrequencyPicker, 0, 23, "24"},
  };
  for (const RowCase& c : cases) {
    EXPECT_EQ(valueFromList(c.set, c.wheel, c.row), c.text) << c.set << "/" << c.row;
    EXPECT_EQ(posFromList(c.set, c.wheel, c.text), c.row) << c.text;
  }
  EXPECT_TRUE(listFor(7, 0).empty());
  EXPECT_TRUE(listFor(kDosePicker, 2).empty());
  EXPECT_TRUE(listFor(kDosePicker, -1).empty());
  EXPECT_EQ(valueFromList(kDosePicker, 1, 9), "");
  EXPECT_EQ(valueFromList(kLengthPicker, 0, -1), "");
  EXPECT_EQ(valueFromList(3, 0, 0), "");
  EXPECT_EQ(posFromList(kFrequencyPicker, 1, "раз в неделю"), 0);
  EXPECT_EQ(posFromList(9, 0, "1"), 0);
}

}  // namespace
}  // namespace lad
