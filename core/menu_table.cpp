#include "core/menu_table.h"

#include <span>

namespace lad {

namespace {

struct Row {
  int tp;
  const char* pic;  // nullptr: the row has no picture at all
  const char* name;
  int id;
  const char* comment;
  const char* gid;
  bool russianOnly = false;
};

// Rows that several editions share.
constexpr Row kToday{1, "icon-today.png", "Сегодня", 1, "", "LOCAL"};
constexpr Row kInday{1, "icon-inday.png", "Расписание на день", 2, "", "LOCAL"};
constexpr Row kGraphs{1, "icon-graph.png", "Графики ребенка", 3, "", "LOCAL"};
constexpr Row kWoman{1, "icon-woman.png", "Женщина", 5, "", "LOCAL"};
constexpr Row kTimeline{1, "icon-plane.png", "Хронология", 9, "", "LOCAL"};
constexpr Row kDiary{1, "icon-note.png", "Дневник", 8, "", "LOCAL"};
constexpr Row kBook{2, nullptr, "Сформировать фотокнигу", 23, "", "LOCAL"};
constexpr Row kReport{2, nullptr, "Сформировать PDF отчет", 21, "", "LOCAL"};
constexpr Row kProfileSetup{2, nullptr, "Настройки", 22, "", "LOCAL"};
constexpr Row kLists{4,
                     "m-list.png",
                     "Что может понадобиться",
                     33,
                     "Различные списки того, что может понадобиться",
                     "MAIN"};

const Row kPregnancyRows[] = {
    kToday,
    kInday,
    kGraphs,
    {1, "icon-baby.png", "Развитие ребенка", 4, "", "LOCAL"},
    kWoman,
    {1, "icon-shvatki.png", "Схватки", 6, "", "LOCAL"},
    {1, "icon-doctor.png", "К доктору", 7, "", "LOCAL", true},
    {1, "icon-3d.png", "Беременность в 3D", 24, "", "LOCAL"},
    kTimeline,
    kDiary,
    kBook,
    kReport,
    kProfileSetup,
    {3, nullptr, "Новая беременность", 31, "", "MAIN"},
    {4, "m-library.png", "База знаний", 32, "Подборка информации по беременности и родам", "MAIN"},
    kLists,
    {4, "m-clinic.png", "Мед. учреждения и лаборатории", 40,
     "Карта с медицинскими учреждениями и лабораториями", "MAIN", true},
    {4, "m-doctor.png", "Диалог с врачом", 46, "Удаленное ведение Вашей беременности Вашим врачом",
     "MAIN", true},
    {4, "m-opros.png", "Опросы", 45, "Социологические опросы на темы по беременности", "MAIN",
     true},
    {4, "m-shop.png", "Витрина магазина", 48, "Подборка интересных товаров для беременных", "MAIN",
     true},
};

const Row kChildRows[] = {
    kToday,
    kInday,
    kGraphs,
    kTimeline,
    kDiary,
    kBook,
    kReport,
    kProfileSetup,
    {3, nullptr, "Новый ребенок", 31, "", "MAIN"},
    {4, "m-library.png", "База знаний", 32, "Подборка информации по уходу за ребенком", "MAIN"},
    kLists,
    {4, "m-clinic.png", "Мед. учреждения и лаборатории", 40,
     "Карта с детскими поликлиниками и лабораториями", "MAIN", true},
    {4, "m-opros.png", "Опросы", 45, "Социологические опросы на темы по воспитанию детей", "MAIN",
     true},
    {4, "m-shop.png", "Витрина магазина", 48, "Подборка интересных товаров для детей", "MAIN",
     true},
};

const Row kWomanRows[] = {
    kToday,
    kInday,
    kWoman,
    kDiary,
    kReport,
    kProfileSetup,
    {4, "m-library.png", "База знаний", 32, "Подборка информации о женском здоровье", "MAIN"},
    {4, "m-clinic.png", "Мед. учреждения и лаборатории", 40,
     "Карта с медицинскими учреждениями и лабораториями", "MAIN", true},
    {4, "m-opros.png", "Опросы", 45, "Социологические опросы на темы женского здоровья", "MAIN",
     true},
};

// Rows that close the menu of every edition.
const Row kCommonRows[] = {
    {4, "m-help.png", "Поддержка", 34,
     "Обязательно зайдите сюда, если у вас есть вопросы или проблемы с программой", "MAIN", true},
    {4, "m-app.png", "", 36, "Возможно Вас заинтересуют другие мои программы", "MAIN"},
    {4, "m-rating.png", "", 37,
     "Если у Вас есть время, поставьте пожалуйста оценку программе в AppStore. Высокий рейтинг - "
     "это дополнительный стимул к работе над ней",
     "MAIN"},
    {4, "m-cloud.png", "", 38, "Настройка режима работы с ICloud", "MAIN"},
    {4, "m-background.png", "", 42, "Настройка заднего фона", "MAIN"},
    {4, "m-calendar.png", "Календарь напоминаний", 57,
     "Напоминания и приемы лекарств в календаре телефона", "MAIN"},
    {5, "", "", 51, "Не показывать в дневнике пустые дни", "MAIN"},
    {5, "", "", 52, "Запрашивать пароль при входе в программу", "MAIN"},
    {5, "", "", 53, "Включить возможность перемещения между разделами наклоном устройства", "MAIN"},
    {5, "", "", 54, "Включить напоминания о приеме лекарств", "MAIN"},
    {5, "", "", 55, "Показывать количество новых сообщений в чате", "MAIN"},
    {5, "", "", 56, "Показывать контекстную рекламу", "MAIN"},
};

std::span<const Row> editionRows(int appid) {
  switch (appid) {
    case 2:
      return kChildRows;
    case 3:
      return kWomanRows;
    default:
      return kPregnancyRows;
  }
}

Value menuAddItem(int tp, Value pic, const std::string& name, int id, const std::string& comment,
                  const char* gid) {
  Map item;
  item.set("tp", tp);
  item.set("pic", std::move(pic));
  item.set("name", name);
  item.set("id", id);
  item.set("comment", comment);
  item.set("gid", gid);
  item.set("needupdate", false);
  return item;
}

void addRows(List& menu, std::span<const Row> rows, int langid, const Translate& translate) {
  for (const Row& r : rows) {
    if (r.russianOnly && langid != 1) continue;
    menu.push_back(menuAddItem(r.tp, r.pic ? Value(r.pic) : Value(), translate(r.name), r.id,
                               translate(r.comment), r.gid));
  }
}

}  // namespace

List buildMenuTable(int appid, int langid, const std::string& version, const Translate& translate) {
  List menu;
  addRows(menu, editionRows(appid), langid, translate);
  addRows(menu, kCommonRows, langid, translate);
  std::string versionLine = translate("Версия %@");
  if (auto at = versionLine.find("%@"); at != std::string::npos)
    versionLine.replace(at, 2, version);
  menu.push_back(menuAddItem(kMenuVersion, "", "", 0, versionLine, "MAIN"));
  return menu;
}

int homePageOf(const List& menu) {
  int home = 0;
  for (std::size_t i = 0; i < menu.size(); ++i)
    if (menu[i]["tp"].intValue() == kMenuPage) home = static_cast<int>(i) + 1;
  return home;
}

int menuItemCheck(List& menu, int id, bool checked) {
  for (std::size_t i = 0; i < menu.size(); ++i) {
    Map* row = menu[i].asMap();
    if (row && menu[i]["id"].intValue() == id) {
      row->set("checked", checked);
      return static_cast<int>(i) + 1;
    }
  }
  return -1;
}

const Map* menuRow(const List& menu, int id) {
  for (const Value& v : menu)
    if (v["id"].intValue() == id) return v.asMap();
  return nullptr;
}

}  // namespace lad
