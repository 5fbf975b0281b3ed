#include "shell/page_ring.h"

#include <algorithm>

#include "core/menu_table.h"

namespace lad::shell {

std::vector<int> PageRing::pagesOf(const List& menu, const std::set<int>& built) {
  std::vector<int> pages;
  for (const Value& item : menu) {
    const int id = static_cast<int>(item["id"].intValue());
    if (item["tp"].intValue() == kMenuPage && isPageId(id) && built.count(id)) pages.push_back(id);
  }
  return pages;
}

std::optional<int> PageRing::front() const {
  if (!inFront_ || pages_.empty()) return std::nullopt;
  return pages_[place_];
}

std::optional<int> PageRing::back() const {
  if (pages_.empty()) return std::nullopt;
  return pages_[(place_ + 1) % pages_.size()];
}

bool PageRing::open(int page) {
  const auto at = std::ranges::find(pages_, page);
  if (at == pages_.end()) return false;
  place_ = static_cast<std::size_t>(at - pages_.begin());
  inFront_ = true;
  return true;
}

void PageRing::gotoNextPage() {
  if (pages_.empty()) return;
  place_ = (place_ + 1) % pages_.size();
  inFront_ = true;
}

DragOutcome dragEnded(double offset, double width) {
  if (!(width > 0)) return DragOutcome::kBack;
  if (offset > width / 4) return DragOutcome::kMenu;
  if (offset < -width / 4) return DragOutcome::kNextPage;
  return DragOutcome::kBack;
}

TiltNavigator::Move TiltNavigator::sample(double x, bool upsideDown, bool profileOpen) {
  constexpr double kRest = 0.3, kTilt = 0.5;
  constexpr int kSpent = 2;
  if (x > -kRest && x < kRest) {
    state_ = 0;
    return Move::kNone;
  }
  if (state_ == 0 && (x > kTilt || x < -kTilt)) state_ = (x > kTilt) != upsideDown ? 1 : -1;
  if (!profileOpen || state_ == 0 || state_ == kSpent) return Move::kNone;
  const Move move = state_ == 1 ? Move::kMenu : Move::kNextPage;
  state_ = kSpent;
  return move;
}

}  // namespace lad::shell
