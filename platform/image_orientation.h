// Turning and mirroring pixels by an EXIF orientation.
#pragma once

#include "platform/images.h"

namespace lad::platform {

// The image as it should be shown for orientation 1 to 8; orientations 5 to 8 swap width and
// height. Any other value leaves it as it is.
Image orientedUpright(Image image, int orientation);

}  // namespace lad::platform
