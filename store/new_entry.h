// What the dialogs of a new dictionary entry add: the list row's kind of dialog decides how the
// user's input becomes the entry's name and kind.
#pragma once

#include <string>

namespace lad {

// The input of the dialog: the name, the switch "into the child's card" of a new illness, and
// the measure (1 to 5) of a new food.
struct NewEntryInput {
  std::string text;
  bool toChildCard = false;
  int measure = 0;
};

struct NewEntry {
  std::string coname;
  int deleted = 0;
};

// Kind 1, a plain name; kind 2, an illness that goes into the child's card (deleted 2, with a
// marked name) or stays out of it (deleted 3); kind 3, a food with its measure's short name and
// the code 9 + measure. Any other kind adds a plain name.
NewEntry newEntryFor(int listedittype, const NewEntryInput& input);

}  // namespace lad
