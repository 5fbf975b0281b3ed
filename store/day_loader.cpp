#include "store/day_loader.h"

#include "core/context.h"
#include "core/db_cells.h"
#include "core/json_text.h"
#include "core/text_parts.h"
#include "store/day_periods.h"
#include "store/day_photo.h"
#include "store/day_regims.h"
#include "store/day_strings.h"
#include "store/dictionary.h"
#include "store/records.h"
#include "store/setup_data.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

std::string rowsFilter(DayRows rows) {
  switch (rows) {
    case DayRows::Weight:
      return " and type='ves'";
    case DayRows::Height:
      return " and type='rost'";
    case DayRows::Temperature:
      return " and type='temp'";
    case DayRows::NoAlarm:
      return " and type<>'alarm'";
    case DayRows::NoAlarmPills:
      return " and type not in ('alarm','pills')";
    case DayRows::All:
    case DayRows::Counts:
      break;
  }
  return "";
}

std::string daysQuery(const EditionTables& t, const DayRegim& plan, const DayPeriod& period) {
  const std::string table = t.data;
  const std::string guid = t.guid;
  if (plan.rows == DayRows::Counts)
    return "select sdat, sum(case when type='analizy' then 1 else 0 end) as analizy, "
           "sum(case when type='ves' and cast(value as float)>0 then 1 else 0 end) as ves, "
           "sum(case when type not in ('analizy','ves')  then 1 else 0 end) as note, "
           "max(case when type='bolezn' then value else '' end) as bolezn  from " +
           table + " where " + guid +
           "=?  and date(sdat)>=date(?) and date(sdat)<=date(?) group by date(sdat) order by "
           "date(sdat)";
  return "select sdat, type, value from " + table + " where " + guid +
         "=? and date(sdat)>=date(?) and date(sdat)" + (period.endIncluded ? "<=" : "<") +
         "date(?)" + (period.dayEnd ? " and date(sdat)<date(?)" : "") + rowsFilter(plan.rows) +
         " order by date(sdat)";
}

class DayLoader {
 public:
  DayLoader(Store& store, int regim, const std::string& gid)
      : store_(store),
        context_(store.context()),
        edition_(dayEdition(context_.values().appid)),
        regim_(regim),
        plan_(dayRegim(edition_, regim)),
        gid_(gid) {}

  List load(int year, Date date) {
    loadConstList(store_, 0, std::nullopt);
    setup_ = loadSetupData(store_, gid_);
    if (edition_ == DayEdition::Child && year >= 2) {
      setup_.set("ves", 0);
      setup_.set("rost", 0);
    }
    period_ = dayPeriod(context_, regim_, year, date, setup_);
    List work;
    bool connected = false;
    {
      StoreBracket bracket = store_.connectToBase();
      connected = bracket.db() != nullptr;
      if (connected) {
        readCarryOver(bracket);
        readDays(bracket, work);
        readCarryOver(bracket);
      }
    }
    List target = connected ? secondPass(work) : List();
    if (regim_ == kOneDayRegim) oneDay(target, date);
    return target;
  }

 private:
  bool carriesOver() const { return plan_.fill && plan_.rows != DayRows::Counts; }

  // The illness and diet that run into the period from the last entries before it.
  void readCarryOver(StoreBracket& bracket) {
    if (!carriesOver()) return;
    const std::string illness = getLastDateValue(store_, bracket, period_.start, "bolezn", gid_);
    const std::string diet = getLastDateValue(store_, bracket, period_.start, "dieta", gid_);
    setup_.set("isbolezn", !illness.empty() && illness != store_.boleznId());
    setup_.set("isdieta", !diet.empty() && leadingInteger(diet) != kDietEnd);
  }

  void readDays(StoreBracket& bracket, List& work) {
    const DateCodec& dates = context_.dates();
    SqliteStatement st =
        bracket.db()->prepare(daysQuery(tablesFor(context_.values().appid), plan_, period_));
    st.bindText(1, gid_);
    dateToBase(st, 2, period_.start, false, dates);
    dateToBase(st, 3, period_.end, false, dates);
    if (period_.dayEnd) dateToBase(st, 4, period_.dayEnd, false, dates);
    std::optional<std::string> sdat;
    std::optional<Map> day;
    while (st.step()) {
      std::string text = st.columnText(0).value_or("");
      if (text != sdat) {
        if (day) finish(*day, work);
        day.reset();
        sdat = std::move(text);
        if (auto dat = dates.dateFromString(*sdat)) day = initNoteStruct(*dat);
      }
      if (day) addRow(st, *day);
    }
    if (day) finish(*day, work);
  }

