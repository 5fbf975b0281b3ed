#include "shell/reminder_feed_screen.h"

#include "shell/question.h"
#include "shell/reminder_feed.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"

namespace lad::shell {

namespace {

constexpr std::string_view kRenew = "feed:renew";
constexpr std::string_view kClose = "feed:close";
constexpr std::string_view kCaption = "Календарь напоминаний";
constexpr int kConsent = 1;
constexpr int kHint = 2;

}  // namespace

Value ReminderFeedScreen::view() {
  Context& context = app_.context();
  const auto text = [&](std::string_view t, std::optional<int> regim = std::nullopt) {
    return TextView{context.translate(t), "", regim}.toValue();
  };
  List children;
  children.push_back(
      text("Добавьте этот адрес в приложение календаря на телефоне как календарь по подписке: "
           "напоминания из дневника появятся в нем со звуком в свое время, даже когда "
           "дневник закрыт."));
  children.push_back(AddressView{feedPath(feedToken(context.settings())),
                                 context.translate("Скопировать адрес"),
                                 context.translate("Подписаться")}
                         .toValue());
  if (!context.values().pillsAlarm)
    children.push_back(
        text("Приемы лекарств попадут в календарь, когда в меню включены "
             "напоминания о приеме лекарств.",
             kHint));
  children.push_back(
      text("Календарь телефона должен открывать этот сервер по тому же адресу, что и браузер. "
           "Адрес знают только те, кому вы его дали; если он попал в чужие руки, создайте "
           "новый, и старый перестанет работать.",
           kHint));
  children.push_back(ButtonsView{{{std::string(kRenew), context.translate("Новый адрес"), {}},
                                  {std::string(kClose), context.translate("Закрыть"), {}}}}
                         .toValue());
  return PageView{context.translate(kCaption), std::move(children)}.toValue();
}

EventResult ReminderFeedScreen::tap(std::string_view target) {
  if (target == kClose) {
    closed_ = true;
    return {};
  }
  if (target != kRenew)
    return EventResult::refused("the calendar page has no " + std::string(target));
  host_.openPopup(
      std::make_unique<Question>(Question::ask(
          app_.context(), "Старый адрес перестанет работать. Создать новый адрес?", kCaption)),
      [this](const PopupAnswer& answer) {
        if (answer.button == kConsent) renewFeedToken(app_.context().settings());
        return EventResult();
      });
  return {};
}

}  // namespace lad::shell
