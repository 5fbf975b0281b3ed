#include "store/restore.h"

#include <gtest/gtest.h>

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
  {
    StoreBracket bracket = store->connectToBase();
    ASSERT_TRUE(bracket.db()->execute("update preg set childname='Мила' where pregid=1"));
  }
  EXPECT_FALSE(fromOldVersionNewRestore(*store));
  EXPECT_EQ(cell("select childname from preg where pregid=1"), "Мила");
}

TEST_F(RestoreTest, ADatabaseLeftInAnOldPlaceReplacesTheLiveFileWhichIsKeptAside) {
  open();
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  const auto documentsCopy = dir.path() / "Documents" / "pregnant.sqlite";
  std::filesystem::copy_file(store->liveFile(), documentsCopy);
  {
    SqliteConnection old(documentsCopy, SqliteConnection::Mode::ReadWrite);
    ASSERT_TRUE(old.execute("update preg set childname='из документов' where pregid=1"));
  }
  {
    StoreBracket bracket = store->connectToBase();
    ASSERT_TRUE(bracket.db()->execute("update preg set childname='живой' where pregid=1"));
  }
  EXPECT_FALSE(fromOldVersionNewRestore(*store));
  EXPECT_FALSE(std::filesystem::exists(documentsCopy));
  EXPECT_EQ(cell("select childname from preg where pregid=1"), "из документов");

  std::optional<std::filesystem::path> keptAside;
  for (const auto& entry : std::filesystem::directory_iterator(reserv()))
    if (entry.path().filename().string().starts_with("replaced-")) keptAside = entry.path();
  ASSERT_TRUE(keptAside);
  SqliteConnection kept(*keptAside, SqliteConnection::Mode::ReadOnly);
  SqliteStatement name = kept.prepare("select childname from preg where pregid=1");
  ASSERT_TRUE(name.step());
  EXPECT_EQ(name.columnText(0), "живой");
}

TEST_F(RestoreTest, TheBaseFileTestCallsOnlyAReadableFileWithoutEntriesBad) {
  open();
  EXPECT_TRUE(testBaseFile(*store)) << "a missing file counts as good";
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  EXPECT_TRUE(testBaseFile(*store));
  {
    StoreBracket bracket = store->connectToBase();
    ASSERT_TRUE(bracket.db()->execute("delete from pregconst"));
  }
  EXPECT_FALSE(testBaseFile(*store));
  testing::writeFile(store->liveFile(), "garbage");
  EXPECT_FALSE(testBaseFile(*store));
}

TEST_F(RestoreTest, TheProgramsEntriesAreWrittenInTheLanguageOfTheFirstLaunch) {
  open(1, 2);
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  const std::string seed = "00000000-0000-0000-0004-000000000010";
  const std::string illnessEnd = "00000000-0000-0000-0004-000000000001";
  EXPECT_EQ(cell("select coname from pregconst where coguid='" + seed + "'"), "Täglich");
  EXPECT_EQ(cell("select coname from pregconst where coguid='" + illnessEnd + "'"), "Genesen<tr>2");
}

}  // namespace
}  // namespace lad
