// The chart of the mother's weight gain over the pregnancy against the norm of her build. The
// woman's page draws it on screen and the photo book as a picture of its own.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/value.h"
#include "drawing/geometry.h"

namespace lad {
class Store;
}  // namespace lad

namespace lad::health {

// The norm of her build at every second week and her own gain by day, up to day 294; a gain
// recorded later is not drawn but still raises the axis. zoom: the chart's drawing scale.
Map weightChart(Store& store, const std::string& pregguid, const Map& setup, double zoom);

// The photo book's page of the chart: a PNG of size × scale pixels drawn at zoom 5, or nullopt
// when it cannot be made.
std::optional<std::string> bookPageGraph(Store& store, const std::string& pregguid,
                                         drawing::Size size, double scale,
                                         const std::filesystem::path& imagesDir);

}  // namespace lad::health
