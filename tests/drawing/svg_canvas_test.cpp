#include "drawing/svg_canvas.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "core/base64.h"
#include "drawing/render.h"
#include "drawing/text_measure.h"
#include "tests/support/test_files.h"

namespace lad::drawing {
namespace {

struct Element {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::string text;  // the character data directly inside, entities left as written
  std::string at(const std::string& attribute) const {
    const auto it = attributes.find(attribute);
    return it == attributes.end() ? "" : it->second;
  }
};

// Reads the document as XML elements in document order; throws when tags do not nest, an
// attribute has no quoted value or a "<" or "&" stands bare in the text.
std::vector<Element> parseElements(const std::string& doc) {
  std::vector<Element> elements;
  std::vector<std::size_t> open;
  std::size_t i = 0;
  while (i < doc.size()) {
    if (doc[i] != '<') {
      const std::size_t end = doc.find('<', i);
      const std::string text = doc.substr(i, end - i);
      for (std::size_t amp = text.find('&'); amp != std::string::npos;
           amp = text.find('&', amp + 1))
        if (text.find(';', amp) == std::string::npos) throw std::runtime_error("bare &");
      if (open.empty()) throw std::runtime_error("text outside the root");
      elements[open.back()].text += text;
      i = end;
      continue;
    }
    const std::size_t close = doc.find('>', i);
    if (close == std::string::npos) throw std::runtime_error("unclosed tag");
    std::string tag = doc.substr(i + 1, close - i - 1);
    i = close + 1;
    if (tag[0] == '/') {
      if (open.empty() || elements[open.back()].name != tag.substr(1))
        throw std::runtime_error("mismatched " + tag);
      open.pop_back();
      continue;
    }
    const bool selfClosing = tag.back() == '/';
    if (selfClosing) tag.pop_back();
    Element e;
    std::size_t p = tag.find(' ');
    e.name = tag.substr(0, p);
    while (p != std::string::npos && p + 1 < tag.size()) {
      const std::size_t eq = tag.find("=\"", p);
      const std::size_t quote = tag.find('"', eq + 2);
      if (eq == std::string::npos || quote == std::string::npos)
        throw std::runtime_error("bad attribute in " + tag);
      e.attributes[tag.substr(p + 1, eq - p - 1)] = tag.substr(eq + 2, quote - eq - 2);
      p = quote + 1 < tag.size() ? quote + 1 : std::string::npos;
    }
    elements.push_back(e);
    if (!selfClosing) open.push_back(elements.size() - 1);
  }
  if (!open.empty()) throw std::runtime_error("unclosed " + elements[open.back()].name);
  return elements;
}

std::vector<Element> named(const std::vector<Element>& all, const std::string& name) {
  std::vector<Element> out;
  for (const auto& e : all)
    if (e.name == name) out.push_back(e);
  return out;
}

const Font kLabel{9, false};

void paintSample(Canvas& c) {
  c.fillRect({0, 0, 40.5, 20}, {1, 0, 0, 1});
  c.strokePath(Path().moveTo({0, 0}).lineTo({40, 20}), {0, 0, 1, 0.5}, 2, {5, 2.5});
  c.fillGradient(Path().addRect({0, 0, 40, 20}), {0, 0}, {0, 20},
                 {{0.1, {0, 1, 0, 0.3}}, {1, {0, 1, 0, 1}}});
  c.drawText("a < b & \"c\"", {0, 0, 200, 20}, {12, true}, {0, 0, 0, 1}, Align::Right);
  c.drawText("двадцать два двадцать два", {10, 30, measureText("двадцать два", kLabel).w + 2, 40},
             kLabel, {0, 0, 0, 1}, Align::Center);
}

TEST(SvgCanvas, ShapesGradientsAndTextBecomeElements) {
  const std::string doc = renderSvg({100, 80}, paintSample);
  const auto all = parseElements(doc);
  ASSERT_FALSE(all.empty());
  EXPECT_EQ(all[0].name, "svg");
  EXPECT_EQ(all[0].at("viewBox"), "0 0 100 80");

  EXPECT_EQ(named(all, "rect").at(0).at("fill"), "#ff0000");

  const Element line = named(all, "path").at(1);  // after the clip in the defs
  EXPECT_EQ(line.at("d"), "M0 0L40 20");
  EXPECT_EQ(line.at("fill"), "none");
  EXPECT_EQ(line.at("stroke-dasharray"), "5,2.5");

  // The gradient fills the canvas through a clip of the path; both live in the defs.
  const Element gradient = named(all, "linearGradient").at(0);
  const auto stops = named(all, "stop");
  ASSERT_EQ(stops.size(), 2u);
  EXPECT_EQ(stops[0].at("offset"), "0.1");
  const Element clip = named(all, "clipPath").at(0);
  const Element filled = named(all, "rect").at(1);
  EXPECT_EQ(filled.at("fill"), "url(#" + gradient.at("id") + ")");
  EXPECT_EQ(filled.at("clip-path"), "url(#" + clip.at("id") + ")");
  EXPECT_EQ(named(all, "path").at(0).at("d"), "M0 0L40 0L40 20L0 20Z");

  const auto texts = named(all, "text");
  ASSERT_EQ(texts.size(), 2u);
  EXPECT_EQ(texts[0].at("text-anchor"), "end");
  EXPECT_EQ(texts[1].at("text-anchor"), "middle");

  // The wrapped text keeps the measured lines (without the space a line ends with, which SVG
  // collapses), centred in its box and one line height apart.
  const auto spans = named(all, "tspan");
  ASSERT_EQ(spans.size(), 3u);
  EXPECT_EQ(spans[0].at("x"), "200");
  EXPECT_EQ(spans[1].text + "|" + spans[2].text, "двадцать два|двадцать два");
  EXPECT_NEAR(std::stod(spans[1].at("x")), 10 + (measureText("двадцать два", kLabel).w + 2) / 2,
              0.001);
  EXPECT_NEAR(std::stod(spans[2].at("y")) - std::stod(spans[1].at("y")),
              measureText("22", kLabel).h, 0.01);
}

TEST(SvgCanvas, ArcsImagesAndClearing) {
  SvgCanvas c({50, 50});
  c.fillPath(Path().addCircle({25, 25}, 10), {0, 0, 0, 1}, FillRule::EvenOdd);
  auto all = parseElements(c.document());
  const Element circle = named(all, "path").at(0);
  // A whole turn goes as two half arcs and ends where it began.
  EXPECT_EQ(circle.at("d"), "M35 25L35 25A10 10 0 0 1 15 25A10 10 0 0 1 35 25Z");
  EXPECT_EQ(circle.at("fill-rule"), "evenodd");

  // Clearing leaves out the rectangle from everything painted before, not after.
  c.clear({0, 0, 10, 10});
  c.fillEllipse({0, 0, 20, 10}, {0, 0, 0, 1});
  all = parseElements(c.document());
  ASSERT_EQ(named(all, "mask").size(), 1u);
  EXPECT_EQ(named(all, "g").at(0).at("mask"), "url(#" + named(all, "mask")[0].at("id") + ")");
  EXPECT_LT(c.document().find("</g>"), c.document().find("<ellipse"));

  // A PNG goes in whole as a data URI; a file that is not a PNG draws nothing.
  testing::TempDir dir;
  const auto png = renderPng({4, 4}, 1, [](Canvas& p) { p.fillRect({0, 0, 4, 4}, {1, 0, 0, 1}); });
  ASSERT_TRUE(png);
  testing::writeFile(dir.path() / "a.png", *png);
  testing::writeFile(dir.path() / "b.png", "not a picture");
  SvgCanvas pictures({10, 10});
  pictures.drawImage((dir.path() / "b.png").string(), {0, 0, 4, 4});
  pictures.drawImage((dir.path() / "a.png").string(), {1, 2, 8, 6});
  const auto images = named(parseElements(pictures.document()), "image");
  ASSERT_EQ(images.size(), 1u);
  const std::string prefix = "data:image/png;base64,";
  ASSERT_EQ(images[0].at("href").substr(0, prefix.size()), prefix);
  const auto bytes = base64Decode(images[0].at("href").substr(prefix.size()));
  ASSERT_TRUE(bytes);
  EXPECT_EQ(std::string(bytes->begin(), bytes->end()), *png);
}

TEST(SvgCanvas, PathShadowIsTheMovedPathUnderABlur) {
  SvgCanvas c({60, 40});
  const Path ring = Path().addCircle({20, 20}, 10).addCircle({20, 20}, 5);
  c.fillPathShadow(ring, FillRule::EvenOdd, {{0, 0, 0, 0.4}, {3, 2}, 5});
  const auto all = parseElements(c.document());
  const Element filter = named(all, "filter").at(0);
  // The filter covers the whole drawing, so that the blur is never cut at the shape's box.
  EXPECT_EQ(filter.at("filterUnits"), "userSpaceOnUse");
  EXPECT_EQ(filter.at("width"), "60");
  EXPECT_EQ(named(all, "feGaussianBlur").at(0).at("stdDeviation"), "2.5");
  EXPECT_EQ(named(all, "g").at(0).at("filter"), "url(#" + filter.at("id") + ")");
  const Element path = named(all, "path").at(0);
  EXPECT_EQ(path.at("transform"), "translate(3 2)");
  EXPECT_EQ(path.at("d").find("M30 20"), 0u);
}

}  // namespace
}  // namespace lad::drawing
