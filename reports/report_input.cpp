#include "reports/report_input.h"

#include "core/context.h"
#include "health/pregnancy_calendar.h"
#include "store/setup_data.h"
#include "store/store.h"

namespace lad::reports {

namespace {

constexpr const char* kDay = "dd.MM.yyyy";

std::string dayText(const Context& context, const Value& date) {
  const auto d = date.asDate();
  return d ? context.dates().dateToString(*d, kDay) : "";
}

std::string spanText(const Context& context, Date from, Date to) {
  return context.dates().dateToString(from, kDay) + " - " + context.dates().dateToString(to, kDay);
}

void pregnancyPairs(const Context& context, const Map& setup, Map& dic) {
  dic.set("dat1", setup["dat1"]);
  if (setup["birthdate2"].asDate()) {
    dic.set("cap1", context.translate("Дата родов:"));
    dic.set("val1", dayText(context, setup["birthdate2"]));
    dic.set("cap2", context.translate("Продолжительность беременности:"));
    dic.set("val2", health::ageString(context, health::AgeMode::ObstetricAge, setup));
  } else {
    dic.set("cap1", context.translate("Приблизительная дата родов:"));
    dic.set("val1", dayText(context, setup["birthdate"]));
    dic.set("cap2", context.translate("Возраст малыша:"));
    dic.set("val2", health::ageString(context, health::AgeMode::ConceptionAge, setup));
  }
}

void childPairs(const Context& context, const Map& setup, int year, Map& dic) {
  const DateCodec& dates = context.dates();
  const std::string name = setup["name"].text();
  dic.set("cap1", context.translate("Имя малыша:"));
  dic.set("val1", name.empty() ? context.translate("Без имени") : name);
  dic.set("cap2", context.translate("Дата рождения:"));
  dic.set("val2", dayText(context, setup["birthdate"]));
  const auto born = setup["birthdate"].asDate();
  if (!born) return;
  const Date first = dates.addYears(*born, year - 1);
  dic.set("cap3", context.translate("Период отчета:"));
  dic.set("val3", spanText(context, first, dates.addDays(dates.addYears(first, 1), -1)));
}

void womanPairs(const Context& context, int year, Map& dic) {
  const DateCodec& dates = context.dates();
  dic.set("cap1", context.translate("Период отчета:"));
  dic.set("val1", spanText(context, dates.encodeDate(1, 1, year), dates.encodeDate(31, 12, year)));
}

}  // namespace

Map diaryReportInput(Store& store, const std::string& gid, int year) {
  const Context& context = store.context();
  const int appid = context.values().appid;
  const Map setup = loadSetupData(store, gid);
  Map dic;
  dic.set("caption", context.translate(context.edition().caption));
  if (isChildEdition(appid))
    childPairs(context, setup, year, dic);
  else if (isCycleEdition(appid))
    womanPairs(context, year, dic);
  else
    pregnancyPairs(context, setup, dic);
  return dic;
}

}  // namespace lad::reports
