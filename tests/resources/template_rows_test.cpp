// The rules the database templates' rows keep: one first profile, guids fixed by their coid or
// seed number, lists without repeats, and one end of an illness where illnesses are kept.
#include <gtest/gtest.h>

#include <map>

#include "tests/resources/resource_files.h"

namespace lad::testing {
namespace {

struct Template {
  const char* file;
  const char* profileGuid;  // the guid of the profile with integer key 1
  const char* dictionary;
  std::vector<std::string> endOfIllness;  // the woman's list 3 is sexual activity and has none
};

const Template kTemplates[] = {
    {"pregnant.sqlite", "select pregguid from preg", "pregconst", {"Выздоровела<tr>2"}},
    {"child.sqlite", "select childguid from child", "childconst", {"Выздоровел<tr>2"}},
    {"woman.sqlite", "select womguid from woman", "womconst", {}},
};

TEST(TemplateRows, GuidsListsAndTheEndOfAnIllnessKeepTheirRules) {
  std::map<std::string, std::string> seeds;  // a seed's guid names one entry in every edition
  for (const Template& t : kTemplates) {
    SCOPED_TRACE(t.file);
    SqliteConnection db = openResource(t.file);
    ASSERT_TRUE(db.isOpen());
    EXPECT_EQ(firstColumn(db, t.profileGuid), std::vector<std::string>{fixedGuid(1, 1)});
    const std::string dictionary = t.dictionary;
    // A template entry carries the guid of its coid, so an old integer index finds it, and the
    // user cannot remove it.
    SqliteStatement rows =
        db.prepare("select coid, coguid, deleted, cotype || '|' || coname || '|' || deleted from " +
                   dictionary);
    int own = 0;
    while (rows.step()) {
      const std::string guid = *rows.columnText(1);
      if (guid.starts_with("00000000-0000-0000-0004-")) {
        const auto [it, added] = seeds.emplace(guid, *rows.columnText(3));
        EXPECT_EQ(it->second, *rows.columnText(3)) << guid;
        continue;
      }
      ++own;
      EXPECT_LT(rows.columnInt(0), 1000);
      EXPECT_EQ(guid, fixedGuid(2, rows.columnInt(0)));
      EXPECT_GE(rows.columnInt(2), 2) << "the user could remove entry " << rows.columnInt(0);
    }
    EXPECT_GT(own, 0);
    EXPECT_EQ(countOf(db, "select count(*) from (select 1 from " + dictionary +
                              " group by cotype, coname having count(*) > 1)"),
              0);
    EXPECT_EQ(firstColumn(db, "select coname from " + dictionary + " where cotype=3 and deleted=4"),
              t.endOfIllness);
  }
  EXPECT_GT(seeds.size(), 30u);
}

}  // namespace
}  // namespace lad::testing
