#include "shell/welcome_screen.h"

#include "shell/view.h"

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

  void text(std::string_view text) { blocks_.push_back(textView(context_.translate(text))); }

  // One row of buttons; two in a row share its width.
  void buttons(std::initializer_list<std::pair<WelcomeCommand, std::string_view>> buttons) {
    List row;
    for (const auto& [command, caption] : buttons) {
      Map b;
      b.set("id", commandTarget(command));
      b.set("caption", context_.translate(caption));
      b.set("enabled", commands_.contains(command));
      row.push_back(Value(std::move(b)));
    }
    Map m;
    m.set("kind", "buttons");
    m.set("buttons", std::move(row));
    blocks_.push_back(Value(std::move(m)));
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
  if (appid == 14)
    b.buttons({{kSetup, "Настройки"}});
  else
    b.buttons({{kSetup, "Настройки"}, {kCloud, "Облако"}});
  return b.take();
}

}  // namespace

Value WelcomeScreen::view() {
  Map close;
  close.set("id", std::string(kClose));
  close.set("caption", context_.translate("Начать работу"));
  Map m;
  m.set("kind", "welcome");
  m.set("icon", "start-icon.png");
  m.set("caption", context_.translate(context_.edition().caption));
  m.set("accent", accentOf(context_.values().appid));
  m.set("children", greetingBlocks(context_, greeting_, commands_));
  m.set("close", std::move(close));
  return Value(std::move(m));
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
