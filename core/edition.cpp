#include "core/edition.h"

namespace lad {

namespace {

const Edition kEditions[] = {
    {1, "ladaneya", "Ладанея", "pregnant.sqlite"},
    {2, "krohomir", "Крохомир", "child.sqlite"},
    {3, "lunoveya", "Луновея", "woman.sqlite"},
    {14, "ladaneya3d", "Ладанея 3D", "pregnant.sqlite"},
};

}  // namespace

const Edition* editionFor(int appid) {
  for (const auto& e : kEditions)
    if (e.appid == appid) return &e;
  return nullptr;
}

int langidFromCode(const std::string& code) {
  if (code == "ru") return 1;
  if (code == "de") return 2;
  if (code == "fr") return 3;
  return 0;
}

}  // namespace lad
