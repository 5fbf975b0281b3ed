#include "store/tables.h"

#include "core/edition.h"

namespace lad {

const EditionTables& tablesFor(int appid) {
  static const EditionTables pregnancy{"preg",      "pregid",     "pregdata",
                                       "pregconst", "pregselect", "pregguid"};
  static const EditionTables child{"child",      "chid",        "childdata",
                                   "childconst", "childselect", "childguid"};
  static const EditionTables woman{"woman", "womid", "womdata", "womconst", "womselect", "womguid"};
  if (isChildEdition(appid)) return child;
  if (isCycleEdition(appid)) return woman;
  return pregnancy;
}

}  // namespace lad