  void addRow(const SqliteStatement& st, Map& day) const {
    if (plan_.rows != DayRows::Counts) {
      day.set(st.columnText(1).value_or(""), st.columnText(2).value_or(""));
      return;
    }
    day.set("analizy", st.columnInt(1));
    day.set("ves", st.columnInt(2));
    day.set("note", st.columnInt(3));
    const std::string illness = st.columnText(4).value_or("");
    if (!illness.empty()) day.set("bolezn2", illness == store_.boleznId() ? 0 : 1);
  }

  void finish(Map& day, List& work) {
    updateNoteStrings(store_, day, setup_, regim_, plan_.simple);
    if (plan_.fill) correctPhoto(context_, day, regim_, gid_);
    work.push_back(Value(std::move(day)));
  }

  List secondPass(List& work) {
    List target;
    int next = 0;
    for (Value& each : work) {
      Map& day = *each.asMap();
      const int d = context_.dates().getDays(period_.start, *day["dat"].asDate());
      if (plan_.fill) fillDays(target, next, d, false);
      carryFrom(day);
      add(target, std::move(day));
      next = d + 1;
    }
    if (plan_.fill) fillDays(target, next, period_.dayCount, true);
    return target;
  }

  // Days from..to-1 of the period, which have no records. Between records only a photo day
  // stays (the birthday test looks at a key that no day has, so a birthday without records
  // stays only behind the last record).
  void fillDays(List& target, int from, int to, bool trailing) {
    for (int k = from; k < to; ++k) {
      Map day = initNoteStruct(context_.dates().addDays(period_.start, k));
      correctPhoto(context_, day, regim_, gid_);
      updateNoteStrings(store_, day, setup_, regim_, plan_.simple);
      const bool birthday = edition_ == DayEdition::Pregnancy &&
                            day[trailing ? "isbirthdate" : "isbirthday"].boolValue();
      if (plan_.keepAll || day["isphoto"].boolValue() || birthday)
        target.push_back(Value(std::move(day)));
    }
  }

  // The running illness and diet go on from a day with records; its recovery or diet end
  // stops them.
  void carryFrom(const Map& day) {
    const bool recovery = !store_.boleznId().empty() && day["bolezn"].text() == store_.boleznId();
    setup_.set("isbolezn", day["isbolezn"].boolValue() && !recovery);
    setup_.set("isdieta", day["isdieta"].boolValue() && day["dieta"].intValue() != kDietEnd);
  }

  void add(List& target, Map day) const {
    if (plan_.rows != DayRows::Temperature) {
      target.push_back(Value(std::move(day)));
      return;
    }
    const std::string source = day["temp"].text();
    std::int64_t pos = 0;
    for (const auto& [time, temp] : measurements(source)) {
      Map entry = day;
      entry.set("source", source);
      entry.set("pos", pos++);
      entry.set("dat", momentOf(*day["dat"].asDate(), time));
      entry.set("temp", temp);
      target.push_back(Value(std::move(entry)));
    }
  }

  // The time and value of each temperature of a day: the JSON objects, or the old
  // "<tr>"-separated items of time "<td>" value.
  static std::vector<std::pair<std::string, std::string>> measurements(const std::string& value) {
    std::vector<std::pair<std::string, std::string>> parts;
    if (jsonIs(value)) {
      const Value tree = jsonToArray(value);
      if (const List* objects = tree.asList())
        for (const Value& object : *objects)
          parts.emplace_back(object["time"].text(), object["temp"].text());
      return parts;
    }
    for (std::string_view item : splitOn(value, "<tr>")) {
      const std::vector<std::string_view> fields = splitOn(item, "<td>");
      parts.emplace_back(std::string(fields[0]), fields.size() > 1 ? std::string(fields[1]) : "");
    }
    return parts;
  }

  Date momentOf(Date day, const std::string& time) const {
    const DateCodec& dates = context_.dates();
    const std::string text = dates.dateToString(day, "dd.MM.yyyy") + " " + time;
    return dates.dateFromStringFormat(text, "dd.MM.yyyy HH:mm").value_or(day);
  }

  // The one-day regim gives its day, or an empty one when the day has no records.
  void oneDay(List& target, Date date) {
    if (target.empty()) {
      Map day = initNoteStruct(date);
      updateNoteStrings(store_, day, setup_, regim_, plan_.simple);
      target.push_back(Value(std::move(day)));
    }
    correctPhoto(context_, *target.front().asMap(), kOneDayRegim, gid_);
  }

  Store& store_;
  const Context& context_;
  DayEdition edition_;
  int regim_;
  DayRegim plan_;
  std::string gid_;
  Map setup_;
  DayPeriod period_;
};

}  // namespace

List loadNoteData(Store& store, int regim, int year, Date date, const std::string& gid) {
  return DayLoader(store, regim, gid).load(year, date);
}

Map todayNoteForDay(Store& store, Date date, const std::string& gid) {
  List days = loadNoteData(store, kOneDayRegim, 0, date, gid);
  return std::move(*days.front().asMap());
}

}  // namespace lad
