#include "shell/cloud_screen.h"

#include <unistd.h>

#include "cloud/change_folder.h"
#include "cloud/cloud_pass.h"
#include "cloud/cloud_texts.h"
#include "shell/question.h"
#include "shell/views/editors.h"

namespace lad::shell {

namespace {

constexpr std::string_view kChoice = "cloud:choice";
constexpr std::string_view kFolder = "cloud:folder";
constexpr std::string_view kCopy = "cloud:copy";
constexpr std::string_view kOld = "cloud:old";
constexpr std::string_view kClose = "cloud:ok";
constexpr std::string_view kCancel = "cloud:cancel";
constexpr int kConsent = 1;
constexpr std::size_t kUnitsPerStep = 10;
constexpr std::string_view kCopyCaption = "Копирование данных в облако";
constexpr std::string_view kLoadCaption = "Загрузка данных";

int choiceOf(int mode) {
  if (mode == 2 || mode == cloud::kCloudImport || mode == cloud::kCloudSync)
    return cloud::kChoiceFolder;
  if (mode == 4 || mode == 5 || mode == cloud::kCloudRemote) return cloud::kChoiceRemote;
  return cloud::kChoiceOff;
}

// A folder can be used when it is there, or the nearest folder above it that is there can
// hold it.
bool canHold(const std::filesystem::path& folder) {
  if (!folder.is_absolute()) return false;
  std::filesystem::path existing = folder;
  std::error_code error;
  while (!std::filesystem::exists(existing, error) && existing.has_relative_path())
    existing = existing.parent_path();
  return std::filesystem::is_directory(existing, error) && access(existing.c_str(), W_OK) == 0;
}

EditorRowView row(int tp, std::string_view id, std::string caption, Value source = {}) {
  EditorRowView r;
  r.tp = tp;
  r.id = std::string(id);
  r.caption = std::move(caption);
  r.source = std::move(source);
  return r;
}

}  // namespace

CloudScreen::CloudScreen(Application& app, ScreenHost& host)
    : app_(app),
      host_(host),
      choice_(choiceOf(app.context().values().cloudMode)),
      folder_(app.context().settings().stringForKey("cloudFolder")) {}

bool CloudScreen::folderUsable() const {
  return !folder_.empty() && canHold(folder_);
}

bool CloudScreen::folderChanged() const {
  return folder_ != app_.context().settings().stringForKey("cloudFolder");
}

Value CloudScreen::view() {
  const Context& context = app_.context();
  EditorView editor;
  editor.caption = context.translate("Работа с облаком");
  editor.rows.push_back(
      row(kSegments, kChoice, context.translate("Отключено|Общая папка|Удаленный диск"), choice_));
  editor.rows.push_back(row(kText, "", cloud::cloudExplanation(context, choice_, folderUsable())));
  if (choice_ == cloud::kChoiceFolder) {
    EditorRowView folder = row(kTextInput, kFolder, context.translate("Папка"), folder_);
    folder.editcap = "/home/…/Ладанея";
    editor.rows.push_back(std::move(folder));
    editor.rows.push_back(
        row(kText, "",
            context.translate("Укажите папку, которую программа синхронизации файлов держит "
                              "одинаковой на всех ваших устройствах. Лучше отдельную папку только "
                              "для дневника.")));
  }
  if (const cloud::BulkCopy* copy = app_.cloudCopy())
    editor.rows.push_back(
        row(kText, "", copy->message() + " - " + std::to_string(copy->percent()) + "%"));
  else if (choice_ != cloud::kChoiceOff) {
    const bool old =
        context.values().oldCloudFound || context.values().cloudMode == cloud::kCloudImport;
    if (old)
      editor.rows.push_back(
          row(kButton, kOld, context.translate("Загрузить данные в старом формате")));
    else if (choice_ == cloud::kChoiceRemote ||
             (cloud::hasCloudFolder(context) && !folderChanged()))
      editor.rows.push_back(
          row(kButton, kCopy, context.translate("Заменить данные в облаке данными отсюда")));
  }
  editor.ok = {std::string(kClose), context.translate("Готово"), {}};
  editor.cancel = {std::string(kCancel), context.translate("Отмена"), {}};
  return editor.toValue();
}

EventResult CloudScreen::change(std::string_view target, const Value& value) {
  if (target == kChoice) {
    const auto chosen = value.intValue();
    if (chosen < cloud::kChoiceOff || chosen > cloud::kChoiceRemote)
      return EventResult::refused("the cloud mode is 0, 1 or 2");
    choice_ = static_cast<int>(chosen);
    return {};
  }
  if (target == kFolder) {
    const std::string* text = value.asText();
    if (!text) return EventResult::refused("the cloud folder is a text");
    const auto first = text->find_first_not_of(" \t\n");
    folder_ = first == std::string::npos
                  ? std::string()
                  : text->substr(first, text->find_last_not_of(" \t\n") - first + 1);
    return {};
  }
  return EventResult::refused("the cloud screen has no input " + std::string(target));
}

EventResult CloudScreen::tap(std::string_view target) {
  if (target == kCancel) {
    closed_ = true;
    return {};
  }
  if (app_.cloudCopy()) return EventResult::refused("the copy into the cloud is running");
  if (target == kClose) return closeOK();
  if (target == kCopy) return optimizeOK();
  if (target == kOld) return olddownloadOK();
  return EventResult::refused("the cloud screen has no " + std::string(target));
}

EventResult CloudScreen::closeOK() {
  Context& context = app_.context();
  ProcessValues& v = context.values();
  const int pending = choice_ == cloud::kChoiceFolder   ? cloud::kCloudSync
                      : choice_ == cloud::kChoiceRemote ? cloud::kCloudRemote
                                                        : cloud::kCloudOff;
  if (pending == cloud::kCloudRemote) {
    host_.showMessage(MessageBox::make(
        context, "Копирование данных в облако Dropbox будет реализовано в следующей версии.",
        "Синхронизация через DropBox"));
    return {};
  }
  if (pending == cloud::kCloudSync && !folderUsable()) {
    host_.showMessage(MessageBox::make(
        context, "Укажите полный путь к папке, в которую программа может писать.", "Ошибка"));
    return {};
  }
  EventResult result;
  result.installationChanged = true;
  closed_ = true;
  if (pending == cloud::kCloudOff) {
    v.cloudWatching = false;  // the mode itself stays, as stored
    return result;
  }
  v.cloudWatching = true;  // chosen again after it was turned off for this run
  if (pending == v.cloudMode && !folderChanged()) return result;
  context.settings().set("cloudFolder", folder_);
  v.cloudPercent = -1;
  cloud::chooseCloudSync(context);
  return result;
}

EventResult CloudScreen::optimizeOK() {
  const Context& context = app_.context();
  if (choice_ == cloud::kChoiceRemote) {
    host_.showMessage(MessageBox::make(
        context, "Копирование данных в облако DropBox будет реализовано в следующей версии",
        kCopyCaption));
    return {};
  }
  host_.openPopup(std::make_unique<Question>(Question::ask(
                      context,
                      "Вы действительно хотите все данные программы в облаке заменить данными "
                      "программы с этого устройства?",
                      kCopyCaption)),
                  [this](const PopupAnswer& answer) {
                    if (answer.button != kConsent) return EventResult();
                    app_.startCloudCopy();
                    return continueCloudCopy(app_, host_);
                  });
  return {};
}

EventResult CloudScreen::olddownloadOK() {
  host_.openPopup(
      std::make_unique<Question>(Question::ask(
          app_.context(),
          "Вы действительно хотите загрузить данные из облака? При этом данные программы будут "
          "затерты данными из облака!",
          kLoadCaption)),
      [this](const PopupAnswer& answer) {
        if (answer.button != kConsent) return EventResult();
        host_.showMessage(MessageBox::make(
            app_.context(),
            "Ваши данные в старом формате будут загружены из облака. Когда все данные будут "
            "загружены, программа автоматически перейдет в новый режим работы с облаком. При "
            "этом данные в старом формате останутся в облаке. Для их удаления воспользуйтесь "
            "кнопкой оптимизации.",
            kLoadCaption));
        app_.context().values().cloudMode = cloud::kCloudImport;
        return EventResult();
      });
  return {};
}

EventResult continueCloudCopy(Application& app, ScreenHost& host) {
  cloud::BulkCopy* copy = app.cloudCopy();
  EventResult result;
  result.installationChanged = true;
  if (copy && copy->step(kUnitsPerStep)) {
    result.timer = [&app, &host] { return continueCloudCopy(app, host); };
    return result;
  }
  app.endCloudCopy();
  host.showMessage(MessageBox::make(
      app.context(),
      "Данные программы в облаке оптимизированы. Через несколько минут операционная система "
      "приступит к корректировке данных в облаке.",
      "Облако оптимизировано"));
  return result;
}

}  // namespace lad::shell
