// The size of a picture file, read from its header without its pixels.
#pragma once

#include <optional>
#include <string>

#include "platform/images.h"

namespace lad::reports {

// The size of a JPEG or PNG file, upright; nullopt when it cannot be read or has no pixels.
std::optional<platform::ImageSize> pictureSize(const std::string& file);

}  // namespace lad::reports
