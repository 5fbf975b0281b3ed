#include "charts/chart.h"

#include "charts/cards.h"
#include "charts/new_graph.h"
#include "drawing/render.h"

namespace lad::charts {

void Chart::prepare(Map dic) {
  dic_ = std::move(dic);
  mode_ = Mode::Graph;
}

void Chart::prepareRoundCard() {
  backColor_ = {0, 0, 0, 0.4};
  mode_ = Mode::RoundCard;
}

void Chart::prepareChatCard(bool withTop, bool withBottom) {
  mode_ = !withBottom ? Mode::ChatCardNoBottom : withTop ? Mode::ChatCard : Mode::ChatCardNoTop;
}

void Chart::drawContext(drawing::Canvas& c, drawing::Rect r) const {
  switch (mode_) {
    case Mode::RoundCard:
      drawRoundCard(c, r, backColor_, s_);
      break;
    case Mode::Graph:
      drawNewGraph(c, dic_, r, s_, imagesDir_);
      break;
    case Mode::ChatCard:
    case Mode::ChatCardNoTop:
    case Mode::ChatCardNoBottom:
      drawChatCard(c, r, mode_ == Mode::ChatCard, mode_ != Mode::ChatCardNoBottom, s_);
      break;
    case Mode::None:
      break;
  }
}

std::string Chart::svg(drawing::Size size) const {
  return drawing::renderSvg(size, [&](drawing::Canvas& c) {
    drawContext(c, {0, 0, size.w, size.h});
  });
}

std::optional<std::string> Chart::getContextImage(drawing::Size size, double scale) const {
  return drawing::renderPng(size, scale, [&](drawing::Canvas& c) {
    drawContext(c, {0, 0, size.w, size.h});
  });
}

}  // namespace lad::charts
