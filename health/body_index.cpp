#include "health/body_index.h"

#include <cstdio>

#include "core/context.h"
#include "core/value.h"
#include "health/calendar_text.h"

namespace lad::health {

namespace {

// The index is held in single precision; the limit of the thin class is compared in double
// precision and that of the average class in single precision, as the index has always been.
int bodytypeOf(float index) {
  if (static_cast<double>(index) <= 19.8) return 1;
  return index <= 26.0f ? 2 : 3;
}

std::string_view bodyWord(int bodytype) {
  switch (bodytype) {
    case 1:
      return "худощавое";
    case 2:
      return "среднее";
    default:
      return "тучное";
  }
}

}  // namespace

BodyIndex correctBodyIndex(const Context& context, std::string_view rost, std::string_view ves) {
  const float height = static_cast<float>(leadingDouble(rost));
  const float weight = static_cast<float>(leadingDouble(ves));
  if (!(height > 0) || !(weight > 0)) return {context.translate("Индекс тела не определен"), 2};
  const float index = weight / (height * (height / 100) / 100);
  const int bodytype = bodytypeOf(index);
  char number[32];
  std::snprintf(number, sizeof number, "%.1f", static_cast<double>(index));
  return {fillIn(context.translate("Индекс тела равен %.1f.\nУ вас %@ телосложение."),
                 {number, context.translate(bodyWord(bodytype))}),
          bodytype};
}

}  // namespace lad::health
