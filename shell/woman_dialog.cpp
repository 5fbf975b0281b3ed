#include "shell/woman_dialog.h"

#include <array>

#include "core/text_parts.h"
#include "shell/editor/detail_rows.h"
#include "store/profiles.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

// The meals in the order their times are kept, joined by "<table>".
constexpr std::array<const char*, 5> kMeals = {"Завтрак", "Второй завтрак", "Обед", "Полдник",
                                               "Ужин"};
constexpr std::string_view kMealSeparator = "<table>";

std::string mealField(std::size_t i) {
  return "meal" + std::to_string(i + 1);
}

List womanRows(const Context& c) {
  List rows{
      detailRow(c, kText, "Укажите дату рождения, рост и телосложение", ""),
      detailRow(c, kDate, "Дата рождения", "sbirthdate"),
      detailRow(c, kNumber, "Рост (см.)", "rost"),
      detailRow(c, kSegments, "Худощавое|Среднее|Полное", "build"),
      detailRow(c, kLine, "", ""),
      detailRow(c, kText, "Время приема пищи", ""),
  };
  for (std::size_t i = 0; i < kMeals.size(); ++i)
    rows.push_back(detailRow(c, kTime, kMeals[i], mealField(i)));
  return rows;
}

// The stored profile in the editor's forms: the date as "dd.MM.yyyy", the build as the place of
// its segment (body types count from 1), the meal times one to a row.
Map womanValues(Application& app, const std::string& gid) {
  const Context& c = app.context();
  const Map setup = loadSetupData(app.store(), gid);
  Map values;
  if (auto born = setup["birthdate"].asDate())
    values.set("sbirthdate", c.dates().dateToString(*born, "dd.MM.yyyy"));
  values.set("rost", setup["rost"]);
  const std::int64_t body = setup["bodytype"].intValue();
  values.set("build", body >= 1 && body <= 3 ? body - 1 : 1);
  const std::string meals = getObed(app.store());
  const auto times = splitOn(meals, kMealSeparator);
  for (std::size_t i = 0; i < kMeals.size() && i < times.size(); ++i)
    values.set(mealField(i), std::string(times[i]));
  return values;
}

}  // namespace

WomanDialog::WomanDialog(Application& app, std::string gid)
    : app_(app),
      gid_(std::move(gid)),
      editor_(app.context(), "Настройки", womanRows(app.context()), womanValues(app, gid_)) {}

std::optional<MessageBox> WomanDialog::change(std::string_view field, const Value& source) {
  editor_.change(field, source);
  return std::nullopt;
}

// The five times joined; a time that does not read keeps the one stored before.
std::string WomanDialog::meals() const {
  const Context& c = app_.context();
  const std::string before = getObed(app_.store());
  const auto stored = splitOn(before, kMealSeparator);
  std::string joined;
  for (std::size_t i = 0; i < kMeals.size(); ++i) {
    std::string time = editor_.text(mealField(i));
    if (!c.dates().dateFromStringFormat(time, "HH:mm"))
      time = i < stored.size() ? std::string(stored[i]) : "";
    joined += (i ? std::string(kMealSeparator) : "") + time;
  }
  return joined;
}

std::string WomanDialog::finish(std::string*) {
  const Context& c = app_.context();
  Map setup;
  if (auto born = c.dates().dateFromStringFormat(editor_.text("sbirthdate"), "dd.MM.yyyy"))
    setup.set("sbirthdate", c.dates().dateToString(*born, "yyyy-MM-dd"));
  setup.set("rost", editor_.text("rost"));
  const Map* build = editor_.row("build");
  setup.set("bodytype", (build ? (*build)["source"].intValue() : 1) + 1);
  saveWomanSetup(app_.store(), setup, gid_);
  setObed(app_.store(), meals());
  return gid_;
}

}  // namespace lad::shell
