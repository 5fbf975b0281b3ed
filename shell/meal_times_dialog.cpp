#include "shell/meal_times_dialog.h"

#include <array>

#include "core/text_parts.h"
#include "core/time_list.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/field_check.h"
#include "store/profiles.h"

namespace lad::shell {

namespace {

struct MealField {
  const char* field;
  const char* caption;
  const char* prompt;
};

// In the order the stored times come: breakfast, second breakfast, lunch, afternoon meal, dinner.
constexpr std::array<MealField, 5> kMealFields{{
    {"time1", "Завтрак", "Укажите время завтрака"},
    {"time4", "Второй завтрак", "Укажите время второго завтрака"},
    {"time2", "Обед", "Укажите время обеда"},
    {"time5", "Полдник", "Укажите время полдника"},
    {"time3", "Ужин", "Укажите время ужина"},
}};
constexpr std::string_view kSeparator = "<table>";

List mealRows(const Context& c) {
  List rows;
  for (const MealField& m : kMealFields)
    rows.push_back(detailRow(c, kTime, m.caption, m.field, true, c.translate(m.prompt)));
  return rows;
}

Map mealValues(Application& app) {
  const std::string meals = getObed(app.store());
  const auto times = splitOn(meals, kSeparator);
  Map values;
  for (std::size_t i = 0; i < kMealFields.size() && i < times.size(); ++i)
    values.set(kMealFields[i].field, std::string(times[i]));
  return values;
}

}  // namespace

MealTimesDialog::MealTimesDialog(Application& app, std::string gid)
    : app_(app),
      gid_(std::move(gid)),
      editor_(app.context(), "Время приема пищи", mealRows(app.context()), mealValues(app)) {}

std::optional<MessageBox> MealTimesDialog::change(std::string_view field, const Value& source) {
  const Map* row = editor_.row(field);
  if (!row) return std::nullopt;
  if (clockMinutes(source.text())) {
    editor_.change(field, source);
    return std::nullopt;
  }
  // The field's own message for a value that is missing.
  Map refused = *row;
  refused.set("source", "");
  return checkField(app_.context(), List{Value(std::move(refused))});
}

std::string MealTimesDialog::finish(std::string*) {
  std::string meals;
  for (const MealField& m : kMealFields)
    meals += (meals.empty() ? "" : std::string(kSeparator)) + editor_.text(m.field);
  setObed(app_.store(), meals);
  return gid_;
}

}  // namespace lad::shell
