#include "store/setup_data.h"

#include <gtest/gtest.h>

#include "core/edition.h"
#include "core/ids.h"
#include "platform/images.h"
#include "store/first_launch.h"
#include "store/portrait.h"
#include "store/profiles.h"
#include "store/setup_editor.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

class SetupDataTest : public testing::StoreTest {
 protected:
  void SetUp() override { openDiary(1); }
  static Value row(const char* field, Value source) {
    Map m;
    m.set("field", field);
    m.set("source", std::move(source));
    return Value(std::move(m));
  }
  // The editor's rows of a pregnancy; the name row is left out when name is null.
  static List editorRows(const char* sdat1, const char* sdat2, const char* birth,
                         const char* name) {
    List rows{
        row("sdat1", sdat1), row("sbirthdate", birth), row("line", ""),    row("sdat2", sdat2),
        row("rost", "168"),  row("ves", "60,5"),       row("bodytype", 2), row("sex", 2)};
    if (name) rows.push_back(row("name", name));
    return rows;
  }
  static Value photoRow(Bytes image) {
    Map m;
    m.set("field", "photo");
    m.set("save", 1);
    m.set("image", std::move(image));
    return Value(std::move(m));
  }
};

TEST_F(SetupDataTest, ANewPregnancyIsCreatedEditedAndRemovedSoftly) {
  const std::string gid = newID();
  saveSetupData(
      *store, kSetupFromEditor,
      setupArrayToDic(*store, editorRows("01.02.2026", "15.02.2026", "08.11.2026", "Ева"), gid),
      gid);
  Map saved = loadSetupData(*store, gid);
  EXPECT_EQ(saved["sdat1"].text(), "2026-02-01");
  ASSERT_EQ(loadProfils(*store).size(), 2u);

  // A birth recorded on a day stays through an edit in the editor, which does not show it.
  {
    StoreBracket bracket = store->connectToBase();
    setBirthday(*store, bracket, context->dates().encodeDate(3, 11, 2026), gid,
                "{\"ves\":\"3.4\"}");
  }
  saveSetupData(
      *store, kSetupFromEditor,
      setupArrayToDic(*store, editorRows("02.02.2026", "16.02.2026", "09.11.2026", nullptr), gid),
      gid);
  Map edited = loadSetupData(*store, gid);
  EXPECT_EQ(edited["sdat1"].text(), "2026-02-02");
  EXPECT_EQ(edited["sbirthdate2"].text(), "2026-11-03");
  EXPECT_EQ(edited["birthresult"].text(), "{\"ves\":\"3.4\"}");
  EXPECT_EQ(cell("select childname from preg where pregguid='" + gid + "'"), std::nullopt)
      << "a missing field is stored as NULL";
  EXPECT_EQ(cell("select count(*) from preg where pregguid='" + gid + "'"), "1");

  // Removal: the row stays, marked, with its diary rows; the lists no longer show it.
  execute(
      "insert into pregdata (type, value, sdat, pregguid) values ('ves', '61', "
      "'2026-03-01', '" +
      gid + "')");
  saveSetupData(*store, kSetupFromEditor, setupArrayToDic(*store, {}, gid), gid);
  EXPECT_EQ(cell("select deleted from preg where pregguid='" + gid + "'"), "1");
  EXPECT_EQ(cell("select value from pregdata where pregguid='" + gid + "'"), "61");
  EXPECT_EQ(loadProfils(*store).size(), 1u);
}

TEST_F(SetupDataTest, EditorDatesThatDoNotReadAreLeftOutAndNothingElseIsLost) {
  const Map setup =
      setupArrayToDic(*store, editorRows("31.02.2026", "x", "08.11.2026", "Ева"), "G");
  EXPECT_FALSE(setup.contains("sdat1"));
  EXPECT_FALSE(setup.contains("sdat2"));
  EXPECT_EQ(setup.find("sbirthdate")->text(), "2026-11-08");
  EXPECT_EQ(setup.find("rost")->text(), "168");
  const Map removal = setupArrayToDic(*store, {}, "G");
  EXPECT_EQ(removal.size(), 1u);
  EXPECT_FALSE(removal.find("active")->boolValue());
}

TEST_F(SetupDataTest, ThePortraitIsWrittenAsJpegAndGoesWithTheProfile) {
  const std::string gid = newID();
  const platform::Image red{4, 3, Bytes(4 * 3 * 3, 0)};
  std::string error;
  List rows = editorRows("01.02.2026", "15.02.2026", "08.11.2026", "Ева");
  rows.push_back(photoRow(platform::encodeJpeg(red, 90)));
  saveSetupData(*store, kSetupFromEditor, setupArrayToDic(*store, rows, gid, &error), gid);
  EXPECT_EQ(error, "");
  const auto portrait = portraitFile(*context, gid);
  const std::string jpeg = testing::readFile(portrait);
  ASSERT_TRUE(platform::decodeImage(Bytes(jpeg.begin(), jpeg.end()), &error)) << error;

  // A picture that cannot be read leaves the portrait in place and says so.
  rows.back() = photoRow(Bytes{'n', 'o'});
  setupArrayToDic(*store, rows, gid, &error);
  EXPECT_NE(error, "");
  EXPECT_EQ(testing::readFile(portrait), jpeg);

  const auto dayPhoto = dir.path() / "Documents" / "picture" / "01-03-2026.jpg";
  testing::writeFile(dayPhoto, jpeg);
  saveSetupData(*store, kSetupFromEditor, setupArrayToDic(*store, {}, gid), gid);
  EXPECT_FALSE(std::filesystem::exists(portrait));
  EXPECT_TRUE(std::filesystem::exists(dayPhoto));
}

