#include "store/dictionary.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "store/new_entry.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

class DictionaryTest : public testing::StoreTest {
 protected:
  void SetUp() override { openDiary(1); }
  // The entry of the guid in a fresh load of the list, or nullptr.
  std::optional<Value> loaded(int cotype, const std::string& guid) {
    const List entries = loadConstList(*store, cotype, std::nullopt);
    const Value* entry = listByIndex(guid, entries);
    return entry ? std::optional<Value>(*entry) : std::nullopt;
  }
  static std::string seed(int n) { return newID2(4, n); }
};

TEST_F(DictionaryTest, LoadingBuildsEntriesFiltersRemovedOnesAndMarksCheckedGuids) {
  const std::string gone = addConst(*store, 3, "Ветрянка", 0, std::nullopt);
  ASSERT_TRUE(deleteConst(*store, gone));
  EXPECT_TRUE(loaded(0, gone)) << "all lists keep removed entries for old values";
  EXPECT_FALSE(loaded(3, gone)) << "one list shows no removed entry";

  const std::string unnamed = addConst(*store, 101, "x", 0, std::nullopt);
  execute("update pregconst set coname=null where coguid='" + unnamed + "'");
  EXPECT_EQ((*loaded(101, unnamed))["cap"], Value("Без названия"));

  const List illnesses =
      loadConstList(*store, 3, seed(2) + "<tr>1003<tr>" + newID2(2, 301) + "<tr>");
  ASSERT_FALSE(illnesses.empty());
  const Value& first = illnesses.front();
  EXPECT_EQ(first["index"], Value(seed(1))) << "the end-of-illness entry stands first";
  EXPECT_EQ(first["cap"], Value("Выздоровела<tr>2")) << "the tail stays in the name";
  EXPECT_EQ(first["deleted"], Value(4));
  std::vector<std::string> checked;
  for (const Value& entry : illnesses)
    if (entry["checked"].boolValue()) checked.push_back(entry["index"].text());
  EXPECT_EQ(checked, (std::vector<std::string>{newID2(2, 301), seed(2)}))
      << "an old index in the checked text marks nothing";
}

TEST_F(DictionaryTest, OnlyOrdinaryEntriesCanBeRemoved) {
  for (int deleted = 2; deleted <= 5; ++deleted) {
    const std::string guid = addConst(*store, 9, "Сок", deleted, std::nullopt);
    EXPECT_FALSE(deleteConst(*store, guid)) << "deleted " << deleted;
    EXPECT_EQ((*loaded(9, guid))["deleted"], Value(deleted));
  }
  const std::string own = addConst(*store, 9, "Кефир", 0, std::nullopt);
  EXPECT_TRUE(deleteConst(*store, own));
  EXPECT_FALSE(deleteConst(*store, own)) << "a removed entry is gone already";
}

TEST_F(DictionaryTest, MergingAddsWhatIsMissingAndTheFirstArrivalWins) {
  List incoming;
  addToList(incoming, seed(2), "Cold", 3, false);  // known here: stays "Простуда"
  addToList(incoming, "NEW-1", "Common cold", 3, true);
  addToList(incoming, "NEW-1", "Later name", 3, false);
  addToList(incoming, "", "No guid", 3, false);
  incoming[1].asMap()->set("deleted", 3);
  correctConstList(*store, incoming);

  EXPECT_EQ((*loaded(3, seed(2)))["cap"], Value("Простуда"));
  EXPECT_EQ(cell("select coname || '/' || deleted from pregconst where coguid='NEW-1'"),
            "Common cold/3")
      << "the other device's translated name is stored";
  EXPECT_EQ(cell("select count(*) from pregconst where coguid='NEW-1'"), "1");
  EXPECT_EQ(cell("select count(*) from pregconst where coname='No guid'"), "0");
}

TEST_F(DictionaryTest, LookupReadsOldIntegerIndexesAsTheirFixedGuids) {
  openDiary(2);
  const List all = loadConstList(*store, 0, std::nullopt);
  EXPECT_EQ(listByIndex(std::nullopt, all), nullptr);
  const Value* blood = listByIndex(std::string("31"), all);
  ASSERT_NE(blood, nullptr);
  EXPECT_EQ((*blood)["index"], Value(newID2(2, 31)));
  EXPECT_EQ(listByIndex(newID2(2, 31), all), blood);
}

TEST(NewEntryTest, TheDialogKindDecidesNameAndKind) {
  const auto entry = [](int kind, NewEntryInput input) {
    const NewEntry e = newEntryFor(kind, input);
    return e.coname + "|" + std::to_string(e.deleted);
  };
  EXPECT_EQ(entry(1, {"Витамин D"}), "Витамин D|0");
  EXPECT_EQ(entry(2, {"Корь", true}), "Корь<tr>1|2");
  EXPECT_EQ(entry(2, {"Корь", false}), "Корь|3");
  EXPECT_EQ(entry(3, {"Желток яйца", false, 3}), "Желток яйца (шт.)<tr>12|0");
}

}  // namespace
}  // namespace lad
