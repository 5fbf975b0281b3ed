#include "cloud/cloud_texts.h"

#include "cloud/change_folder.h"
#include "cloud/cloud_pass.h"
#include "core/context.h"

namespace lad::cloud {

namespace {

// A line that shows the percent; it is not translated.
std::string withPercent(std::string text, const std::string& percent) {
  return text.replace(text.find("%@"), 2, percent);
}

}  // namespace

std::string cloudText(const Context& context) {
  const ProcessValues& v = context.values();
  const std::string percent =
      v.cloudPercent >= 0 ? " - " + std::to_string(v.cloudPercent) + "%" : "";
  switch (v.cloudMode) {
    case kCloudOff:
      return context.translate("Настройка режима работы с облаком (✋ Отключено)");
    case kCloudSync:
      if (!hasCloudFolder(context))
        return context.translate("Настройка режима работы с облаком (⛔ Отключено на устройстве)");
      return withPercent("Настройка режима работы с облаком (Синхронизация через iCloud%@)",
                         percent);
    case kCloudRemote:
      if (!v.dropboxReady)
        return context.translate("Настройка режима работы с облаком (⛔ Ошибка доступа в Dropbox)");
      return withPercent("Настройка режима работы с облаком (Синхронизация через Dropbox%@)",
                         percent);
    case kCloudImport:
      return withPercent(
          "Настройка режима работы с облаком (Идет загрузка старых данных из iCloud%@)", percent);
    default:
      return context.translate("Настройка режима работы с облаком (⛔ Ошибка работы с облаком)");
  }
}

std::string cloudExplanation(const Context& context, int choice, bool folderUsable) {
  switch (choice) {
    case kChoiceFolder:
      return context.translate(
          folderUsable
              ? "Данные программы будут синхронизовываться через облако iCloud ✅."
              : "Данные программы будут синхронизовываться через облако iCloud (у программы нет "
                "прав для работы с облаком. Зайдите в программу Настройки > ICloud и разрешите "
                "программе работать с облаком ⛔).");
    case kChoiceRemote:
      return context.translate("Данные программы будут синхронизовываться через облако Dropbox ✅.");
    default:
      return context.translate(
          "Работа с облаком отключена. Данные в облако не отправляются и не принимаются оттуда "
          "✋.");
  }
}

}  // namespace lad::cloud
