// The rows that the database templates bring: the first profile, the seeded dictionary entries
// with their fixed guids, and the template's own lists.
#include <gtest/gtest.h>

#include "tests/resources/resource_files.h"

namespace lad::testing {
namespace {

enum EditionBit { kPregnancy = 1, kChild = 2, kWoman = 4, kAll = 7 };

struct Seed {
  int number;
  int cotype;
  const char* coname;
  int deleted;
  int editions;
};

const Seed kSeeds[] = {
    {1, 3, "Выздоровела<tr>2", 4, kPregnancy},
    {2, 3, "Простуда", 2, kPregnancy},
    {3, 3, "ГРИПП", 2, kPregnancy},
    {4, 101, "Арбидол", 0, kPregnancy | kWoman},
    {5, 101, "Парацетамол", 0, kPregnancy | kWoman},
    {6, 101, "Тавегил", 0, kPregnancy | kWoman},
    {7, 101, "Виферон", 0, kChild},
    {8, 101, "Нурофен", 0, kChild},
    {9, 101, "Парацетамол", 0, kChild},
    {10, 102, "Ежедневно", 0, kAll},
    {11, 102, "Через день", 0, kAll},
    {12, 102, "Через неделю", 0, kAll},
    {13, 102, "2 раза в неделю", 0, kAll},
    {14, 102, "3 раза в неделю", 0, kAll},
    {15, 103, "Независимо от еды", 0, kAll},
    {16, 103, "Перед едой", 0, kAll},
    {17, 103, "Во время еды", 0, kAll},
    {18, 103, "После еды", 0, kAll},
    {19, 103, "За 15 минут до еды", 0, kAll},
    {20, 103, "За 30 минут до еды", 0, kAll},
    {21, 103, "За 1 час до еды", 0, kAll},
    {22, 103, "Через 15 минут после еды", 0, kAll},
    {23, 103, "Через 30 минут после еды", 0, kAll},
    {24, 103, "Через 1 час после еды", 0, kAll},
    {31, 200, "Клинический анализ крови", 0, kAll},
    {32, 200, "Общий анализ крови", 0, kAll},
    {33, 200, "Общий анализ мочи", 0, kAll},
    {51, 201, "Полис ОМС", 0, kChild},
    {52, 201, "Свидетельство о рождении", 0, kChild},
    {61, 6, "Нутрилон 1", 0, kChild},
    {62, 6, "Хайнц Infanta 1", 0, kChild},
    {63, 6, "Хипп 1 Combiotic", 0, kChild},
    {64, 7, "Ремедиа гречневая безмолочная", 0, kChild},
    {65, 7, "Хайнц гречневая гипоалергенная", 0, kChild},
    {66, 7, "Малютка (нутриция) гречневая молочная", 0, kChild},
    {67, 8, "Бабушкино лукошко цветная капуста", 0, kChild},
    {68, 8, "Гербер броколи", 0, kChild},
    {69, 8, "Семпер цукини с картофелем", 0, kChild},
    {70, 6, "Сцеженное молоко<tr>2", 4, kChild},
    {71, 9, "Желток яйца (шт.)<tr>12", 5, kChild},
    {72, 9, "Агуша яблочный сок (мил.)<tr>10", 5, kChild},
};

struct Template {
  const char* file;
  EditionBit edition;
  std::string profileTable;
  std::string dictionary;
  const char* profileQuery;  // the guid of the profile with integer key 1, and its settings
  std::vector<std::string> profile;
  // The end of an illness: the one entry of list 3 with deleted 4. The woman's list 3 is sexual
  // activity and has none.
  std::vector<std::string> endOfIllness;
};

const std::string kFirstProfile = fixedGuid(1, 1);

const Template kTemplates[] = {
    {"pregnant.sqlite",
     kPregnancy,
     "preg",
     "pregconst",
     "select pregguid, deleted, metrics, bodytype, sex, ifnull(sdat1, 'null'), "
     "ifnull(sbirthdate, 'null') from preg where pregid=1",
     {kFirstProfile, "0", "1", "2", "0", "null", "null"},
     {"Выздоровела<tr>2"}},
    {"child.sqlite",
     kChild,
     "child",
     "childconst",
     "select childguid, deleted, sex, blood, allergen, ifnull(sbirthdate, 'null') "
     "from child where chid=1",
     {kFirstProfile, "0", "0", fixedGuid(2, 31), "", "null"},
     {"Выздоровел<tr>2"}},
    {"woman.sqlite",
     kWoman,
     "woman",
     "womconst",
     "select womguid, body, ifnull(sbirthdate, 'null') from woman where womid=1",
     {kFirstProfile, "2", "null"},
     {}},
};

std::vector<std::string> firstRow(const SqliteConnection& db, const std::string& sql) {
  std::vector<std::string> values;
  SqliteStatement row = db.prepare(sql);
  if (!row.step()) return values;
  for (int i = 0; i < sqlite3_column_count(row.handle()); ++i)
    values.push_back(row.columnText(i).value_or("NULL"));
  return values;
}

TEST(TemplateRows, OneFirstProfileWithItsDefaults) {
  for (const Template& t : kTemplates) {
    SCOPED_TRACE(t.file);
    SqliteConnection db = openResource(t.file);
    ASSERT_TRUE(db.isOpen());
    EXPECT_EQ(firstRow(db, t.profileQuery), t.profile);
    EXPECT_EQ(countOf(db, "select count(*) from " + t.profileTable), 1);
  }
}

TEST(TemplateRows, SeedsOfTheEditionWithTheirFixedGuidsAndNoOthers) {
  for (const Template& t : kTemplates) {
    SqliteConnection db = openResource(t.file);
    int expected = 0;
    for (const Seed& seed : kSeeds) {
      SCOPED_TRACE(std::string(t.file) + " seed " + std::to_string(seed.number));
      const auto row = firstRow(db, "select cotype, coname, deleted from " + t.dictionary +
                                        " where coguid='" + fixedGuid(4, seed.number) + "'");
      if (!(seed.editions & t.edition)) {
        EXPECT_TRUE(row.empty());
        continue;
      }
      ++expected;
      EXPECT_EQ(row, (std::vector<std::string>{std::to_string(seed.cotype), seed.coname,
                                               std::to_string(seed.deleted)}));
    }
    EXPECT_EQ(countOf(db, "select count(*) from " + t.dictionary +
                              " where coguid like '00000000-0000-0000-0004-%'"),
              expected)
        << t.file;
  }
}

// Every other entry is the template's own: its guid is that of group 2 with its coid, so an old
// integer index finds it, and its coid stays below the seeds' so the two never meet.
TEST(TemplateRows, TemplateEntriesCarryTheGuidOfTheirCoid) {
  for (const Template& t : kTemplates) {
    SCOPED_TRACE(t.file);
    SqliteConnection db = openResource(t.file);
    SqliteStatement rows = db.prepare("select coid, coguid, deleted from " + t.dictionary +
                                      " where coguid not like '%-0004-%'");
    int count = 0;
    while (rows.step()) {
      ++count;
      EXPECT_LT(rows.columnInt(0), 1000);
      EXPECT_EQ(rows.columnText(1), fixedGuid(2, rows.columnInt(0)));
      EXPECT_GE(rows.columnInt(2), 2) << "the user could remove entry " << rows.columnInt(0);
    }
    EXPECT_GT(count, 0);
  }
}

TEST(TemplateRows, ListsOneToThreeAreFilledWithoutRepeats) {
  for (const Template& t : kTemplates) {
    SqliteConnection db = openResource(t.file);
    for (int list = 1; list <= 3; ++list) {
      const long long own = countOf(db, "select count(*) from " + t.dictionary +
                                            " where cotype=" + std::to_string(list) +
                                            " and coguid not like '%-0004-%'");
      EXPECT_GE(own, 8) << t.file << " list " << list;
      EXPECT_LE(own, 20) << t.file << " list " << list;
    }
    EXPECT_EQ(countOf(db, "select count(*) from (select 1 from " + t.dictionary +
                              " group by cotype, coname having count(*) > 1)"),
              0)
        << t.file;
  }
}

TEST(TemplateRows, OneEndOfIllnessWhereIllnessesAreKept) {
  for (const Template& t : kTemplates) {
    SqliteConnection db = openResource(t.file);
    EXPECT_EQ(
        firstColumn(db, "select coname from " + t.dictionary + " where cotype=3 and deleted=4"),
        t.endOfIllness)
        << t.file;
  }
}

TEST(TemplateRows, ChildBloodGroupsAndAllergens) {
  SqliteConnection db = openResource("child.sqlite");
  // The profile's default blood group is the unknown one, and it is an entry of list 4.
  EXPECT_EQ(firstRow(db,
                     "select c.cotype, c.coname from child p join childconst c "
                     "on c.coguid = p.blood where p.chid=1"),
            (std::vector<std::string>{"4", "Не известна"}));
  EXPECT_EQ(firstColumn(db, "select coid from childconst where cotype=4 order by coid"),
            (std::vector<std::string>{"31", "32", "33", "34", "35", "36", "37", "38", "39"}));
  EXPECT_GT(countOf(db, "select count(*) from childconst where cotype=5"), 0);
}

}  // namespace
}  // namespace lad::testing
