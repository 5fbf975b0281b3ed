// The four editions built from one code base, told apart by appid.
#pragma once

#include <string>

namespace lad {

struct Edition {
  int appid;
  const char* program;   // name of the executable
  const char* caption;   // the edition's name as the user sees it
  const char* database;  // file name of the diary database
};

// The edition of an appid; nullptr for a number that is no edition.
const Edition* editionFor(int appid);

// The two pregnancy editions (plain and 3D) share their profiles and dialogs.
constexpr bool isPregnancyEdition(int appid) {
  return appid == 1 || appid == 14;
}

// Language numbers of the interface: 1 Russian, 2 German, 3 French.
int langidFromCode(const std::string& code);  // 0 for an unknown code

}  // namespace lad
