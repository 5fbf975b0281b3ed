#include "store/restore.h"

#include <gtest/gtest.h>

#include <set>

#include "store/first_launch.h"
#include "store/reserve_copies.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

class RestoreTest : public testing::StoreTest {};

TEST_F(RestoreTest, AFirstStartCopiesTheTemplateOnceAndLaterStartsKeepTheLiveFile) {
  open();
  EXPECT_TRUE(fromOldVersionNewRestore(*store));
  EXPECT_TRUE(isSoundDatabase(store->liveFile()));
  execute("update preg set childname='Мила' where pregid=1");
  EXPECT_FALSE(fromOldVersionNewRestore(*store));
  EXPECT_EQ(cell("select childname from preg where pregid=1"), "Мила");
}

// Old databases in both old places, taken over in one second: the documents one wins, and the
// live diary and the library one are both kept aside, neither overwriting the other. Kept
// copies are never pruned as reserve copies.
TEST_F(RestoreTest, DatabasesInBothOldPlacesReplaceTheLiveFileAndEveryReplacedOneIsKept) {
  open();
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  const auto childNameIn = [](const std::filesystem::path& file) {
    SqliteConnection db(file, SqliteConnection::Mode::ReadOnly);
    SqliteStatement name = db.prepare("select childname from preg where pregid=1");
    return name.step() ? name.columnText(0).value_or("") : "";
  };
  const auto oldCopy = [&](const std::filesystem::path& file, const std::string& name) {
    std::filesystem::copy_file(store->liveFile(), file);
    SqliteConnection old(file, SqliteConnection::Mode::ReadWrite);
    EXPECT_TRUE(old.execute("update preg set childname='" + name + "' where pregid=1"));
  };
  oldCopy(dir.path() / "Library" / "pregnant.sqlite", "из библиотеки");
  oldCopy(dir.path() / "Documents" / "pregnant.sqlite", "из документов");
  execute("update preg set childname='живой' where pregid=1");
  EXPECT_FALSE(fromOldVersionNewRestore(*store));
  EXPECT_EQ(cell("select childname from preg where pregid=1"), "из документов");

  std::multiset<std::string> kept;
  for (const auto& entry : std::filesystem::directory_iterator(reserv()))
    if (entry.path().filename().string().starts_with(kReplacedPrefix))
      kept.insert(childNameIn(entry.path()));
  EXPECT_EQ(kept, (std::multiset<std::string>{"живой", "из библиотеки"}));

  for (int day = 0; day < 6; ++day) {
    clock->advance(std::chrono::hours(24));
    StoreBracket bracket = store->connectToBase();
  }
  std::size_t dated = 0, keptAfter = 0;
  for (const auto& entry : std::filesystem::directory_iterator(reserv())) {
    const std::string name = entry.path().filename().string();
    dated += name.size() == 13 && name.ends_with(".sqlite");
    keptAfter += name.starts_with(kReplacedPrefix);
  }
  EXPECT_EQ(dated, 4u) << "kept copies take no place of a reserve copy";
  EXPECT_EQ(keptAfter, 2u);
}

TEST_F(RestoreTest, TheBaseFileTestCallsOnlyAReadableFileWithoutEntriesBad) {
  open();
  EXPECT_TRUE(testBaseFile(*store)) << "a missing file counts as good";
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  EXPECT_TRUE(testBaseFile(*store));
  execute("delete from pregconst");
  EXPECT_FALSE(testBaseFile(*store));
  testing::writeFile(store->liveFile(), "garbage");
  EXPECT_FALSE(testBaseFile(*store));
}

TEST_F(RestoreTest, TheProgramsEntriesAreWrittenInTheLanguageOfTheFirstLaunch) {
  open(1, 2);
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  EXPECT_EQ(
      cell("select coname from pregconst where coguid='00000000-0000-0000-0004-000000000001'"),
      "Genesen<tr>2");
}

}  // namespace
}  // namespace lad
