// Renders a painting into a document: SVG for the browser, PNG for images, PDF for reports.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "drawing/canvas.h"

namespace lad::drawing {

using Painter = std::function<void(Canvas&)>;

// The painter draws in units of the given size.
std::string renderSvg(Size size, const Painter& paint);
// The bitmap has size × scale pixels; nullopt when the size is empty or encoding fails.
std::optional<std::string> renderPng(Size size, double scale, const Painter& paint);
// One page of the size in points, with the title and creator in its metadata.
std::optional<std::string> renderPdf(Size size, const std::string& title, const Painter& paint);

}  // namespace lad::drawing
