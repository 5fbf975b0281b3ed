#include "shell/profile_cards.h"

#include <filesystem>

#include "health/child_age.h"
#include "health/pregnancy_calendar.h"
#include "shell/views/node.h"
#include "store/portrait.h"

namespace lad::shell {

namespace {

constexpr std::string_view kCardPrefix = "card:";
constexpr const char* kNoPicture = "ti-preg2.png";
constexpr const char* kNoChildPicture = "ti-child.png";
constexpr const char* kDateForm = "dd.MM.yyyy";

std::string dateText(const Context& context, const Value& date) {
  const auto d = date.asDate();
  return d ? context.dates().dateToString(*d, kDateForm) : context.translate("не указано");
}

std::string sexIcon(const Value& sex) {
  switch (sex.intValue()) {
    case 1:
      return "b-pic.png";
    case 2:
      return "w-pic.png";
    default:
      return {};
  }
}

// The dates the state of a pregnancy counts from.
Map stateSetup(const Map& profile) {
  Map setup;
  setup.set("dat1", profile["sdat1"]);
  setup.set("birthdate", profile["sbirthdate"]);
  return setup;
}

// The parts every card has: the portrait or the picture, the name and the sex.
ProfileCard cardHead(const Context& context, const Map& profile, const char* picture) {
  ProfileCard card;
  card.guid = profile["guid"].text();
  card.picture = picture;
  if (std::filesystem::exists(portraitFile(context, card.guid))) {
    card.picture = portraitFile(context, card.guid).filename();
    card.portrait = std::string(kPortraitAddress) + card.guid;
  }
  card.name = profile["childname"].text();
  if (card.name.empty()) card.name = context.translate("Без имени");
  card.sexIcon = sexIcon(profile["sex"]);
  return card;
}

ProfileCard cardOf(const Context& context, const Map& profile) {
  ProfileCard card = cardHead(context, profile, kNoPicture);
  const Value& birth = profile["sbirthdate2"];
  const std::string end = dateText(context, birth.asDate() ? birth : profile["sbirthdate"]);
  card.lines.push_back(dateText(context, profile["sdat1"]) + " - " + end);
  if (birth.asDate()) {
    Map result;
    result.set("birthresult", profile["birthresult"]);
    result.set("sex", profile["sex"]);
    card.lines.push_back(context.translate("Беременность завершена:"));
    card.lines.push_back(dateText(context, birth));
    card.lines.push_back(health::ageString(context, health::AgeMode::ShortBirthResult, result));
  } else {
    card.lines.push_back(health::pregnancyStateLine(context, stateSetup(profile)));
  }
  return card;
}

ProfileCard childCardOf(const Context& context, const Map& profile) {
  ProfileCard card = cardHead(context, profile, kNoChildPicture);
  card.lines.push_back(dateText(context, profile["sbirthdate"]));
  if (const auto born = profile["sbirthdate"].asDate())
    card.lines.push_back(health::monthAge(context, *born, context.clock().now(), true, false));
  return card;
}

ProfileCard invitingCard(const Context& context) {
  return {
      "",
      kNoPicture,
      context.translate("Вы не беременны"),
      "",
      {context.translate("Для добавления беременности нажмите на кнопку \"Новая беременность\"")},
      ""};
}

ProfileCard invitingChildCard(const Context& context) {
  return {"",
          kNoChildPicture,
          context.translate("Детей пока нет"),
          "",
          {context.translate("Чтобы добавить ребенка, нажмите на кнопку \"Новый ребенок\"")},
          ""};
}

std::vector<ProfileCard> cardsOf(const Context& context, const List& profiles,
                                 ProfileCard (*card)(const Context&, const Map&),
                                 ProfileCard (*inviting)(const Context&)) {
  std::vector<ProfileCard> cards;
  for (const Value& profile : profiles)
    if (const Map* m = profile.asMap()) cards.push_back(card(context, *m));
  if (cards.empty()) cards.push_back(inviting(context));
  return cards;
}

}  // namespace

std::string cardTarget(const std::string& guid) {
  return std::string(kCardPrefix) + guid;
}

std::string cardGuid(std::string_view target) {
  return target.starts_with(kCardPrefix) ? std::string(target.substr(kCardPrefix.size())) : "";
}

Value ProfileCard::toValue(bool open) const {
  Map m = node(kKind);
  m.set("id", guid.empty() ? "" : cardTarget(guid));
  m.set("picture", picture);
  if (!portrait.empty()) m.set("portrait", portrait);
  m.set("name", name);
  if (!sexIcon.empty()) m.set("sex", sexIcon);
  List texts;
  for (const std::string& line : lines) texts.push_back(Value(line));
  m.set("lines", Value(std::move(texts)));
  m.set("open", open);
  return Value(std::move(m));
}

std::vector<ProfileCard> pregnancyCards(const Context& context, const List& profiles) {
  return cardsOf(context, profiles, cardOf, invitingCard);
}

std::vector<ProfileCard> childCards(const Context& context, const List& profiles) {
  return cardsOf(context, profiles, childCardOf, invitingChildCard);
}

}  // namespace lad::shell
