#include "drawing/recording_canvas.h"

namespace lad::drawing {

using Kind = Command::Kind;

Command& RecordingCanvas::add(Kind kind) {
  commands_.emplace_back().kind = kind;
  return commands_.back();
}

void RecordingCanvas::clear(Rect r) {
  add(Kind::Clear).rect = r;
}

void RecordingCanvas::fillRect(Rect r, Color c) {
  auto& cmd = add(Kind::FillRect);
  cmd.rect = r;
  cmd.color = c;
}

void RecordingCanvas::fillPath(const Path& p, Color c, FillRule rule) {
  auto& cmd = add(Kind::FillPath);
  cmd.path = p;
  cmd.color = c;
  cmd.rule = rule;
}

void RecordingCanvas::strokePath(const Path& p, Color c, double width,
                                 const std::vector<double>& dash) {
  auto& cmd = add(Kind::StrokePath);
  cmd.path = p;
  cmd.color = c;
  cmd.width = width;
  cmd.dash = dash;
}

void RecordingCanvas::fillEllipse(Rect bounds, Color c) {
  auto& cmd = add(Kind::FillEllipse);
  cmd.rect = bounds;
  cmd.color = c;
}

void RecordingCanvas::fillGradient(const Path& clip, Point from, Point to,
                                   const std::vector<GradientStop>& stops) {
  auto& cmd = add(Kind::Gradient);
  cmd.path = clip;
  cmd.from = from;
  cmd.to = to;
  cmd.stops = stops;
}

void RecordingCanvas::drawText(std::string_view text, Rect r, Font f, Color c, Align a) {
  auto& cmd = add(Kind::Text);
  cmd.rect = r;
  cmd.color = c;
  cmd.text = std::string(text);
  cmd.font = f;
  cmd.align = a;
}

void RecordingCanvas::drawTurnedText(std::string_view text, Rect r, Font f, Color c, Align a,
                                     double angle) {
  drawText(text, r, f, c, a);
  commands_.back().angle = angle;
}

void RecordingCanvas::drawClippedImage(const std::string& file, Rect r, const Path& clip) {
  drawImage(file, r);
  commands_.back().path = clip;
}

void RecordingCanvas::drawImage(const std::string& file, Rect r) {
  auto& cmd = add(Kind::Image);
  cmd.rect = r;
  cmd.text = file;
}

void RecordingCanvas::fillShadow(Rect r, Shadow s) {
  auto& cmd = add(Kind::Shadow);
  cmd.rect = r;
  cmd.shadow = s;
}

void RecordingCanvas::fillPathShadow(const Path& p, FillRule rule, Shadow s) {
  auto& cmd = add(Kind::PathShadow);
  cmd.path = p;
  cmd.rule = rule;
  cmd.shadow = s;
}

std::vector<Command> RecordingCanvas::ofKind(Kind kind) const {
  std::vector<Command> out;
  for (const auto& c : commands_)
    if (c.kind == kind) out.push_back(c);
  return out;
}

}  // namespace lad::drawing
