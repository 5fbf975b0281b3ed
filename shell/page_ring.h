// The ring of full-size pages in front of the main menu: which pages it holds, which one is in
// front and which waits behind it, and where a drag or a tilt of the device takes the user.
#pragma once

#include <optional>
#include <set>
#include <vector>

#include "core/value.h"

namespace lad::shell {

// Menu ids below this are pages; the ones above are commands and switches.
inline constexpr int kFirstNonPageId = 21;

inline bool isPageId(int id) {
  return id > 0 && id < kFirstNonPageId;
}

class PageRing {
 public:
  // The pages of the menu in its order, of those that this build has screens for.
  static std::vector<int> pagesOf(const List& menu, const std::set<int>& built);

  explicit PageRing(std::vector<int> pages) : pages_(std::move(pages)) {}

  const std::vector<int>& pages() const { return pages_; }
  // The page in front, or nothing while the menu is uncovered.
  std::optional<int> front() const;
  // The page that waits behind the front one; the ring wraps, so a ring of one page has
  // itself behind.
  std::optional<int> back() const;

  // Brings a page of the ring to the front; false for a page the ring lacks.
  bool open(int page);
  // The front page slides away and the next one comes, the first after the last.
  void gotoNextPage();
  // The front page slides aside and uncovers the menu.
  void gotoMenu() { inFront_ = false; }

 private:
  std::vector<int> pages_;
  std::size_t place_ = 0;
  bool inFront_ = false;
};

// Where a page lands when the finger lifts, by how far its left edge moved (negative: left).
enum class DragOutcome { kBack, kMenu, kNextPage };
DragOutcome dragEnded(double offset, double width);

// Tilt navigation from the sideways acceleration, sampled every 0.3 s. One tilt beyond 0.5 g
// makes one move; the device must come back within 0.3 g of rest before the next.
class TiltNavigator {
 public:
  enum class Move { kNone, kMenu, kNextPage };

  // One sample. With no profile open a tilt moves nothing and stays counted until the device
  // is at rest again.
  Move sample(double x, bool upsideDown, bool profileOpen);
  int state() const { return state_; }

 private:
  int state_ = 0;  // 0 at rest, 1 or -1 tilted, 2 spent
};

}  // namespace lad::shell
