// A page of the photo book as a picture: painted at one pixel a unit and written as a JPEG of
// the best quality. Only this one page's pixels are in memory while it is made.
#pragma once

#include <filesystem>
#include <string>

#include "drawing/render.h"

namespace lad::report {

// Writes the painted page to the file, replacing an old one; false with *error filled when it
// could not be painted or written.
bool writePageJpeg(draw::Size size, const draw::Painter& paint, const std::filesystem::path& file,
                   std::string* error);

}  // namespace lad::report
