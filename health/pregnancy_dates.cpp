#include "health/pregnancy_dates.h"

#include "core/context.h"

namespace lad::health {

namespace {

constexpr std::string_view kFieldFormat = "dd.MM.yyyy";
constexpr int kTermDays = 280;
constexpr int kConceptionDays = 14;
constexpr int kLastConceptionDay = 36;

std::optional<Date> readField(const Context& context, const std::string& text) {
  return context.dates().dateFromStringFormat(text, kFieldFormat);
}

std::string fieldText(const Context& context, Date first, int days) {
  const DateCodec& dates = context.dates();
  return dates.dateToString(dates.addDays(first, days), kFieldFormat);
}

// All three fields from the first day of the last menstruation.
PregnancyDateTexts datesFromFirstDay(const Context& context, Date first) {
  return {fieldText(context, first, 0), fieldText(context, first, kConceptionDays),
          fieldText(context, first, kTermDays)};
}

bool conceptionFits(const Context& context, Date first, Date conception) {
  const int days = context.dates().getDays(first, conception);
  return days >= 1 && days <= kLastConceptionDay;
}

DateCorrection correctConception(const Context& context, const PregnancyDateTexts& fields) {
  const auto first = readField(context, fields.sdat1);
  const auto conception = readField(context, fields.sdat2);
  if (!first || !conception || conceptionFits(context, *first, *conception)) return {fields, {}};
  PregnancyDateTexts corrected = fields;
  corrected.sdat2 = fieldText(context, *first, kConceptionDays);
  DateRefusal refusal{context.translate("Дата зачатия не может быть раньше первого дня последней "
                                        "менструации или позже этой даты на 36 дней."),
                      context.translate("Корректировка даты зачатия")};
  return {corrected, refusal};
}

}  // namespace

PregnancyDateTexts newPregnancyDates(const Context& context) {
  return datesFromFirstDay(context, context.dates().noTime(context.clock().now()));
}

DateCorrection setupCorrectDate(const Context& context, const PregnancyDateTexts& fields,
                                PregnancyDateField changed) {
  switch (changed) {
    case PregnancyDateField::Sdat1:
      if (const auto first = readField(context, fields.sdat1))
        return {datesFromFirstDay(context, *first), {}};
      return {fields, {}};
    case PregnancyDateField::Sbirthdate:
      if (const auto birth = readField(context, fields.sbirthdate))
        return {datesFromFirstDay(context, context.dates().addDays(*birth, -kTermDays)), {}};
      return {fields, {}};
    case PregnancyDateField::Sdat2:
      return correctConception(context, fields);
  }
  return {fields, {}};
}

}  // namespace lad::health
