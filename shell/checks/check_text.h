// A content text with the tick boxes of one check-list and its links, laid out for a screen:
// the ticks come from the store when it is laid out and go back to it as they are set.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "content/text_data.h"
#include "shell/application.h"
#include "shell/views/week.h"

namespace lad::shell {

// What a tap on a row of the text asked for.
struct CheckTap {
  enum class Kind { Tick, Link };
  Kind kind = Kind::Tick;
  int linkid = 0;       // a link's number
  std::string guid;     // the ticked item
  bool ticked = false;  // its new state
};

struct CheckTextOptions {
  std::string id;  // names the view and the targets of its rows
  std::string resource;
  int seltypeid = 0;          // the list; below 1 ticks are neither loaded nor stored
  std::string gid;            // the profile, or the fixed identifier of a list of no profile
  std::optional<Date> start;  // the first day of the pregnancy, for the dates of week marks
  double lineDistance = 0;
  int highlight = 0;           // the group marked and scrolled to; 0: none
  bool highlightJust = false;  // that group itself, rather than the last one up to it
};

class CheckText {
 public:
  CheckText(Application& app, CheckTextOptions options);

  ContentView view() const;
  // Ticks, unticks (and stores) or follows the row; nullopt for a target that is not one of
  // the text's rows with a box or a link. Web links are not followed: the diary has no viewer
  // of web pages.
  std::optional<CheckTap> tap(std::string_view target);
  // The text an item puts into the diary when it is ticked; "" when it has none.
  std::string hiddenText(const std::string& guid) const;

 private:
  void loadTicks();
  CheckTap toggle(int box);

  Application& app_;
  CheckTextOptions options_;
  content::TextData text_;
};

}  // namespace lad::shell
