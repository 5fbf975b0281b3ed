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
// The child diary, with its children in place of pregnancies.
constexpr bool isChildEdition(int appid) {
  return appid == 2;
}
// The cycle diary of a woman, with one profile of her own.
constexpr bool isCycleEdition(int appid) {
  return appid == 3;
}
// The pregnancy edition with the 3D view.
constexpr bool is3dEdition(int appid) {
  return appid == 14;
}

// Language numbers of the interface: 1 Russian, 2 German, 3 French.
int langidFromCode(const std::string& code);  // 0 for an unknown code

}  // namespace lad