TEST_F(SetupDataTest, AnUnknownGuidGivesTheDefaultsAndNoGuidNoActiveKey) {
  const Map none = loadSetupData(*store, std::nullopt);
  EXPECT_FALSE(none.contains("active"));
  const Date today = context->dates().noTime(clock->now());
  EXPECT_EQ(*none.find("dat1")->asDate(), today);
  EXPECT_EQ(*none.find("birthdate")->asDate(), context->dates().addDays(today, 280));
  const Map unknown = loadSetupData(*store, std::string("nobody"));
  EXPECT_TRUE(unknown.find("active")->boolValue());
  EXPECT_FALSE(unknown.contains("sdat1"));
}

TEST_F(SetupDataTest, AChildsProfileKeepsItsAllergensThroughTheEditor) {
  openDiary(2);
  const std::string gid = newID2(1, 1);
  EXPECT_EQ(loadSetupData(*store, gid)["blood"].text(), newID2(2, 31));
  execute("update child set allergen='A<tr>B', sbirthtime='07:15'");
  Map edit = loadSetupData(*store, gid);
  edit.set("name", "Я");
  edit.set("allerg", "");
  saveSetupData(*store, kSetupFromEditor, edit, gid);
  Map saved = loadSetupData(*store, gid);
  EXPECT_EQ(saved["allerg"].text(), "A<tr>B");
  EXPECT_EQ(saved["sbirthtime"].text(), "07:15");
  EXPECT_FALSE(saved.contains("birthtime")) << "a time alone is no moment";
  EXPECT_EQ(profileList(*store).size(), 1u);
}

// A key a profile row stores, its values in an insert and in an update, its date key if a day.
struct StoredKey {
  const char* key;
  Value inserted, updated;
  const char* dateKey = nullptr;
};

// Every stored key goes in with an insert, again changed with an update, and comes back under
// the key the screens read; a day also as a date, the name also in the list of profiles.
TEST_F(SetupDataTest, EveryStoredKeyComesBackThroughAnInsertAndAnUpdate) {
  const std::vector<StoredKey> pregnancy = {
      {"metrics", 1, 1},
      {"bodytype", 3, 1},
      {"sex", 1, 2},
      {"ves", "61,5", "62"},
      {"rost", "170", "171"},
      {"name", "Ева", "Ия"},
      {"birthresult", "{}", "[]"},
      {"sdat1", "2026-01-05", "2026-01-06", "dat1"},
      {"sdat2", "2026-01-19", "2026-01-20", "dat2"},
      {"sbirthdate", "2026-10-12", "2026-10-13", "birthdate"},
      {"sbirthdate2", "2026-10-01", "2026-10-02", "birthdate2"}};
  const std::vector<StoredKey> child = {
      {"name", "Лев", "Ян"},
      {"sex", 1, 2},
      {"blood", "B1", "B2"},
      {"ves", "3,4", "3,5"},
      {"rost", "52", "53"},
      {"allerg", "A<tr>C", "D"},
      {"documents", "[]", "[1]"},
      {"sbirthdate", "2026-01-05", "2026-01-06", "birthdate"},
      {"sbirthtime", "2026-01-05 07:15:00", "2026-01-06 08:20:00", "birthtime"}};
  for (const int appid : {1, 2}) {
    openDiary(appid);
    const std::string gid = newID();
    for (const bool update : {false, true}) {
      Map setup;
      for (const StoredKey& k : isChildEdition(appid) ? child : pregnancy)
        setup.set(k.key, update ? k.updated : k.inserted);
      setup.set("active", true);
      saveSetupData(*store, kSetupFromCloud, setup, gid);
      const Map saved = loadSetupData(*store, gid);
      for (const StoredKey& k : isChildEdition(appid) ? child : pregnancy) {
        const Value& given = update ? k.updated : k.inserted;
        EXPECT_TRUE(saved[k.key] == given) << k.key << " reads " << saved[k.key].text();
        if (!k.dateKey) continue;
        const auto date = saved[k.dateKey].asDate();
        ASSERT_TRUE(date) << k.dateKey;
        EXPECT_EQ(context->dates().dateToString(*date, "yyyy-MM-dd"), given.text().substr(0, 10));
      }
      int listed = 0;
      for (const Value& profile : loadProfils(*store))
        if (profile["guid"].text() == gid) {
          ++listed;
          EXPECT_EQ(profile["childname"].text(), saved["name"].text());
        }
      EXPECT_EQ(listed, 1) << appid << (update ? " update" : " insert");
    }
  }
}

}  // namespace
}  // namespace lad
