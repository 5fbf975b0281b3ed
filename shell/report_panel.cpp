#include "shell/report_panel.h"

#include "core/text_fill.h"
#include "shell/popup_menu.h"
#include "shell/views/node.h"
#include "shell/wheel_picker.h"

namespace lad::shell {

using namespace std::chrono_literals;
using reports::ReportKind;

namespace {

constexpr std::string_view kReportMenu =
    "Вся беременность<td>pm-preg.png<tr>Отчет по давлению<td>pm-pressure.png<tr>Отчет по "
    "жидкости<td>pm-zhid.png";
constexpr int kPickerConsent = 1;
// How often the browsers hear of a report being made.
constexpr auto kFollowEvery = 400ms;

const char* stateName(ReportJob::State state) {
  switch (state) {
    case ReportJob::State::Done:
      return "done";
    case ReportJob::State::Failed:
      return "failed";
    case ReportJob::State::Waiting:
    case ReportJob::State::Running:
      break;
  }
  return "running";
}

// The panel's texts of a document being made, made, or failed.
struct PanelTexts {
  const char* caption;
  const char* running;
  const char* done;
  const char* failed;
};

constexpr PanelTexts kReportTexts{"Сформировать PDF отчет", "Отчет формируется, подождите немного.",
                                  "Отчет готов. Его можно открыть, сохранить или отправить врачу.",
                                  "Отчет не удалось сохранить. Попробуйте еще раз немного позже."};

PanelTexts bookTexts(int appid) {
  return {"Фотокнига", "Фотокнига сохраняется, подождите немного.",
          isChildEdition(appid) ? "Ваша фотокнига сформирована. Вы можете забрать файл book.pdf "
                                  "через ITunes в папке документов программы 'Крохомир'."
                                : "Ваша фотокнига сформирована. Вы можете забрать файл book.pdf "
                                  "через ITunes в папке документов программы 'Ладанея'.",
          "Фотокнигу не удалось сохранить. Попробуйте еще раз немного позже."};
}

}  // namespace

Value ReportPanelView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  m.set("text", text);
  m.set("state", state);
  m.set("done", static_cast<std::int64_t>(done));
  m.set("total", static_cast<std::int64_t>(total));
  if (!file.empty()) m.set("file", file);
  m.set("fileName", fileName);
  m.set("open", open);
  m.set("download", download);
  m.set("share", share);
  m.set("close", close);
  return m;
}

EventResult ReportPanel::ask(const std::string& gid) {
  const Context& context = app_.context();
  if (!isPregnancyEdition(context.values().appid))
    return start(ReportKind::Diary, gid, context.clock().now());
  host_.openPopup(std::make_unique<PopupMenu>(context, kReportMenu),
                  [this, gid](const PopupAnswer& answer) { return choose(answer, gid); });
  return {};
}

// actionPdf: the diary report at once, the pressure and fluid reports after their day.
EventResult ReportPanel::choose(const PopupAnswer& answer, const std::string& gid) {
  const Context& context = app_.context();
  if (answer.choice == context.translate("Отменить")) return {};
  if (answer.choice == context.translate("Вся беременность"))
    return start(ReportKind::Diary, gid, context.clock().now());
  const ReportKind kind = answer.choice == context.translate("Отчет по давлению")
                              ? ReportKind::Pressure
                              : ReportKind::Fluid;
  host_.openPopup(std::make_unique<WheelPicker>(context, kDatePicker, "Укажите дату отчета", ""),
                  [this, kind, gid](const PopupAnswer& picked) {
                    if (picked.button != kPickerConsent) return EventResult();
                    const auto day = app_.context().dates().dateFromStringFormat(
                        picked.value.text(), "dd.MM.yyyy");
                    if (!day) return EventResult::refused("the date picker gave no date");
                    return start(kind, gid, *day);
                  });
  return {};
}

EventResult ReportPanel::start(ReportKind kind, const std::string& gid, Date day) {
  reports::ReportRequest request;
  request.kind = kind;
  request.gid = gid;
  request.date = day;
  request.year = reports::defaultReportYear(app_.store(), gid);
  request.target = reports::defaultReportFile(app_.context(), kind);
  return follow(app_.reports().start(request));
}

// Every browser redraws while the document is made, and once more when it is ready. The timer
// holds the job, not the panel, which may go with its session meanwhile.
EventResult ReportPanel::follow(std::shared_ptr<const ReportJob> job) {
  job_ = std::move(job);
  return redrawUntil([job = job_] { return job->finished(); }, kFollowEvery);
}

EventResult ReportPanel::close() {
  job_.reset();
  return {};
}

Value ReportPanel::view() const {
  if (!job_) return Value();
  const Context& context = app_.context();
  ReportPanelView v;
  v.state = stateName(job_->state);
  v.done = job_->done;
  v.total = job_->total;
  v.fileName = job_->request.target.filename().string();
  v.open = context.translate("Открыть");
  v.download = context.translate("Скачать");
  v.share = context.translate("Отправить");
  v.close = context.translate("Закрыть");
  const bool book = job_->document == ReportJob::Document::Book;
  const PanelTexts texts = book ? bookTexts(context.values().appid) : kReportTexts;
  v.caption = context.translate(texts.caption);
  if (job_->state == ReportJob::State::Done) {
    if (!book) v.caption = context.translate("Просмотр");
    v.text = context.translate(texts.done);
    v.file = std::string(kReportAddress) + v.fileName;
  } else if (job_->state == ReportJob::State::Failed) {
    v.text = context.translate(texts.failed);
  } else {
    v.text = v.total > 0 && !book ? fillIn(context.translate("Готово дней: %@ из %@"),
                                           {std::to_string(v.done), std::to_string(v.total)})
                                  : context.translate(texts.running);
  }
  return v.toValue();
}

std::optional<std::filesystem::path> ReportPanel::finishedFile(std::string_view name) const {
  if (!job_ || job_->state != ReportJob::State::Done) return std::nullopt;
  if (job_->request.target.filename() != name) return std::nullopt;
  return job_->request.target;
}

}  // namespace lad::shell
