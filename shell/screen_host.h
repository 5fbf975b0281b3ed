// What a screen may ask of the session that shows it: another screen over it, a popup, or a
// message.
#pragma once

#include <functional>
#include <memory>

#include "shell/message_box.h"
#include "shell/popup.h"
#include "shell/report_maker.h"
#include "shell/screen.h"

namespace lad::shell {

class ScreenHost {
 public:
  // A popup's answer goes to its action once, after the popup has closed; what the action
  // returns is the result of the tap that answered.
  using PopupAction = std::function<EventResult(const PopupAnswer&)>;

  virtual ~ScreenHost() = default;
  // Puts a screen over the present one; it goes when it says it is closed.
  virtual void push(std::shared_ptr<Screen> screen) = 0;
  virtual void openPopup(std::unique_ptr<Popup> popup, PopupAction action) = 0;
  virtual void showMessage(MessageBox message) = 0;
  // Follows a document being written on the worker in the report's panel, which offers it for
  // download once it is there. A host without the panel lets it be written unseen.
  virtual EventResult followDocument(std::shared_ptr<const ReportJob>) { return {}; }
};

}  // namespace lad::shell
