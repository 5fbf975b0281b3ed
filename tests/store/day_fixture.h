// An installation of one edition with its dictionary loaded, and the records, profiles and
// photos of the day model's tests.
#pragma once

#include "store/day_loader.h"
#include "store/dictionary.h"
#include "store/records.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/store/store_fixture.h"

namespace lad::testing {

class DayTest : public StoreTest {
 protected:
  static constexpr const char* kGid = "DAY-PROFILE";

  // A fresh installation of the edition, whatever an earlier one of the test left behind.
  void openEdition(int appid) {
    store.reset();
    context.reset();
    for (const auto& entry : std::filesystem::directory_iterator(dir.path()))
      std::filesystem::remove_all(entry.path());
    openDiary(appid);
    listData = loadConstList(*store, 0, std::nullopt);
    recovery = store->boleznId();
  }
  void put(const std::string& type, const std::string& value, Date on) {
    StoreTest::put(type, value, on, kGid);
  }
  List load(int regim, int year, Date date) {
    return loadNoteData(*store, regim, year, date, kGid);
  }
  std::string dateText(const Value& day) const {
    return context->dates().dateToString(*day["dat"].asDate(), "yyyy-MM-dd");
  }
  // The dates of the days, joined by " ".
  std::string datesOf(const List& days) const {
    std::string text;
    for (const Value& d : days) text += (text.empty() ? "" : " ") + dateText(d);
    return text;
  }
  const Value* find(const List& days, const std::string& date) const {
    for (const Value& d : days)
      if (dateText(d) == date) return &d;
    return nullptr;
  }

  List listData;
  std::string recovery;  // the dictionary entry that ends an illness
};

}  // namespace lad::testing
