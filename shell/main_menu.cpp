#include "shell/main_menu.h"

#include <algorithm>
#include <charconv>

#include "cloud/cloud_texts.h"
#include "core/menu_table.h"
#include "shell/page_ring.h"
#include "shell/pages.h"
#include "shell/profile_cards.h"
#include "shell/views/pages.h"
#include "shell/week_notices.h"
#include "store/profiles.h"

namespace lad::shell {

using namespace std::chrono_literals;

// A menu switch and the setting behind it. A switch with a shared value keeps it in step;
// an inverted one stores the opposite of what it shows.
struct SwitchSetting {
  int id;
  const char* key;
  bool ProcessValues::*shared;
  bool inverted;
  bool built;                             // its effect exists in this build
  std::chrono::milliseconds redrawAfter;  // a later redraw of every browser, or zero
};

namespace {

constexpr std::string_view kTargetPrefix = "menu:";
// The badge of a row's notices of the week ("menu:notice:7").
constexpr std::string_view kNoticePrefix = "menu:notice:";
// The cloud row tells the mode and how complete the folder is.
constexpr int kCloudRow = 38;

const SwitchSetting kSwitches[] = {
    {51, "emptyNote", nullptr, false, true, 0ms},
    {52, "pass", nullptr, false, false, 0ms},
    {53, "accStop", &ProcessValues::accStop, true, true, 0ms},
    {54, "pillsAlarm", &ProcessValues::pillsAlarm, false, true, 0ms},
    {55, "chatIndi", &ProcessValues::chatIndi, false, true, 1s},
    {56, "showRec", &ProcessValues::showRec, false, true, 0ms},
};

const SwitchSetting* switchFor(int id) {
  for (const auto& s : kSwitches)
    if (s.id == id) return &s;
  return nullptr;
}

bool storedState(const Context& context, const SwitchSetting& s) {
  if (s.shared) return context.values().*s.shared;
  return context.settings().boolForKey(s.key);
}

bool switchShows(const Context& context, const SwitchSetting& s) {
  return storedState(context, s) != s.inverted;
}

std::optional<int> parseTarget(std::string_view target) {
  if (!target.starts_with(kTargetPrefix)) return std::nullopt;
  target.remove_prefix(kTargetPrefix.size());
  int id = 0;
  auto [end, ec] = std::from_chars(target.data(), target.data() + target.size(), id);
  if (ec != std::errc() || end != target.data() + target.size()) return std::nullopt;
  return id;
}

// Rows that belong to an open profile, as opposed to the common ones.
bool isProfileItem(const Map& item) {
  return item["gid"].text() == "LOCAL";
}

}  // namespace

bool MainMenu::isBuilt(int id) const {
  const SwitchSetting* sw = switchFor(id);
  return (sw && sw->built) || commands_.contains(id) ||
         (isPageId(id) && builtPages(context_.values().appid).count(id));
}

RowView MainMenu::rowOf(const Value& item) const {
  const int id = static_cast<int>(item["id"].intValue());
  RowView row;
  row.id = menuTarget(id);
  row.icon = item["pic"].text();
  row.caption = item["name"].text();
  row.comment = item["comment"].text();
  if (id == kCloudRow) {  // the line tells the mode in place of the row's own texts
    row.caption = cloud::cloudText(context_);
    row.comment.clear();
  }
  if (item["hint"].intValue() > 0) row.badge = item["hint"].text();
  if (isProfileItem(*item.asMap()) && !activeId_.empty() &&
      hasWeekNotices(context_.values().appid, id))
    if (const auto notices = weekNotices(store_, id, activeId_); !notices.empty()) {
      row.badge = std::to_string(notices.size());
      row.badgeTarget = std::string(kNoticePrefix) + std::to_string(id);
    }
  row.enabled = isBuilt(id);
  if (item["tp"].intValue() == kMenuSwitch) row.checked = item["checked"].boolValue();
  return row;
}

std::string menuTarget(int id) {
  return std::string(kTargetPrefix) + std::to_string(id);
}

void MainMenu::updateMenu() {
  for (const auto& s : kSwitches)
    menuItemCheck(context_.values().tabMenu, s.id, switchShows(context_, s));
}

bool MainMenu::hasCards() const {
  const int appid = context_.values().appid;
  return isPregnancyEdition(appid) || isChildEdition(appid);
}

// The cards, each open one followed by the items of its profile.
List MainMenu::cardViews() {
  List views;
  bool activeFound = false;
  const List profiles = loadProfils(store_);
  const auto cards = isChildEdition(context_.values().appid) ? childCards(context_, profiles)
                                                             : pregnancyCards(context_, profiles);
  for (const ProfileCard& card : cards) {
    const bool open = !card.guid.empty() && card.guid == activeId_;
    views.push_back(card.toValue(open));
    if (!open) continue;
    activeFound = true;
    List rows;
    for (const Value& item : context_.values().tabMenu)
      if (isProfileItem(*item.asMap())) rows.push_back(rowOf(item).toValue());
    views.push_back(ListView{std::move(rows)}.toValue());
  }
  if (!activeFound) activeId_.clear();  // the open profile was removed
  return views;
}

Value MainMenu::view() {
  updateMenu();
  const bool cards = hasCards();
  List children = cards ? cardViews() : List();
  List rows;
  for (const Value& item : context_.values().tabMenu)
    if (!cards || !isProfileItem(*item.asMap())) rows.push_back(rowOf(item).toValue());
  children.push_back(ListView{std::move(rows)}.toValue());
  return PageView{context_.translate(context_.edition().caption), std::move(children)}.toValue();
}

EventResult MainMenu::tap(std::string_view target) {
  if (const std::string guid = cardGuid(target); !guid.empty()) return tapCard(guid);
  if (target.starts_with(kNoticePrefix)) {
    int id = 0;
    const auto number = target.substr(kNoticePrefix.size());
    auto [end, ec] = std::from_chars(number.data(), number.data() + number.size(), id);
    if (ec == std::errc() && end == number.data() + number.size()) return readNotices(id);
    return EventResult::refused("no notices " + std::string(target));
  }
  auto id = parseTarget(target);
  const Map* item = id ? menuRow(context_.values().tabMenu, *id) : nullptr;
  if (!item) return EventResult::refused("no menu item " + std::string(target));
  if (!isBuilt(*id))
    return EventResult::refused("menu item " + std::string(target) +
                                " is not available in this version");
  return tapItem(*id, isProfileItem(*item));
}

EventResult MainMenu::tapCard(const std::string& guid) {
  for (const Value& profile : loadProfils(store_))
    if (profile["guid"].text() == guid) {
      activeId_ = activeId_ == guid ? std::string() : guid;
      return {};
    }
  return EventResult::refused("no profile " + guid);
}

EventResult MainMenu::tapItem(int id, bool profileItem) {
  if (const SwitchSetting* sw = switchFor(id); sw && sw->built) return toggleSwitch(*sw);
  if (profileItem && hasCards() && activeId_.empty())
    return EventResult::refused("open a profile before its pages");
  if (auto command = commands_.find(id); command != commands_.end()) return command->second();
  if (!openPage_) return EventResult::refused("pages cannot be opened here");
  return openPage_(id);
}

// The notices go into a message and the week's badge goes; the row's page stays where it is.
EventResult MainMenu::readNotices(int id) {
  if (activeId_.empty() || !hasWeekNotices(context_.values().appid, id))
    return EventResult::refused("no notices of row " + std::to_string(id));
  auto message = readWeekNotices(store_, id, activeId_);
  if (!message) return EventResult::refused("no notices this week");
  if (showMessage_) showMessage_(std::move(*message));
  EventResult result;
  result.installationChanged = true;
  return result;
}

EventResult MainMenu::toggleSwitch(const SwitchSetting& s) {
  const bool stored = !storedState(context_, s);
  if (s.shared) context_.values().*s.shared = stored;
  context_.settings().set(s.key, stored);
  context_.settings().synchronize();
  EventResult result;
  result.installationChanged = true;
  result.redrawAfter = s.redrawAfter;
  return result;
}

}  // namespace lad::shell
