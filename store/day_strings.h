// A diary day in memory: a map of the day's records under their keywords, with flags and the
// display strings worked out from the records and from the profile.
#pragma once

#include "core/value.h"

namespace lad {

class Store;

// The diet value that ends a diet.
inline constexpr int kDietEnd = 1000;

// A new day on that date with the flags isbirthdate, istoday, isphoto, isbolezn and isdieta
// false.
Map initNoteStruct(Date dat);

// The colours of a day in the list: plain, and inside an illness.
Value plainDayColor();
Value illnessDayColor();

// Sets the day's section ("group") and colour, and, unless simple, every display string. setup
// is the profile of the list and carries the running illness and diet from day to day
// ("isbolezn", "isdieta"); it is changed here, and child weights and heights without a base take
// the first one seen as their base.
void updateNoteStrings(const Store& store, Map& day, Map& setup, int regim, bool simple);

}  // namespace lad
