// Fuzz target of what browsers send to a running installation: a real Application on a new
// temporary folder, and the events of up to three browser sessions in any order. The input is
// a script of lines:
//   {...}              one event as the browser sends it (JSON text, read as the server reads it)
//   tap N              a tap on the N-th control of the session's current view
//   change N VALUE     a new value (JSON, or else text) for the N-th control
//   wait N             N seconds pass; timers that fall due run as the host runs them
//   session N          the following lines come from browser N (0 to 2)
//   relaunch           the program starts again on the same folder, with new sessions
// The first byte chooses the edition. Every view is a JSON object with a kind, and an event that
// is refused says why and leaves the view as it was.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/clock.h"
#include "core/text_parts.h"
#include "fuzz/fuzz_input.h"
#include "shell/application.h"
#include "shell/session.h"
#include "tests/support/test_files.h"

namespace {

using lad::fuzz::check;
using lad::shell::EventResult;

constexpr int kEditions[] = {1, 2, 3, 14};
constexpr std::size_t kSessions = 3;
constexpr int kMostLines = 64;
// A script runs in a few minutes of the installation's time at most, so timers stay few.
constexpr std::int64_t kLongestWait = 3600;

// The controls of a view: every "id" and "deleteId" in it, in order.
void controlsOf(const lad::Value& node, std::vector<std::string>& ids) {
  if (const lad::Map* map = node.asMap()) {
    for (const auto& [key, value] : *map) {
      if ((key == "id" || key == "deleteId") && value.asText() && !value.asText()->empty())
        ids.push_back(*value.asText());
      controlsOf(value, ids);
    }
  } else if (const lad::List* list = node.asList()) {
    for (const lad::Value& item : *list) controlsOf(item, ids);
  }
}

std::size_t numberAfter(std::string_view line, std::string_view word) {
  std::size_t n = 0;
  for (char c : line.substr(word.size())) {
    if (c < '0' || c > '9') break;
    n = n * 10 + static_cast<std::size_t>(c - '0');
    if (n > 1'000'000) break;
  }
  return n;
}

class Run {
 public:
  explicit Run(int appid) : appid_(appid) { launch(); }

  void line(std::string_view line) {
    if (line == "relaunch") return launch();
    if (line.starts_with("session ")) {
      current_ = numberAfter(line, "session ") % kSessions;
      return;
    }
    if (line.starts_with("wait "))
      return wait(static_cast<std::int64_t>(numberAfter(line, "wait ")));
    const lad::Value before = shown();
    std::optional<lad::Value> event;
    if (line.starts_with("tap ") || line.starts_with("change ")) {
      event = controlEvent(line, before);
      if (!event) return;
    } else {
      event = lad::Value::fromJson(line);
      if (!event) return;  // the server refuses it before any session sees it
    }
    forget();
    const EventResult result = session().handle(*event);
    after(result, before);
  }

 private:
  lad::shell::Session& session() {
    auto& s = sessions_[current_];
    if (!s) {
      forget();
      s = std::make_unique<lad::shell::Session>(*app_);
    }
    return *s;
  }

  void launch() {
    forget();
    timers_.clear();
    for (auto& s : sessions_) s.reset();
    app_.reset();
    app_ = std::make_unique<lad::shell::Application>(
        lad::ContextOptions{appid_, 1, dir_.path(), "1.0", clock_, LADANEYA_RESOURCES_DIR});
  }

  // The session's view, checked: a JSON object with a kind. Writing it out cannot fail (texts
  // that are not UTF-8 and numbers that are not finite are replaced on the way), so it is not
  // written out here: that costs more than the event.
  lad::Value view() {
    lad::Value v = session().view();
    check(v.asMap() && v["kind"].asText() && !v["kind"].asText()->empty());
    shown_[current_] = v;
    return v;
  }

  // The session's view as it was last shown, while nothing has happened since: an event, a
  // timer, time passing, a new session or a relaunch forgets every session's view.
  lad::Value shown() {
    const auto& last = shown_[current_];
    return last ? *last : view();
  }

  void forget() {
    for (auto& view : shown_) view.reset();
  }

  std::optional<lad::Value> controlEvent(std::string_view line, const lad::Value& before) {
    std::vector<std::string> ids;
    controlsOf(before, ids);
    if (ids.empty()) return std::nullopt;
    const bool tap = line.starts_with("tap ");
    const std::string_view word = tap ? "tap " : "change ";
    lad::Map event;
    event.set("type", tap ? "tap" : "change");
    event.set("target", ids[numberAfter(line, word) % ids.size()]);
    if (!tap) {
      const std::size_t space = line.find(' ', word.size());
      const std::string_view text =
          space == std::string_view::npos ? std::string_view() : line.substr(space + 1);
      const auto json = lad::Value::fromJson(text);
      event.set("value", json ? *json : lad::Value(text));
    }
    return lad::Value(std::move(event));
  }

  // A refusal has a reason and changes nothing the browser sees; a timer is kept for later.
  void after(const EventResult& result, const lad::Value& before) {
    if (!result.ok()) {
      check(view() == before);
      return;
    }
    if (result.timer) timers_.emplace(clock_->now() + result.timerDelay, result.timer);
    view();
  }

  void wait(std::int64_t seconds) {
    const lad::Date until = clock_->now() + std::chrono::seconds(std::min(seconds, kLongestWait));
    while (!timers_.empty() && timers_.begin()->first <= until) {
      auto due = timers_.begin();
      forget();
      clock_->set(due->first);
      const auto timer = std::move(due->second);
      timers_.erase(due);
      const lad::Value before = view();
      forget();
      after(timer(), before);
    }
    forget();
    clock_->set(until);
  }

  int appid_;
  lad::testing::TempDir dir_;
  std::shared_ptr<lad::ManualClock> clock_ = std::make_shared<lad::ManualClock>(
      *lad::dateFromIso("2026-11-23T09:00:00Z"), "Europe/Berlin");
  std::unique_ptr<lad::shell::Application> app_;
  std::unique_ptr<lad::shell::Session> sessions_[kSessions];
  std::optional<lad::Value> shown_[kSessions];
  std::size_t current_ = 0;
  std::multimap<lad::Date, std::function<EventResult()>> timers_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  Run run(kEditions[data[0] % 4]);
  const std::string_view script(reinterpret_cast<const char*>(data + 1), size - 1);
  int lines = 0;
  for (std::string_view line : lad::splitOn(script, "\n")) {
    if (++lines > kMostLines) break;
    run.line(line);
  }
  return 0;
}
