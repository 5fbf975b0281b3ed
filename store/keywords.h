// The record keywords of the diary: in which edition each is a field of the day, its field kind
// and the dictionary list it draws on.
#pragma once

#include <string_view>
#include <vector>

namespace lad {

// Field kinds of the day editor that the store treats in a way of its own.
enum FieldKind {
  kKindMulti = 1,
  kKindChoice = 2,
  kKindText = 3,
  kKindTemperature = 4,
  kKindAlarm = 5,
  kKindHeight = 6,
  kKindWeight = 7,
  kKindIllness = 8,
  kKindTeeth = 13,
  kKindDayType = 14,
  kKindBirth = 16,
  kKindPills = 23,
  kKindSpans = 29,
  kKindPhoto = 100,
};

// The form of a keyword's value text.
enum class ValueForm {
  GuidList,     // dictionary guids joined by "<tr>"
  Guid,         // one dictionary guid
  PlainText,    // the text as the user wrote it
  NumberText,   // a decimal number
  IntegerText,  // a whole number
  CodeList,     // tooth codes joined by "<tr>"
  Json,         // a JSON array or object
  None,         // kept elsewhere: the profile row, or a picture file
};

struct Keyword {
  std::string_view name;
  int kind;
  int list;  // dictionary list (cotype), 0 for none
  ValueForm form;
};

// Every field of the edition's day, in the order of the table.
std::vector<Keyword> keywordsOf(int appid);

}  // namespace lad
