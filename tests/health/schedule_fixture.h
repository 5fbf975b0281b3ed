// An installation of one edition whose content folder holds a doctor's plan and a notice file of
// the test's own beside the program's other resources, with a pregnancy in its week 11 on the
// test's today (Monday 30 March 2026).
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/edition.h"
#include "health/day_schedule.h"
#include "store/dictionary.h"
#include "store/first_launch.h"
#include "store/records.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/store/store_fixture.h"

namespace lad::testing {

// Not the profile that the first launch makes.
inline const std::string kScheduleGid = "SCHEDULE-PREGNANCY";

// Week 12 from 12; an old number "7" that ticks as a guid; a full guid; items that are never due
// (no day text, no checkid, no week).
inline constexpr const char* kDoctorPlan = R"([{"groupid": 1, "Content": [
  {"tp": 4, "text": "Визит", "checkid": "7", "planestart": 12, "indaycomment": "Сходить к врачу"},
  {"tp": 4, "text": "Анализ", "checkid": "D0C7A000-0000-4000-8000-000000000102",
   "planestart": 2, "indaycomment": "Сдать анализ"},
  {"tp": 4, "text": "Без текста дня", "checkid": "8", "planestart": 1},
  {"tp": 4, "text": "Без отметки", "planestart": 1, "indaycomment": "Не должен"},
  {"tp": 4, "text": "Без недели", "checkid": "9", "planestart": 0, "indaycomment": "Тоже нет"}
]}])";
// A checkid of five characters is no old number.
inline constexpr const char* kDoctorHelp =
    R"([{"Content": [{"checkid": "12345", "planestart": 3, "indaycomment": "Узнать об анализе"}]}])";

class ScheduleTest : public StoreTest {
 protected:
  void SetUp() override { launchEdition(1); }

  void launchEdition(int appid) {
    makeResources();
    open(appid, 1, resources.path());
    fromOldVersion(*store);
    if (isPregnancyEdition(appid)) addPregnancy(*store, kScheduleGid, day(30 - 70), "60");
    listData = loadConstList(*store, 0, std::nullopt);
  }

  // A day of March 2026 (earlier ones as 0 and below), or of another month.
  Date day(int d, int m = 3) const {
    return context->dates().addDays(context->dates().encodeDate(1, m, 2026), d - 1);
  }
  void put(const std::string& type, const std::string& value, Date on) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, type, value, on, kScheduleGid, true, false);
  }
  void writeContent(const std::string& name, const std::string& text) {
    std::filesystem::remove(content() / name);
    writeFile(content() / name, text);
  }
  std::filesystem::path content() const { return resources.path() / "content"; }
  // The rows of the day's schedule, each as "pos tp right|value".
  std::vector<std::string> rows(Date on) {
    std::vector<std::string> out;
    for (const health::ScheduleRow& r : health::prepare(*store, on, kScheduleGid, listData))
      out.push_back(r.pos + " " + std::to_string(r.tp) + " " + r.right + "|" + r.value);
    return out;
  }

  TempDir resources;
  List listData;

 private:
  // Links to the program's resources, with the plan files replaced.
  void makeResources() {
    namespace fs = std::filesystem;
    if (fs::exists(content())) return;
    const fs::path real = LADANEYA_RESOURCES_DIR;
    for (const auto& entry : fs::directory_iterator(real))
      if (entry.path().filename() != "content")
        fs::create_symlink(entry.path(), resources.path() / entry.path().filename());
    fs::create_directory(content());
    for (const auto& entry : fs::directory_iterator(real / "content"))
      fs::create_symlink(entry.path(), content() / entry.path().filename());
    writeContent("doctor-u.jsn", kDoctorPlan);
    writeContent("doctorhelp-u.jsn", kDoctorHelp);
    writeContent("warning.txt",
                 "4<td>11<td>Неделя одиннадцать<tr>\n5<td>11<td>Малыш растёт<tr>\n"
                 "4<td>12<td>Другая неделя<tr>\n4<td>11\n");
  }
};

}  // namespace lad::testing
