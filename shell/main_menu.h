// The main menu: the edition's pages, commands and switches as one list.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "core/context.h"
#include "shell/message_box.h"
#include "shell/screen.h"
#include "shell/views/rows.h"
#include "store/store.h"

namespace lad::shell {

struct SwitchSetting;

// In the pregnancy and child editions the menu begins with a card per profile; touching a card
// opens it, with the pages and commands of that profile below it, and touching it again closes it.
class MainMenu : public Screen {
 public:
  // Brings a page of the ring to the front for the open profile.
  using PageOpener = std::function<EventResult(int page)>;
  // A command row's action, given by the screen that owns what it opens.
  using Command = std::function<EventResult()>;
  using MessageShower = std::function<void(MessageBox)>;

  MainMenu(Context& context, Store& store) : context_(context), store_(store) {}

  Value view() override;
  EventResult tap(std::string_view target) override;

  // Marks the switch rows of the menu table with the state they stand for.
  void updateMenu();

  void onOpenPage(PageOpener opener) { openPage_ = std::move(opener); }
  // Where the week's notices of a row are shown when their badge is tapped.
  void onMessage(MessageShower shower) { showMessage_ = std::move(shower); }
  // Rows with an action are enabled; the others wait for their screens.
  void onCommand(int id, Command action) { commands_[id] = std::move(action); }
  // The open profile, or "" while every card is closed.
  const std::string& activeId() const { return activeId_; }
  void setActiveId(std::string gid) { activeId_ = std::move(gid); }
  // Whether profiles are chosen by their cards (the pregnancy and child editions).
  bool hasCards() const;

 private:
  List cardViews();
  EventResult tapCard(const std::string& guid);
  bool isBuilt(int id) const;
  RowView rowOf(const Value& item) const;
  EventResult tapItem(int id, bool profileItem);
  EventResult toggleSwitch(const SwitchSetting& s);
  EventResult readNotices(int id);

  Context& context_;
  Store& store_;
  PageOpener openPage_;
  MessageShower showMessage_;
  std::map<int, Command> commands_;
  std::string activeId_;
};

// Row id of a menu item in the view description ("menu:51").
std::string menuTarget(int id);

}  // namespace lad::shell
