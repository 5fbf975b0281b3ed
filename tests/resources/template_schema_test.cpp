// The tables of the database templates: every column with its type, in order, and the creation
// texts that later upgrades of old files compare with.
#include <gtest/gtest.h>

#include <map>

#include "tests/resources/resource_files.h"

namespace lad::testing {
namespace {

using Columns = std::vector<std::string>;  // "name type", in order
using Tables = std::map<std::string, Columns>;

const Tables kPregnancyTables = {
    {"preg", {"pregid integer",     "dat1 integer",   "dat2 integer",     "birthdate integer",
              "birthdate2 integer", "sdat1 text",     "sdat2 text",       "sbirthdate text",
              "sbirthdate2 text",   "sex integer",    "rost text",        "ves text",
              "metrics integer",    "childname text", "bodytype integer", "birthresult text",
              "pregguid text",      "startuse text",  "obed text",        "deleted integer"}},
    {"pregdata",
     {"datid integer", "pregid integer", "dat integer", "type text", "value text", "sdat text",
      "pregguid text"}},
    {"pregconst",
     {"coid integer", "coname text", "cotype integer", "deleted integer", "coguid text"}},
    {"pregselect",
     {"pselid integer", "pregid integer", "seltypeid integer", "seltagid integer", "pregguid text",
      "tagguid text"}},
    {"pregschvatki",
     {"schid integer", "pregid integer", "startdate integer", "enddate integer", "length integer",
      "startdates text", "enddates text", "pregguid text"}},
};

const Tables kChildTables = {
    {"child",
     {"chid integer", "birthday integer", "birthtime integer", "chname text", "sbirthdate text",
      "sbirthtime text", "sex integer", "blood text", "allergen text", "ves text", "rost text",
      "documents text", "childguid text", "startuse text", "obed text", "deleted integer"}},
    {"childdata",
     {"datid integer", "chid integer", "dat integer", "type text", "value text", "sdat text",
      "childguid text"}},
    {"childconst",
     {"coid integer", "coname text", "cotype integer", "deleted integer", "coguid text"}},
    {"childselect",
     {"pselid integer", "chid integer", "seltypeid integer", "seltagid integer", "childguid text",
      "tagguid text"}},
    {"childkorm",
     {"koid integer", "kodate integer", "kotype integer", "kovalue text", "chid integer",
      "kosum integer", "kodates text", "childguid text"}},
};

const Tables kWomanTables = {
    {"woman",
     {"womid integer", "birthday integer", "sbirthdate text", "body integer", "height text",
      "womguid text", "startuse text", "obed text"}},
    {"womdata",
     {"datid integer", "womid integer", "dat integer", "type text", "value text", "sdat text",
      "womguid text"}},
    {"womconst",
     {"coid integer", "coname text", "cotype integer", "deleted integer", "coguid text"}},
};

// SQLite tells the declared type in its own case; the types are compared in lower case.
Columns columnsOf(const SqliteConnection& db, const std::string& table) {
  return firstColumn(
      db, "select name || ' ' || lower(type) from pragma_table_info('" + table + "') order by cid");
}

void expectTables(const std::string& file, const Tables& expected) {
  SCOPED_TRACE(file);
  SqliteConnection db = openResource(file);
  ASSERT_TRUE(db.isOpen());
  Tables found;
  for (const std::string& table : firstColumn(
           db, "select name from sqlite_master where type='table' and name not like 'sqlite_%'"))
    found[table] = columnsOf(db, table);
  EXPECT_EQ(found, expected);
}

TEST(TemplateSchema, EveryTableHasItsColumnsInOrder) {
  expectTables("pregnant.sqlite", kPregnancyTables);
  expectTables("child.sqlite", kChildTables);
  expectTables("woman.sqlite", kWomanTables);
}

// The program creates these tables itself in old files with exactly these texts; the templates
// start from the same texts, with the later columns added behind them.
TEST(TemplateSchema, TablesTheProgramCreatesKeepTheirCreationText) {
  const std::pair<const char*, const char*> created[] = {
      {"pregnant.sqlite",
       "CREATE TABLE pregconst (coid integer NOT NULL PRIMARY KEY AUTOINCREMENT,coname text,cotype "
       "integer NOT NULL,deleted integer NOT NULL DEFAULT 0"},
      {"pregnant.sqlite",
       "CREATE TABLE pregselect (pselid integer PRIMARY KEY AUTOINCREMENT,pregid integer,seltypeid "
       "integer,seltagid integer"},
      {"child.sqlite",
       "CREATE TABLE childconst (coid integer NOT NULL PRIMARY KEY AUTOINCREMENT,coname "
       "text,cotype integer NOT NULL,deleted integer NOT NULL DEFAULT 0"},
      {"child.sqlite",
       "CREATE TABLE childselect (pselid integer PRIMARY KEY AUTOINCREMENT,chid integer,seltypeid "
       "integer,seltagid integer"},
      {"child.sqlite",
       "CREATE TABLE childkorm (koid integer NOT NULL PRIMARY KEY AUTOINCREMENT,kodate integer, "
       "kotype integer,kovalue text, chid integer, kosum integer"},
      {"woman.sqlite",
       "CREATE TABLE womconst (coid integer NOT NULL PRIMARY KEY AUTOINCREMENT,coname text,cotype "
       "integer NOT NULL,deleted integer NOT NULL DEFAULT 0"},
  };
  for (auto [file, text] : created) {
    SqliteConnection db = openResource(file);
    const std::string create(text);
    const std::string table = create.substr(13, create.find(' ', 13) - 13);
    const auto sql = firstColumn(db, "select sql from sqlite_master where name='" + table + "'");
    ASSERT_EQ(sql.size(), 1u) << table;
    EXPECT_TRUE(sql[0].starts_with(create)) << sql[0];
  }
}

TEST(TemplateSchema, WomanDiaryRowsBelongToTheFirstWomanByDefault) {
  SqliteConnection db = openResource("woman.sqlite");
  EXPECT_EQ(firstColumn(db,
                        "select dflt_value from pragma_table_info('womdata') "
                        "where name='womid'"),
            std::vector<std::string>{"1"});
}

}  // namespace
}  // namespace lad::testing
