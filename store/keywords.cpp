#include "store/keywords.h"

#include "core/edition.h"

namespace lad {

namespace {

enum Editions { P = 1, C = 2, W = 4 };
using V = ValueForm;

struct KeywordRow {
  int editions;
  Keyword keyword;
};

const KeywordRow kKeywords[] = {
    {P, {"changes", kKindMulti, 1, V::GuidList}},
    {P, {"fillings", kKindMulti, 2, V::GuidList}},
    {C, {"achive", kKindMulti, 1, V::GuidList}},
    {C, {"health", kKindMulti, 2, V::GuidList}},
    {W, {"health", kKindMulti, 1, V::GuidList}},
    {W, {"sliz", kKindChoice, 2, V::Guid}},
    {W, {"sex", kKindChoice, 3, V::Guid}},
    {P | C, {"bolezn", kKindIllness, 3, V::Guid}},
    {P | C | W, {"doctor", kKindText, 0, V::PlainText}},
    {C, {"priv", kKindText, 0, V::PlainText}},
    {C | W, {"smile", kKindText, 0, V::PlainText}},
    {P | C | W, {"note", kKindText, 0, V::PlainText}},
    {P | C | W, {"ves", kKindWeight, 0, V::NumberText}},
    {C, {"rost", kKindHeight, 0, V::NumberText}},
    {P | C | W, {"temp", kKindTemperature, 0, V::Json}},
    {P | C | W, {"alarm", kKindAlarm, 0, V::Json}},
    {P | C | W, {"pills", kKindPills, 0, V::Json}},
    {P, {"pressure", 30, 0, V::Json}},
    {P, {"zhid", 31, 0, V::Json}},
    {C, {"sleep", 29, 0, V::Json}},
    {C, {"walk", 29, 0, V::Json}},
    {P | C | W, {"analizy", 26, 0, V::Json}},
    {P, {"uzi", 15, 0, V::Json}},
    {C, {"biosize", 9, 0, V::Json}},
    {C, {"tooth", 13, 0, V::CodeList}},
    {W, {"daytype", kKindDayType, 0, V::IntegerText}},
    {W, {"dieta", 25, 0, V::IntegerText}},
    {P, {"birthresult", kKindBirth, 0, V::None}},
    {P | C | W, {"photo", kKindPhoto, 0, V::None}},
};

int editionBit(int appid) {
  if (isChildEdition(appid)) return C;
  if (isCycleEdition(appid)) return W;
  return P;
}

}  // namespace

std::vector<Keyword> keywordsOf(int appid) {
  std::vector<Keyword> keywords;
  for (const KeywordRow& row : kKeywords)
    if (row.editions & editionBit(appid)) keywords.push_back(row.keyword);
  return keywords;
}

}  // namespace lad
