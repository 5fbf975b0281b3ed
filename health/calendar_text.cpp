#include "health/calendar_text.h"

#include "core/context.h"
#include "core/word_forms.h"

namespace lad::health {

std::string wordFor(const Context& context, std::int64_t n, std::string_view one,
                    std::string_view few, std::string_view many) {
  return context.translate(rusForms(n, one, few, many));
}

}  // namespace lad::health
