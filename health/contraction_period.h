// Seconds as "mm:ss". Each part keeps only its last two digits, so 100 minutes and more wrap
// ("100:00" shows as "00:00"): the counter has always shown it so.
#pragma once

#include <cstdint>
#include <string>

namespace lad::health {

std::string cperiod(std::int64_t seconds);

}  // namespace lad::health
