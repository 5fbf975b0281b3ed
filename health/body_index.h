// The body index of the pregnancy settings dialogue, from the height and weight before the
// pregnancy, and the body type it selects.
#pragma once

#include <string>
#include <string_view>

namespace lad {
class Context;
}  // namespace lad

namespace lad::health {

struct BodyIndex {
  std::string text;  // what the dialogue's field shows
  int bodytype;      // 1 thin, 2 average, 3 heavy
};

// Height in centimetres and weight in kilograms as typed; what does not read as a number above
// zero leaves the index undefined, with the average body type.
BodyIndex correctBodyIndex(const Context& context, std::string_view rost, std::string_view ves);

}  // namespace lad::health
