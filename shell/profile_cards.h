// The profile cards at the top of the main menu: picture, name, sex, dates and the state of
// each pregnancy or the age of each child, or one card that invites to add one when there is
// none.
#pragma once

#include <string>
#include <string_view>

#include "core/context.h"
#include "core/value.h"

namespace lad::shell {

// Where the browser fetches a profile's portrait: this prefix and the profile's guid.
inline constexpr std::string_view kPortraitAddress = "/doc/portrait/";

// Target of a card in the view description ("card:<guid>"); the inviting card has none.
std::string cardTarget(const std::string& guid);
// The guid a card target names, or "" for any other target.
std::string cardGuid(std::string_view target);

struct ProfileCard {
  static constexpr std::string_view kKind = "card";
  std::string guid;  // empty on the inviting card
  std::string picture;
  std::string name;
  std::string sexIcon;  // empty while the sex is not known
  std::vector<std::string> lines;
  std::string portrait;  // the portrait's address when the profile has one, else empty

  Value toValue(bool open) const;
};

// One card per profile of loadProfils, in its order.
std::vector<ProfileCard> pregnancyCards(const Context& context, const List& profiles);
// One card per child: portrait, name, sex, birth date and age today.
std::vector<ProfileCard> childCards(const Context& context, const List& profiles);

}  // namespace lad::shell
