// A canvas that paints nothing and keeps every command with its geometry, for tests that check
// what a drawing does.
#pragma once

#include <string>
#include <vector>

#include "drawing/canvas.h"

namespace lad::drawing {

struct Command {
  enum class Kind {
    Clear,
    FillRect,
    FillPath,
    StrokePath,
    FillEllipse,
    Gradient,
    Text,
    Image,
    Shadow,
    PathShadow
  };
  Kind kind = Kind::Clear;
  Rect rect;  // clear, fill rect, ellipse, text and image
  Path path;  // fill, stroke, path shadow, and the clip of a gradient or an image
  Color color;
  double width = 0;
  std::vector<double> dash;
  FillRule rule = FillRule::Winding;  // fill and path shadow
  Point from, to;                     // gradient
  std::vector<GradientStop> stops;
  Shadow shadow;
  std::string text;  // text, and the file of an image
  Font font;
  Align align = Align::Left;
  double angle = 0;  // of turned text
};

class RecordingCanvas : public Canvas {
 public:
  void clear(Rect r) override;
  void fillRect(Rect r, Color c) override;
  void fillPath(const Path& p, Color c, FillRule rule) override;
  void strokePath(const Path& p, Color c, double width, const std::vector<double>& dash) override;
  void fillEllipse(Rect bounds, Color c) override;
  void fillGradient(const Path& clip, Point from, Point to,
                    const std::vector<GradientStop>& stops) override;
  void drawText(std::string_view text, Rect r, Font f, Color c, Align a) override;
  void drawTurnedText(std::string_view text, Rect r, Font f, Color c, Align a,
                      double angle) override;
  void drawImage(const std::string& file, Rect r) override;
  void drawClippedImage(const std::string& file, Rect r, const Path& clip) override;
  void fillShadow(Rect r, Shadow s) override;
  void fillPathShadow(const Path& p, FillRule rule, Shadow s) override;

  const std::vector<Command>& commands() const { return commands_; }
  // The commands of one kind, in the order drawn.
  std::vector<Command> ofKind(Command::Kind kind) const;

 private:
  Command& add(Command::Kind kind);
  std::vector<Command> commands_;
};

}  // namespace lad::drawing
