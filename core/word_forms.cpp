#include "core/word_forms.h"

#include <algorithm>
#include <array>

#include "core/value.h"

namespace lad {

namespace {

struct UnitForms {
  std::string_view unit, one, few, many, fraction;
};

constexpr std::array<UnitForms, 9> kUnits{{
    {"мл.", "миллилитр", "миллилитра", "миллилитров", "миллилитра"},
    {"мг.", "миллиграмм", "миллиграмма", "миллиграммов", "миллиграмма"},
    {"шт.", "штука", "штуки", "штук", "штуки"},
    {"мерн.лож.", "мерная ложка", "мерные ложки", "мерных ложек", "мерной ложки"},
    {"ч.лож.", "чайная ложка", "чайные ложки", "чайных ложек", "чайной ложки"},
    {"ст.лож.", "столовая ложка", "столовые ложки", "столовых ложек", "столовой ложки"},
    {"куб.см.", "кубический сантиметр", "кубических сантиметра", "кубических сантиметров",
     "кубического сантиметра"},
    {"впрыск", "впрыск", "впрыска", "впрысков", "впрыска"},
    {"капля", "капля", "капли", "капель", "капли"},
}};

constexpr std::array<std::string_view, 7> kFractions{"1/2", "1/3", "1/4", "1/5",
                                                     "1/6", "1/8", "1/16"};

}  // namespace

std::string rusForms(std::int64_t n, std::string_view one, std::string_view few,
                     std::string_view many) {
  const std::int64_t tens = n % 100, last = n % 10;
  if (tens >= 11 && tens <= 19) return std::string(many);
  if (last == 1) return std::string(one);
  if (last >= 2 && last <= 4) return std::string(few);
  return std::string(many);
}

std::string rusForms4(std::int64_t n, std::string_view one, std::string_view few,
                      std::string_view many, std::string_view fraction) {
  return n < 1 ? std::string(fraction) : rusForms(n, one, few, many);
}

std::string rusScon(std::string_view quantity, std::string_view unit,
                    const Translator& translator) {
  const auto forms = std::find_if(kUnits.begin(), kUnits.end(),
                                  [&](const UnitForms& u) { return u.unit == unit; });
  if (forms == kUnits.end()) return {};
  const bool fraction =
      std::find(kFractions.begin(), kFractions.end(), quantity) != kFractions.end();
  const std::int64_t n = fraction ? -1 : leadingInteger(quantity);
  return translator.translate(rusForms4(n, forms->one, forms->few, forms->many, forms->fraction));
}

}  // namespace lad
