// The menu table: every page, command and switch of the edition, in the order the main menu
// shows them. Rows are maps with the keys tp, pic, name, id, comment, gid, needupdate.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

// Kinds of menu rows (the tp key).
enum MenuRowKind {
  kMenuPage = 1,
  kMenuProfileCommand = 2,
  kMenuNewProfile = 3,
  kMenuCommand = 4,
  kMenuSwitch = 5,
  kMenuVersion = 6,
};

using Translate = std::function<std::string(std::string_view)>;

// Rows of the edition; rows that exist only in Russian are left out for other languages.
List buildMenuTable(int appid, int langid, const std::string& version, const Translate& translate);

// Place, from 1, of the last page row; 0 when there is none.
int homePageOf(const List& menu);

// Sets checked on the row with that id and returns its place from 1, or -1 if there is none.
int menuItemCheck(List& menu, int id, bool checked);

// The row with that id, or nullptr.
const Map* menuRow(const List& menu, int id);

}  // namespace lad
