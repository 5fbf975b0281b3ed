#include "drawing/svg_canvas.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <numbers>

#include "core/base64.h"
#include "drawing/image_size.h"
#include "drawing/svg_writer.h"
#include "drawing/text_measure.h"

namespace lad::drawing {

using svg::appendAttribute;
using svg::appendPaint;

namespace {

void appendPath(std::string& out, const Path& p) {
  out += "<path d=\"";
  svg::appendPathData(out, p);
  out += '"';
}

void appendFillRule(std::string& out, FillRule rule) {
  if (rule == FillRule::EvenOdd) out += " fill-rule=\"evenodd\"";
}

const char* textAnchor(Align a) {
  switch (a) {
    case Align::Center:
      return "middle";
    case Align::Right:
      return "end";
    case Align::Left:
      break;
  }
  return "start";
}

// The x of the anchor of each line: the left, the middle or the right of the box the lines are
// aligned in.
double anchorX(Rect r, Align a) {
  switch (a) {
    case Align::Center:
      return r.x + r.w / 2;
    case Align::Right:
      return r.right();
    case Align::Left:
      break;
  }
  return r.x;
}

// `<element` with the position and size of the rectangle.
void appendBox(std::string& out, std::string_view element, Rect r) {
  out += '<';
  out += element;
  appendAttribute(out, "x", r.x);
  appendAttribute(out, "y", r.y);
  appendAttribute(out, "width", r.w);
  appendAttribute(out, "height", r.h);
}

std::optional<Bytes> readFile(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  Bytes bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (in.bad()) return std::nullopt;
  return bytes;
}

// Stands before each id while the drawing is made; a control character, which no text of the
// document keeps.
constexpr char kIdMark = '\x01';

// The ids of a drawing start with a hash of the whole drawing: several drawings stand in one
// page without their ids meeting, and the same drawing made again is the same text, so a view
// that did not change reads the same. Two equal drawings share ids of equal definitions.
std::string withDrawingIds(const std::string& marked) {
  std::uint64_t hash = 14695981039346656037ULL;  // FNV-1a
  for (const char ch : marked) hash = (hash ^ static_cast<unsigned char>(ch)) * 1099511628211ULL;
  char prefix[24];
  std::snprintf(prefix, sizeof prefix, "lad-%016llx-", static_cast<unsigned long long>(hash));
  std::string out;
  out.reserve(marked.size());
  for (const char ch : marked) {
    if (ch == kIdMark)
      out += prefix;
    else
      out += ch;
  }
  return out;
}

}  // namespace

SvgCanvas::SvgCanvas(Size size) : size_(size) {}

// An id is numbered within the drawing and marked; the document names it after the drawing.
std::string SvgCanvas::nextId(char kind) {
  return kIdMark + (kind + std::to_string(ids_++));
}

// SVG paints over what is there and cannot erase, so what was painted before goes under a mask
// that leaves the rectangle out.
void SvgCanvas::clear(Rect r) {
  if (body_.empty()) return;
  const std::string id = nextId('m');
  appendBox(defs_, "mask", {0, 0, size_.w, size_.h});
  defs_ += " id=\"" + id + "\" maskUnits=\"userSpaceOnUse\">";
  appendBox(defs_, "rect", {0, 0, size_.w, size_.h});
  defs_ += " fill=\"#fff\"/>";
  appendBox(defs_, "rect", r);
  defs_ += " fill=\"#000\"/></mask>";
  body_ = "<g mask=\"url(#" + id + ")\">" + body_ + "</g>";
}

void SvgCanvas::fillRect(Rect r, Color c) {
  appendBox(body_, "rect", r);
  appendPaint(body_, "fill", "fill-opacity", c);
  body_ += "/>";
}

void SvgCanvas::fillPath(const Path& p, Color c, FillRule rule) {
  appendPath(body_, p);
  appendPaint(body_, "fill", "fill-opacity", c);
  appendFillRule(body_, rule);
  body_ += "/>";
}

void SvgCanvas::strokePath(const Path& p, Color c, double width, const std::vector<double>& dash) {
  appendPath(body_, p);
  body_ += " fill=\"none\"";
  appendPaint(body_, "stroke", "stroke-opacity", c);
  appendAttribute(body_, "stroke-width", width);
  body_ += " stroke-miterlimit=\"10\"";  // the cairo default, so that joins match
  if (!dash.empty()) {
    body_ += " stroke-dasharray=\"";
    for (std::size_t i = 0; i < dash.size(); ++i) {
      if (i > 0) body_ += ',';
      svg::appendNumber(body_, dash[i]);
    }
    body_ += '"';
  }
  body_ += "/>";
}

void SvgCanvas::fillEllipse(Rect bounds, Color c) {
  if (bounds.w <= 0 || bounds.h <= 0) return;
  body_ += "<ellipse";
  appendAttribute(body_, "cx", bounds.x + bounds.w / 2);
  appendAttribute(body_, "cy", bounds.y + bounds.h / 2);
  appendAttribute(body_, "rx", bounds.w / 2);
  appendAttribute(body_, "ry", bounds.h / 2);
  appendPaint(body_, "fill", "fill-opacity", c);
  body_ += "/>";
}

void SvgCanvas::fillGradient(const Path& clip, Point from, Point to,
                             const std::vector<GradientStop>& stops) {
  const std::string gradient = nextId('g');
  const std::string area = nextId('c');
  defs_ += "<linearGradient id=\"" + gradient + "\" gradientUnits=\"userSpaceOnUse\"";
  appendAttribute(defs_, "x1", from.x);
  appendAttribute(defs_, "y1", from.y);
  appendAttribute(defs_, "x2", to.x);
  appendAttribute(defs_, "y2", to.y);
  defs_ += '>';
  for (const auto& s : stops) {
    defs_ += "<stop";
    appendAttribute(defs_, "offset", s.location);
    appendPaint(defs_, "stop-color", "stop-opacity", s.color);
    defs_ += "/>";
  }
  defs_ += "</linearGradient><clipPath id=\"" + area + "\">";
  appendPath(defs_, clip);
  defs_ += "/></clipPath>";
  appendBox(body_, "rect", {0, 0, size_.w, size_.h});
  body_ += " fill=\"url(#" + gradient + ")\" clip-path=\"url(#" + area + ")\"/>";
}

void SvgCanvas::drawText(std::string_view text, Rect r, Font f, Color c, Align a) {
  const auto lines = breakText(text, f, r.w);
  // Without a width the lines align in the widest of them, as in the cairo back end.
  if (r.w <= 0) r.w = measureText(text, f).w;
  const double x = anchorX(r, a);
  body_ += "<text font-family=\"";
  body_ += kFontFamily;
  body_ += '"';
  appendAttribute(body_, "font-size", f.size);
  if (f.bold) body_ += " font-weight=\"bold\"";
  appendPaint(body_, "fill", "fill-opacity", c);
  body_ += " text-anchor=\"";
  body_ += textAnchor(a);
  body_ += "\" xml:space=\"preserve\">";
  for (const auto& line : lines) {
    // Spaces are kept as laid out, except the one a wrapped line ends with, which would push
    // a centred or right-aligned line off its place.
    std::string_view shown = line.text;
    while (shown.ends_with(' ')) shown.remove_suffix(1);
    if (shown.empty()) continue;
    body_ += "<tspan";
    appendAttribute(body_, "x", x);
    appendAttribute(body_, "y", r.y + line.baseline);
    body_ += '>';
    svg::appendEscaped(body_, shown);
    body_ += "</tspan>";
  }
  body_ += "</text>";
}

void SvgCanvas::drawTurnedText(std::string_view text, Rect r, Font f, Color c, Align a,
                               double angle) {
  const Point middle = r.centre();
  body_ += "<g transform=\"rotate(";
  svg::appendNumber(body_, angle * 180 / std::numbers::pi);
  body_ += ' ';
  svg::appendNumber(body_, middle.x);
  body_ += ' ';
  svg::appendNumber(body_, middle.y);
  body_ += ")\">";
  drawText(text, r, f, c, a);
  body_ += "</g>";
}

void SvgCanvas::drawClippedImage(const std::string& file, Rect r, const Path& clip) {
  const std::string area = nextId('c');
  defs_ += "<clipPath id=\"" + area + "\">";
  appendPath(defs_, clip);
  defs_ += "/></clipPath>";
  body_ += "<g clip-path=\"url(#" + area + ")\">";
  drawImage(file, r);
  body_ += "</g>";
}

void SvgCanvas::drawImage(const std::string& file, Rect r) {
  if (!pngSize(file)) return;
  const auto bytes = readFile(file);
  if (!bytes) return;
  appendBox(body_, "image", r);
  body_ += " preserveAspectRatio=\"none\" href=\"data:image/png;base64,";
  body_ += base64Encode(*bytes);
  body_ += "\"/>";
}

// A Gaussian blur whose region is the whole document, so that no blur is cut at the edges of
// the shape; returns its id.
std::string SvgCanvas::blurFilter(double blur) {
  const std::string id = nextId('s');
  appendBox(defs_, "filter", {0, 0, size_.w, size_.h});
  defs_ += " id=\"" + id + "\" filterUnits=\"userSpaceOnUse\"><feGaussianBlur";
  appendAttribute(defs_, "stdDeviation", blur / 2);
  defs_ += "/></filter>";
  return id;
}

void SvgCanvas::fillShadow(Rect r, Shadow s) {
  const std::string blur = blurFilter(s.blur);
  appendBox(body_, "rect", {r.x + s.offset.x, r.y + s.offset.y, r.w, r.h});
  appendPaint(body_, "fill", "fill-opacity", s.color);
  body_ += " filter=\"url(#" + blur + ")\"/>";
}

// The group carries the filter in the document's units; the path inside is moved by the offset.
void SvgCanvas::fillPathShadow(const Path& p, FillRule rule, Shadow s) {
  body_ += "<g filter=\"url(#" + blurFilter(s.blur) + ")\">";
  appendPath(body_, p);
  body_ += " transform=\"translate(";
  svg::appendNumber(body_, s.offset.x);
  body_ += ' ';
  svg::appendNumber(body_, s.offset.y);
  body_ += ")\"";
  appendPaint(body_, "fill", "fill-opacity", s.color);
  appendFillRule(body_, rule);
  body_ += "/></g>";
}

std::string SvgCanvas::document() const {
  std::string out;
  out.reserve(body_.size() + defs_.size() + 200);
  out += "<svg xmlns=\"http://www.w3.org/2000/svg\"";
  appendAttribute(out, "width", size_.w);
  appendAttribute(out, "height", size_.h);
  out += " viewBox=\"0 0 ";
  svg::appendNumber(out, size_.w);
  out += ' ';
  svg::appendNumber(out, size_.h);
  out += "\">";
  if (!defs_.empty()) out += "<defs>" + defs_ + "</defs>";
  out += body_;
  out += "</svg>";
  return withDrawingIds(out);
}

}  // namespace lad::drawing
