#include "shell/week_notices.h"

#include "cloud/cloud_writers.h"
#include "core/edition.h"
#include "core/ids.h"
#include "core/text_fill.h"
#include "health/doctor_due.h"
#include "health/pregnancy_calendar.h"
#include "store/selections.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

constexpr int kBabyRow = 4, kWomanRow = 5, kDoctorRow = 7;
constexpr int kDismissedWeeks = 1000;  // + the row: the weeks whose notices were read

int weekOf(Store& store, const std::string& gid) {
  return health::getCurWeek(store.context(), loadSetupData(store, gid));
}

}  // namespace

bool hasWeekNotices(int appid, int row) {
  return isPregnancyEdition(appid) && (row == kBabyRow || row == kWomanRow || row == kDoctorRow);
}

std::vector<std::string> weekNotices(Store& store, int row, const std::string& gid) {
  return health::getTodayWarning(store, row, weekOf(store, gid), gid);
}

std::optional<MessageBox> readWeekNotices(Store& store, int row, const std::string& gid) {
  const Context& context = store.context();
  const int week = weekOf(store, gid);
  const auto lines = health::getTodayWarning(store, row, week, gid);
  if (lines.empty()) return std::nullopt;
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) text += "\n";
    if (lines.size() > 1) text += std::to_string(i + 1) + ". ";
    text += lines[i];
  }
  const std::string dismissed = newID2(2, week);
  setCheckData(store, kDismissedWeeks + row, dismissed, true, gid);
  cloud::cloudTickChanged(store, true, dismissed, kDismissedWeeks + row, gid);
  MessageBox message;
  message.caption = fillIn(context.translate("События %d недели"), {std::to_string(week)});
  message.text = std::move(text);
  message.button = context.translate("ОК");
  return message;
}

}  // namespace lad::shell
