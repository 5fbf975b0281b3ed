#include "shell/welcome_screen.h"

#include "core/edition.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"

namespace lad::shell {

namespace {

constexpr std::string_view kClose = "welcome:close";

std::string commandTarget(WelcomeCommand command) {
  return "welcome:" + std::to_string(command);
}

const char* accentOf(int appid) {
  switch (appid) {
    case 2:
      return "greenB";
    case 3:
      return "orangeB3";
    case 14:
      return "fiolB";
    default:
      return "blueB";
  }
}

const char* firstStepText(int appid) {
  switch (appid) {
    case 2:
      return "Если Вы первый раз установили программу, то перейдите в настройки учетной записи "
             "ребенка, если Вы уже пользовались программой, то в настройках Облака установите "
             "режим Получателя для загрузки старых данных.";
    case 3:
      return "Если Вы первый раз установили программу, то перейдите в настройки программы, если "
             "Вы уже пользовались программой, то в настройках Облака установите режим Получателя "
             "для загрузки старых данных.";
    case 14:
      return "Для того, чтобы настроить программу под себя нажмите на кнопку Настройки ниже.";
    default:
      return "Если Вы первый раз установили программу, то перейдите в настройки учетной записи "
             "беременности, если Вы уже пользовались программой, то в настройках Облака "
             "установите режим Получателя для загрузки старых данных.";
  }
}

class WelcomeBuilder {
 public:
  WelcomeBuilder(const Context& context, const WelcomeScreen::Commands& commands)
      : context_(context), commands_(commands) {}

  void text(std::string_view text) {
    blocks_.push_back(TextView{context_.translate(text), "", std::nullopt}.toValue());
  }

  // One row of buttons; two in a row share its width.
  void buttons(std::initializer_list<std::pair<WelcomeCommand, std::string_view>> buttons) {
    ButtonsView row;
    for (const auto& [command, caption] : buttons)
      row.buttons.push_back(
          {commandTarget(command), context_.translate(caption), commands_.contains(command)});
    blocks_.push_back(row.toValue());
  }

  List take() { return std::move(blocks_); }

 private:
  const Context& context_;
  const WelcomeScreen::Commands& commands_;
  List blocks_;
};

List greetingBlocks(const Context& context, Greeting greeting,
                    const WelcomeScreen::Commands& commands) {
  WelcomeBuilder b(context, commands);
  if (greeting == Greeting::Update) {
    b.text("Добро пожаловать в новую версию программы");
    b.text("Более подробно о новшествах в программе Вы можете ознакомиться здесь");
    b.buttons({{kWhatIsNew, "Что нового?"}});
    b.text(
        "Если у Вас возникнут сложности или вопросы по программе, к вашимa услугам раздел "
        "Поддержка на главном экране программе.");
    return b.take();
  }
  const int appid = context.values().appid;
  b.text("Добро пожаловать в программу");
  b.text("Более подробно с возможностями программы Вы можете ознакомиться здесь");
  b.buttons({{kAbout, "Описание программы"}});
  b.text(firstStepText(appid));
  if (is3dEdition(appid))
    b.buttons({{kSetup, "Настройки"}});
  else
    b.buttons({{kSetup, "Настройки"}, {kCloud, "Облако"}});
  return b.take();
}

}  // namespace

Value WelcomeScreen::view() {
  return WelcomeView{"start-icon.png",
                     context_.translate(context_.edition().caption),
                     accentOf(context_.values().appid),
                     greetingBlocks(context_, greeting_, commands_),
                     {std::string(kClose), context_.translate("Начать работу"), std::nullopt}}
      .toValue();
}

EventResult WelcomeScreen::tap(std::string_view target) {
  if (target == kClose) {
    closed_ = true;
    return {};
  }
  for (const auto& [command, action] : commands_)
    if (target == commandTarget(command)) return action();
  if (target.starts_with("welcome:"))
    return EventResult::refused(std::string(target) + " is not available in this version");
  return EventResult::refused("no welcome button " + std::string(target));
}

}  // namespace lad::shell
