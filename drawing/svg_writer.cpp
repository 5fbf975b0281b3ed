#include "drawing/svg_writer.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace lad::drawing::svg {

namespace {

void appendPoint(std::string& out, char command, Point p) {
  out += command;
  appendNumber(out, p.x);
  out += ' ';
  appendNumber(out, p.y);
}

Point onCircle(Point centre, double radius, double angle) {
  return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

// An arc as the cairo back end draws it: a line from the current point to its start (a move
// when there is none), then clockwise from start to end, the end first brought past the start;
// a negative arc the other way round. SVG cannot draw a whole circle in one arc command, so it
// goes in pieces of at most a half.
void appendArc(std::string& out, const Path::Op& op, bool hasCurrent) {
  constexpr double kTurn = 2 * std::numbers::pi;
  const bool clockwise = op.kind == Path::Kind::Arc;
  const double direction = clockwise ? 1 : -1;
  double sweep =
      std::isfinite(op.start) && std::isfinite(op.end) ? (op.end - op.start) * direction : 0;
  if (sweep < 0) sweep = std::fmod(sweep, kTurn) + kTurn;
  sweep = std::min(sweep, kTurn);
  appendPoint(out, hasCurrent ? 'L' : 'M', onCircle(op.to, op.radius, op.start));
  for (double done = 0; done < sweep;) {
    done = std::min(sweep, done + kTurn / 2);
    const Point at = onCircle(op.to, op.radius, op.start + direction * done);
    out += 'A';
    appendNumber(out, op.radius);
    out += ' ';
    appendNumber(out, op.radius);
    out += clockwise ? " 0 0 1 " : " 0 0 0 ";
    appendNumber(out, at.x);
    out += ' ';
    appendNumber(out, at.y);
  }
}

int channel(double v) {
  return static_cast<int>(std::lround(std::clamp(v, 0.0, 1.0) * 255));
}

}  // namespace

void appendNumber(std::string& out, double v) {
  // Far beyond any drawing, and within what fits the buffer.
  constexpr double kLimit = 1e9;
  v = std::isfinite(v) ? std::clamp(v, -kLimit, kLimit) : 0;
  char buf[32];
  char* end = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, 3).ptr;
  while (end[-1] == '0') --end;
  if (end[-1] == '.') --end;
  const std::string_view text(buf, static_cast<std::size_t>(end - buf));
  out += text == "-0" ? "0" : text;
}

void appendAttribute(std::string& out, std::string_view name, double value) {
  out += ' ';
  out += name;
  out += "=\"";
  appendNumber(out, value);
  out += '"';
}

void appendPaint(std::string& out, std::string_view colorName, std::string_view opacityName,
                 Color c) {
  static constexpr char kHex[] = "0123456789abcdef";
  out += ' ';
  out += colorName;
  out += "=\"#";
  for (double v : {c.r, c.g, c.b}) {
    const int n = channel(v);
    out += kHex[n >> 4];
    out += kHex[n & 15];
  }
  out += '"';
  if (c.a < 1) appendAttribute(out, opacityName, std::clamp(c.a, 0.0, 1.0));
}

void appendEscaped(std::string& out, std::string_view text) {
  for (char ch : text) {
    switch (ch) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\'':
        out += "&apos;";
        break;
      default:
        // Control characters other than tab and line feed are not allowed in XML.
        if (static_cast<unsigned char>(ch) >= 0x20 || ch == '\t' || ch == '\n') out += ch;
    }
  }
}

void appendPathData(std::string& out, const Path& p) {
  bool hasCurrent = false;
  for (const auto& op : p.ops()) {
    switch (op.kind) {
      case Path::Kind::Move:
        appendPoint(out, 'M', op.to);
        break;
      case Path::Kind::Line:
        appendPoint(out, hasCurrent ? 'L' : 'M', op.to);
        break;
      case Path::Kind::Arc:
      case Path::Kind::ArcNegative:
        appendArc(out, op, hasCurrent);
        break;
      case Path::Kind::Close:
        out += 'Z';
        break;
    }
    hasCurrent = true;
  }
}

}  // namespace lad::drawing::svg
