// The names of each edition's tables and key columns: the pregnancy editions (1, 14) use the
// preg family, the child edition (2) the child family, the woman's edition (3) the wom family.
#pragma once

namespace lad {

struct EditionTables {
  const char* profile;     // preg, child, woman
  const char* profileId;   // pregid, chid, womid
  const char* data;        // pregdata, childdata, womdata
  const char* dictionary;  // pregconst, childconst, womconst
  const char* selection;   // pregselect, childselect; the woman's edition has none
  const char* guid;        // pregguid, childguid, womguid
};

const EditionTables& tablesFor(int appid);

}  // namespace lad
