// The translation table made from its text source, read the way the program reads it.
#include <gtest/gtest.h>

#include <regex>

#include "core/menu_table.h"
#include "core/translation.h"
#include "tests/resources/resource_files.h"

namespace lad::testing {
namespace {

Translator translatorFor(int langid) {
  Translator translator;
  translator.prepare(langid, resourceFile("translate.sqlite"));
  return translator;
}

TEST(TranslationTable, GermanIsReadAndLineBreaksShow) {
  const Translator german = translatorFor(2);
  const std::string rating = german.translate(
      "Если у Вас есть время, поставьте пожалуйста оценку программе в AppStore. Высокий рейтинг - "
      "это дополнительный стимул к работе над ней");
  EXPECT_NE(rating.find('\n'), std::string::npos) << rating;
  EXPECT_EQ(rating.find('|'), std::string::npos) << rating;
}

TEST(TranslationTable, FrenchAndRussianReadNothing) {
  // The French query names a column that the table does not have.
  const Translator french = translatorFor(3);
  EXPECT_EQ(french.size(), 0u);
  EXPECT_EQ(translatorFor(1).size(), 0u);
}

// Every menu text of every edition and every template entry has its German text.
TEST(TranslationTable, EveryMenuTextAndTemplateEntryIsTranslated) {
  std::vector<std::string> texts;
  const auto russian = [](std::string_view text) { return std::string(text); };
  for (int appid : {1, 2, 3, 14})
    for (const Value& row : buildMenuTable(appid, 1, "%@", russian))
      for (const char* key : {"name", "comment"}) texts.push_back(row[key].text());
  for (auto [file, dictionary] : {std::pair{"pregnant.sqlite", "pregconst"},
                                  {"child.sqlite", "childconst"},
                                  {"woman.sqlite", "womconst"}})
    for (const std::string& name :
         firstColumn(openResource(file), std::string("select coname from ") + dictionary))
      texts.push_back(name);
  const Translator german = translatorFor(2);
  // Built with "%@" as the version, the version line shows its untranslated text.
  for (const std::string& text : texts)
    EXPECT_TRUE(text.empty() || german.translate(text) != text) << text;
}

std::vector<std::string> placeholders(const std::string& text) {
  static const std::regex kPlaceholder("%[@dif]|<tr>[0-9]*");
  std::vector<std::string> found;
  for (std::sregex_iterator it(text.begin(), text.end(), kPlaceholder), end; it != end; ++it)
    found.push_back(it->str());
  return found;
}

TEST(TranslationTable, TranslationsKeepPlaceholdersAndTails) {
  SqliteConnection db = openResource("translate.sqlite");
  SqliteStatement rows = db.prepare("select rus, ger, fra from translate");
  int checked = 0;
  while (rows.step()) {
    const std::string rus = *rows.columnText(0);
    EXPECT_EQ(placeholders(*rows.columnText(1)), placeholders(rus)) << rus;
    EXPECT_EQ(placeholders(*rows.columnText(2)), placeholders(rus)) << rus;
    ++checked;
  }
  EXPECT_GT(checked, 0);
}

}  // namespace
}  // namespace lad::testing
