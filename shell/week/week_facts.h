// What the week, body and baby pages show for a week or a day of the pregnancy: the picture set
// of the week, the fruit that the child's size is compared with, the month of the body picture,
// the organs and how far each has developed.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lad::shell {

// The frames of the moving picture of the week, "<set>w001.jpg" to "<set>w008.jpg".
std::vector<std::string> movieFrames(int week);

// The comparison of the child's size for the week (to be followed by the length).
std::string_view fruitCaption(int week);

// The child's length as the body page writes it on a day: "-" in the first four weeks, fixed
// values in the next five, then the length of the growth table.
std::string bodyPageLength(int day, double rost);

// The month of the body picture, 1 to 9.
int bodyMonth(int day);

struct Organ {
  std::string_view caption;
  int minweek;
  int maxweek;
  std::string_view file;
};

// The organs of the baby page; the first entry is the child's achievements as a whole.
std::span<const Organ> organs();

// How far the organ has come, in degrees of its ring: 0 before its first week, 360 after its
// last.
int organDegrees(const Organ& organ, int daysSinceStart);

}  // namespace lad::shell
