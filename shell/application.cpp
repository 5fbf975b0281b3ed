#include "shell/application.h"

#include <chrono>

#include "core/launch.h"
#include "shell/theme.h"
#include "store/first_launch.h"

namespace lad::shell {

namespace {

constexpr int kReviewEvery = 10;
// A return within this many whole seconds does not ask for the password again.
constexpr std::chrono::seconds kLockGrace{5};

}  // namespace

Application::Application(ContextOptions options)
    : context_(std::make_unique<Context>(std::move(options))),
      store_(std::make_unique<Store>(*context_)),
      reports_(std::make_unique<ReportMaker>(*store_, documents_)) {
  launch(*context_);
  fromOldVersion(*store_);
  correctBackground(context_->values(), context_->values().backgroundId);
}

void Application::startBook(reports::BookRequest request) {
  book_ = std::make_shared<BookProject>(*store_, documents_, imagesDir_, std::move(request));
  book_->start();
}

std::optional<Greeting> Application::takeVersionRecord() {
  if (versionRecordTaken_) return std::nullopt;
  versionRecordTaken_ = true;
  SettingsStore& settings = context_->settings();
  const std::string key = "version" + context_->values().versionTag;
  if (!settings.helpCheck(key)) return std::nullopt;
  const Greeting greeting =
      settings.helpCheck("FirstStart") ? Greeting::Update : Greeting::NewInstallation;
  settings.helpFinish(key);
  settings.set("FirstStart", false);
  settings.set("becomeActive", 0);
  settings.set("Rating", false);
  settings.synchronize();
  return greeting;
}

Activation Application::becomeActive() {
  SettingsStore& settings = context_->settings();
  const std::int64_t count = settings.integerForKey("becomeActive") + 1;
  settings.set("becomeActive", count);
  settings.synchronize();
  if (count % kReviewEvery == 0 && askReview_) askReview_();
  ProcessValues& values = context_->values();
  values.pushArrived = true;
  reminders_.invalidate();
  return {lockDue()};
}

bool Application::lockDue() const {
  const SettingsStore& settings = context_->settings();
  if (!settings.boolForKey("pass")) return false;
  const auto left = settings.dateForKey("deactive");
  if (!left) return true;
  const auto away = std::chrono::floor<std::chrono::seconds>(context_->clock().now() - *left);
  return away > kLockGrace;
}

MessageBox Application::openURL(const std::filesystem::path& file) {
  context_->values().pendingPdf = file.string();
  const bool doctor = context_->settings().contains("doctorAuthCode");
  const char* text =
      doctor ? "Вы можете прикрепить этот файл к сообщению для Вашего врача (открыть диалог с "
               "доктором, нажать на кнопку прикрепления вложений) или поместить этот файл в "
               "дневник в раздел анализов (перейти в режим редактирования анализов и вставить "
               "этот файл в выбрав пункт меню 'Файл PDF' или 'Заменить файлом PDF')."
             : "Теперь Вам следует перейти в режим редактирования анализов и вставить этот файл "
               "выбрав пункт меню 'Файл PDF' или 'Заменить файлом PDF'.";
  return MessageBox::make(*context_, text, "Файл PDF");
}

void Application::resignActive() {
  context_->settings().set("deactive", context_->clock().now());
  context_->settings().synchronize();
}

cloud::BulkCopy& Application::startCloudCopy() {
  cloudCopy_ = std::make_unique<cloud::BulkCopy>(*store_);
  return *cloudCopy_;
}

void Application::setImagesDir(std::filesystem::path dir) {
  reports_->setImagesDir(dir);
  imagesDir_ = std::move(dir);
}

}  // namespace lad::shell
