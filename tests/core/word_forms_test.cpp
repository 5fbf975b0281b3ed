#include "core/word_forms.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

TEST(WordForms, FormsAndUnitsAgreeWithTheNumber) {
  for (int n : {1, 21, 101, 1001}) EXPECT_EQ(rusForms(n, "A", "B", "C"), "A") << n;
  for (int n : {2, 3, 4, 22, 104}) EXPECT_EQ(rusForms(n, "A", "B", "C"), "B") << n;
  for (int n : {0, 5, 11, 12, 14, 19, 20, 100, 111, 112, 1015, -1, -2})
    EXPECT_EQ(rusForms(n, "A", "B", "C"), "C") << n;
  EXPECT_EQ(rusForms4(0, "A", "B", "C", "D"), "D");
  const Translator russian;
  struct Case {
    const char* quantity;
    const char* unit;
    const char* expected;
  };
  const Case cases[] = {
      {"1", "мл.", "миллилитр"},
      {"1/2", "шт.", "штуки"},
      {"1/7", "ч.лож.", "чайная ложка"},  // not a listed fraction: its integer is 1
      {"2.5", "ст.лож.", "столовые ложки"},
      {"", "капля", "капли"},
      {"7", "капля", "капель"},
      {"2", "таблетка", ""},
  };
  for (const Case& c : cases)
    EXPECT_EQ(rusScon(c.quantity, c.unit, russian), c.expected) << c.quantity << " " << c.unit;
}

}  // namespace
}  // namespace lad
