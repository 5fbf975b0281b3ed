#include "store/keywords.h"

namespace lad {

namespace {

enum Editions { P = 1, C = 2, W = 4 };

struct KeywordRow {
  int editions;
  Keyword keyword;
};

const KeywordRow kKeywords[] = {
    {P, {"changes", kKindMulti, 1}},
    {P, {"fillings", kKindMulti, 2}},
    {C, {"achive", kKindMulti, 1}},
    {C, {"health", kKindMulti, 2}},
    {W, {"health", kKindMulti, 1}},
    {W, {"sliz", kKindChoice, 2}},
    {W, {"sex", kKindChoice, 3}},
    {P | C, {"bolezn", kKindIllness, 3}},
    {P | C | W, {"doctor", kKindText, 0}},
    {C, {"priv", kKindText, 0}},
    {C | W, {"smile", kKindText, 0}},
    {P | C | W, {"note", kKindText, 0}},
    {P | C | W, {"ves", kKindWeight, 0}},
    {C, {"rost", kKindHeight, 0}},
    {P | C | W, {"temp", kKindTemperature, 0}},
    {P | C | W, {"alarm", kKindAlarm, 0}},
    {P | C | W, {"pills", kKindPills, 0}},
    {P, {"pressure", 30, 0}},
    {P, {"zhid", 31, 0}},
    {C, {"sleep", 29, 0}},
    {C, {"walk", 29, 0}},
    {P | C | W, {"analizy", 26, 0}},
    {P, {"uzi", 15, 0}},
    {C, {"biosize", 9, 0}},
    {C, {"tooth", 13, 0}},
    {W, {"daytype", kKindDayType, 0}},
    {W, {"dieta", 25, 0}},
    {P, {"birthresult", kKindBirth, 0}},
    {P | C | W, {"photo", kKindPhoto, 0}},
};

int editionBit(int appid) {
  if (appid == 2) return C;
  if (appid == 3) return W;
  return P;
}

}  // namespace

std::optional<Keyword> keywordFor(int appid, std::string_view name) {
  for (const KeywordRow& row : kKeywords)
    if ((row.editions & editionBit(appid)) && row.keyword.name == name) return row.keyword;
  return std::nullopt;
}

std::vector<Keyword> keywordsOf(int appid) {
  std::vector<Keyword> keywords;
  for (const KeywordRow& row : kKeywords)
    if (row.editions & editionBit(appid)) keywords.push_back(row.keyword);
  return keywords;
}

}  // namespace lad
