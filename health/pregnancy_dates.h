// The three dates of the pregnancy settings dialogue kept consistent while the user edits them.
#pragma once

#include <optional>
#include <string>

namespace lad {
class Context;
}  // namespace lad

namespace lad::health {

// The dialogue's date fields as the user sees them, "dd.MM.yyyy".
struct PregnancyDateTexts {
  std::string sdat1;       // first day of the last menstruation
  std::string sdat2;       // conception
  std::string sbirthdate;  // expected birth
  bool operator==(const PregnancyDateTexts&) const = default;
};

enum class PregnancyDateField { Sdat1, Sdat2, Sbirthdate };

// What the user is told when a conception date is refused: a message box's text and caption.
struct DateRefusal {
  std::string text;
  std::string caption;
};

struct DateCorrection {
  PregnancyDateTexts fields;
  std::optional<DateRefusal> refusal;
};

// The dates of a new pregnancy: its first day today, conception 14 days and the birth 280 days
// later.
PregnancyDateTexts newPregnancyDates(const Context& context);

// The fields after `changed` was edited. A new first day or expected birth moves the other two
// dates along; a conception date must lie 1 to 36 days after the first day, or it is refused
// and replaced by the first day + 14. Nothing changes when a date the rule needs does not read.
DateCorrection setupCorrectDate(const Context& context, const PregnancyDateTexts& fields,
                                PregnancyDateField changed);

}  // namespace lad::health
