#include "reports/book_dictionary.h"

#include <system_error>

#include "core/context.h"
#include "core/text_fill.h"
#include "health/pregnancy_calendar.h"
#include "store/portrait.h"
#include "store/setup_data.h"
#include "store/store.h"

namespace lad::reports {

namespace {

std::string labelled(const Context& context, const char* label, const std::string& value) {
  return fillIn("%@ %@", {context.translate(label), value});
}

std::string dayText(const Context& context, const Value& date) {
  const auto d = date.asDate();
  return d ? context.dates().dateToString(*d, "dd.MM.yyyy") : "";
}

void pregnancyLines(const Context& context, const Map& setup, Map& dic) {
  dic.set("dat1", setup["dat1"]);
  if (setup["birthdate2"].asDate()) {
    dic.set("label1", labelled(context, "Дата родов:", dayText(context, setup["birthdate2"])));
    dic.set("label2", labelled(context, "Продолжительность беременности:",
                               health::ageString(context, health::AgeMode::ObstetricAge, setup)));
  } else {
    dic.set("label1",
            labelled(context, "Приблизительная дата родов:", dayText(context, setup["birthdate"])));
  }
  dic.set("labelroot", dic["label1"]);
}

void childLines(const Context& context, const Map& setup, int year, Map& dic) {
  dic.set("label1", labelled(context, "Дата рождения:", dayText(context, setup["birthdate"])));
  dic.set("label2", fillIn(context.translate("%d-й год"), year));
  dic.set("labelroot", fillIn(context.translate("%@ (%d-й год)"),
                              {dic["caption"].text(), std::to_string(year)}));
}

}  // namespace

Map bookDictionary(Store& store, const std::string& gid, int kind, int year) {
  const Context& context = store.context();
  const int appid = context.values().appid;
  const Map setup = loadSetupData(store, gid);
  Map dic;
  const std::string name = setup["name"].text();
  dic.set("caption", name.empty() ? context.translate("Без имени") : name);
  dic.set("labelbottom",
          context.translate(isChildEdition(appid) ? "Книга сформирована программой \"Крохомир\""
                                                  : "Книга сформирована программой \"Ладанея\""));
  dic.set("booktype", kind);
  if (isChildEdition(appid))
    childLines(context, setup, year, dic);
  else if (isCycleEdition(appid))
    dic.set("labelroot", fillIn("%@ (%d)", {dic["caption"].text(), std::to_string(year)}));
  else
    pregnancyLines(context, setup, dic);
  const auto photo = portraitFile(context, gid);
  std::error_code error;
  if (std::filesystem::is_regular_file(photo, error)) dic.set("imagepath", photo.string());
  return dic;
}

}  // namespace lad::reports
