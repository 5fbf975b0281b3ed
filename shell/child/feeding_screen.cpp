#include "shell/child/feeding_screen.h"

#include <charconv>

#include "core/json_text.h"
#include "health/child_feeding.h"
#include "health/child_intervals.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/editor_view.h"
#include "shell/question.h"
#include "store/dictionary.h"

namespace lad::shell {

namespace {

using namespace std::chrono_literals;
using health::BreastSide;
using health::BreastTimer;

constexpr std::string_view kAddPrefix = "add";
constexpr std::string_view kFeedPrefix = "feed";
constexpr std::string_view kLeftButton = "startleft";
constexpr std::string_view kRightButton = "startright";
constexpr int kConsent = 1;

std::optional<int> numberAfter(std::string_view text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return std::nullopt;
  text.remove_prefix(prefix.size());
  int n = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
  if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return n;
}

// The chain of one-second ticks of a running timer: it goes on while no page shows it, and
// each tick redraws every browser.
EventResult tick(Application& app, BreastTimer& timer) {
  EventResult result;
  result.timerDelay = 1s;
  result.timer = [&app, &timer] {
    return timer.onTimer(app.context().clock().now()) ? tick(app, timer) : EventResult{};
  };
  return result;
}

std::string clockOf(const Value& feeding) {
  const std::string when = feeding["kodates"].text();
  return when.size() >= 16 ? when.substr(11, 5) : "";
}

// The unit a food of the other kind keeps in its dictionary name: "Желток (шт.)" has "шт.".
std::string bracketUnit(const std::string& guid, const List& entries) {
  const Value* entry = listByIndex(guid, entries);
  const std::string name = entry ? (*entry)["cap"].text() : "";
  const auto open = name.find('('), close = name.find(')');
  return open != std::string::npos && close != std::string::npos && close > open
             ? name.substr(open + 1, close - open - 1)
             : "";
}

List foodEntries(Store& store, int kind) {
  List entries;
  for (const Value& entry : loadConstList(store, health::foodList(kind), std::nullopt)) {
    Map e;
    e.set("id", entry["index"].text());
    const std::string cap = entry["cap"].text();
    e.set("caption", cap.substr(0, cap.find("<tr>")));
    e.set("checked", false);
    entries.push_back(Value(std::move(e)));
  }
  return entries;
}

Value button(const Context& c, std::string_view caption, std::string_view field) {
  return detailRow(c, kButton, caption, field);
}

}  // namespace

FeedingScreen::FeedingScreen(Application& app, ScreenHost& host, std::string gid, Date day)
    : app_(app),
      host_(host),
      gid_(std::move(gid)),
      day_(day),
      feedings_(health::loadKormForDate(app.store(), day, gid_)) {
  if (app_.breastTimer(gid_).running()) openForm(health::kFeedBreast);
}

FieldEditor FeedingScreen::listForm() const {
  const Context& c = app_.context();
  const List entries = loadConstList(app_.store(), 0, std::nullopt);
  List rows;
  for (std::size_t i = 0; i < feedings_.size(); ++i) {
    const Value& f = feedings_[i];
    rows.push_back(button(c, clockOf(f) + "  " + health::kormLine(c, f["kovalue"].text(), entries),
                          std::string(kFeedPrefix) + std::to_string(i)));
  }
  const auto totals =
      health::kormTotals(c, feedings_, health::loadLastKormBefore(app_.store(), day_, gid_));
  if (!totals.empty()) rows.push_back(detailRow(c, kText, "итого", ""));
  for (const std::string& line : totals) rows.push_back(detailRow(c, kText, line, ""));
  rows.push_back(detailRow(c, kLine, "", ""));
  rows.push_back(detailRow(c, kText, "Добавить кормление", ""));
  for (int kind = health::kFeedBreast; kind <= health::kFeedOther; ++kind)
    rows.push_back(
        button(c, health::feedingCaption(c, kind), std::string(kAddPrefix) + std::to_string(kind)));
  return FieldEditor(c, "Кормление", std::move(rows), Map());
}

Value FeedingScreen::view() {
  if (form_) {
    showTimer();
    return form_->view();
  }
  return listForm().view();
}

void FeedingScreen::openForm(int kind) {
  const Context& c = app_.context();
  formKind_ = kind;
  List rows;
  Map values;
  if (kind == health::kFeedBreast) {
    rows = {detailRow(c, kText, "Продолжительность (часы и минуты)", ""),
            detailRow(c, kTime, "Левая грудь", "left", false, "Левая грудь"),
            button(c, "Старт", kLeftButton),
            detailRow(c, kTime, "Правая грудь", "right", false, "Правая грудь"),
            button(c, "Старт", kRightButton),
            detailRow(c, kText, "", "progress")};
    values.set("left", health::mtt(""));
    values.set("right", health::mtt(""));
  } else {
    rows.push_back(detailRow(c, kNumber, "Объем", "volume", true, "Объем"));
    if (health::foodList(kind) > 0) {
      Value tip = listRow(c, "tip", "Продукт", 1, 0, true);
      tip.asMap()->set("listdata", foodEntries(app_.store(), kind));
      rows.push_back(std::move(tip));
    }
  }
  form_.emplace(c, health::feedingCaption(c, kind), std::move(rows), values);
}

// The running side's button says "Стоп", and the progress line shows the time fed so far.
void FeedingScreen::showTimer() {
  if (formKind_ != health::kFeedBreast) return;
  const Context& c = app_.context();
  const BreastTimer& timer = app_.breastTimer(gid_);
  const bool left = timer.running() && timer.side() == BreastSide::Left;
  const bool right = timer.running() && timer.side() == BreastSide::Right;
  form_->setRowKey(kLeftButton, "caption", c.translate(left ? "Стоп" : "Старт"));
  form_->setRowKey(kRightButton, "caption", c.translate(right ? "Стоп" : "Старт"));
  std::string progress;
  if (timer.running())
    progress =
        c.translate(left ? "Идет кормление левой грудью ..." : "Идет кормление правой грудью ...") +
        "\n" + timer.clockText(c.clock().now());
  form_->setRowKey("progress", "caption", progress);
}

EventResult FeedingScreen::tap(std::string_view target) {
  if (form_) return tapForm(target);
  if (target == kEditorCancel) {
    closed_ = true;
    return {};
  }
  if (target == kEditorOk) {
    if (changed_) health::saveKormForDate(app_.store(), feedings_, day_, gid_);
    closed_ = true;
    EventResult result;
    result.installationChanged = changed_;
    return result;
  }
  const std::string_view field = targetField(target);
  if (auto kind = numberAfter(field, kAddPrefix);
      kind && *kind >= health::kFeedBreast && *kind <= health::kFeedOther) {
    openForm(*kind);
    return {};
  }
  if (auto index = numberAfter(field, kFeedPrefix);
      index && *index >= 0 && static_cast<std::size_t>(*index) < feedings_.size()) {
    askRemoval(static_cast<std::size_t>(*index));
    return {};
  }
  return EventResult::refused("the feedings have no button " + std::string(target));
}

void FeedingScreen::askRemoval(std::size_t index) {
  host_.openPopup(std::make_unique<Question>(
                      Question::ask(app_.context(), "Удалить это кормление?", "Кормление")),
                  [this, index](const PopupAnswer& answer) {
                    if (answer.button == kConsent && index < feedings_.size()) {
                      feedings_.erase(feedings_.begin() + static_cast<std::ptrdiff_t>(index));
                      changed_ = true;
                    }
                    return EventResult();
                  });
}

EventResult FeedingScreen::tapForm(std::string_view target) {
  if (target == kEditorCancel) {
    form_.reset();
    return {};
  }
  if (target == kEditorOk) {
    if (auto missing = form_->close()) {
      host_.showMessage(std::move(*missing));
      return {};
    }
    commitForm();
    return {};
  }
  const std::string_view field = targetField(target);
  if (formKind_ == health::kFeedBreast && (field == kLeftButton || field == kRightButton))
    return toggleTimer(field);
  return EventResult::refused("the feeding has no button " + std::string(target));
}

// A start goes on from the side's present minutes; a stop writes the minutes fed into the side.
// Starting one side stops the other first.
EventResult FeedingScreen::toggleTimer(std::string_view button) {
  const Context& c = app_.context();
  BreastTimer& timer = app_.breastTimer(gid_);
  const BreastSide side = button == kLeftButton ? BreastSide::Left : BreastSide::Right;
  const Date now = c.clock().now();
  const bool wasThisSide = timer.running() && timer.side() == side;
  if (timer.running()) {
    const auto minutes = timer.stop(now);
    form_->change(timer.side() == BreastSide::Left ? "left" : "right",
                  Value(health::mtt(std::to_string(minutes.value_or(0)))));
  }
  if (wasThisSide) return {};
  const std::string field = side == BreastSide::Left ? "left" : "right";
  timer.start(side, health::ttm(form_->text(field)), now,
              c.dates().addDays(c.dates().noTime(now), 1));
  return tick(app_, timer);
}

void FeedingScreen::commitForm() {
  const Context& c = app_.context();
  BreastTimer& timer = app_.breastTimer(gid_);
  Map value;
  value.set("tp", std::to_string(formKind_));
  std::int64_t amount = 0;
  if (formKind_ == health::kFeedBreast) {
    if (timer.running()) toggleTimer(timer.side() == BreastSide::Left ? kLeftButton : kRightButton);
    const std::int64_t left = health::ttm(form_->text("left")),
                       right = health::ttm(form_->text("right"));
    value.set("tip", "Грудное молоко");
    value.set("left", std::to_string(left));
    value.set("right", std::to_string(right));
    amount = left + right;
  } else {
    const std::string volume = form_->text("volume");
    const std::string tip = form_->text("tip");
    amount = leadingInteger(volume);
    value.set("tip", formKind_ == health::kFeedKefir           ? "Кефир"
                     : formKind_ == health::kFeedCottageCheese ? "Творог"
                                                               : tip);
    value.set("volume", volume);
    value.set("measure",
              formKind_ == health::kFeedCottageCheese ? "г."
              : formKind_ == health::kFeedOther
                  ? bracketUnit(tip, loadConstList(app_.store(), health::foodList(formKind_), {}))
                  : "мл.");
  }
  Map feeding;
  feeding.set("kodates", c.dates().dateToString(day_, "yyyy-MM-dd") + " " +
                             c.dates().dateToString(c.clock().now(), "HH:mm:ss"));
  feeding.set("kotype", formKind_);
  feeding.set("kovalue", jsonFromObject(Value(std::move(value))));
  feeding.set("kosum", amount);
  feedings_.push_back(Value(std::move(feeding)));
  changed_ = true;
  form_.reset();
}

EventResult FeedingScreen::change(std::string_view target, const Value& value) {
  if (!form_ || !form_->change(targetField(target), value))
    return EventResult::refused("the feedings have no input " + std::string(target));
  return {};
}

DayRowView feedingDayRow(Application& app, const std::string& gid, Date day, std::string id) {
  const Context& c = app.context();
  DayRowView row;
  row.id = std::move(id);
  row.icon = "ne-korm.png";
  row.caption = c.translate("Кормление");
  const List entries = loadConstList(app.store(), 0, {});
  for (const Value& f : health::loadKormForDate(app.store(), day, gid))
    row.lines.push_back({clockOf(f), health::kormLine(c, f["kovalue"].text(), entries), ""});
  if (row.lines.empty()) row.text = c.translate("пусто");
  return row;
}

}  // namespace lad::shell
