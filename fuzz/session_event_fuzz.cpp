// Fuzz target of what browsers send to a running installation: a real Application on a
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
//
// Each edition is installed once per process: every input starts from its folder as the first
// launch left it, put back file by file, and launches the program on it. A view is built when a
// line needs it (the controls of a tap, the view that a refusal must leave as it was) and at the
// end of the input. Only the first 24 lines count: the seeds and the inputs that the campaigns
// kept have at most 24 but one, and longer scripts cost more without reaching further.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "core/clock.h"
#include "core/text_parts.h"
#include "fuzz/folder_snapshot.h"
#include "fuzz/fuzz_input.h"
#include "shell/application.h"
#include "shell/session.h"
#include "tests/support/test_files.h"

namespace {

using lad::fuzz::check;
using lad::shell::EventResult;

constexpr int kEditions[] = {1, 2, 3, 14};
constexpr std::size_t kSessions = 3;
constexpr int kMostLines = 24;
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

// The start time of every input.
std::shared_ptr<lad::ManualClock> startClock() {
  return std::make_shared<lad::ManualClock>(*lad::dateFromIso("2026-11-23T09:00:00Z"),
                                            "Europe/Berlin");
}

lad::ContextOptions optionsOf(int appid, const std::filesystem::path& dir,
                              std::shared_ptr<lad::Clock> clock) {
  return {appid, 1, dir, "1.0", std::move(clock), LADANEYA_RESOURCES_DIR};
}

// An edition's folder as its first launch left it, which every input starts from.
class Installation {
 public:
  explicit Installation(int appid) : appid_(appid) {
    { const lad::shell::Application first(optionsOf(appid, dir_.path(), startClock())); }
    launched_.emplace(dir_.path());
  }

  // The folder put back as launched.
  const std::filesystem::path& fresh() {
    launched_->restore(launched_->changes());
    return dir_.path();
  }

  int appid() const { return appid_; }

 private:
  int appid_;
  lad::testing::TempDir dir_;
  std::optional<lad::fuzz::FolderSnapshot> launched_;
};

Installation& installation(std::uint8_t choice) {
  static std::optional<Installation> editions[std::size(kEditions)];
  auto& edition = editions[choice % std::size(kEditions)];
  if (!edition) edition.emplace(kEditions[choice % std::size(kEditions)]);
  return *edition;
}

class Run {
 public:
  explicit Run(Installation& at) : appid_(at.appid()), dir_(at.fresh()) { launch(); }

  // The view of the session that spoke last, as the browser gets it at the end.
  void finish() {
    if (sessions_[current_]) shown();
  }

  void line(std::string_view line) {
    if (line == "relaunch") return launch();
    if (line.starts_with("session ")) {
      current_ = numberAfter(line, "session ") % kSessions;
      return;
    }
    if (line.starts_with("wait "))
      return wait(static_cast<std::int64_t>(numberAfter(line, "wait ")));
    const bool control = line.starts_with("tap ") || line.starts_with("change ");
    const std::optional<lad::Value> event =
        control ? controlEvent(line, shown()) : lad::Value::fromJson(line);
    // No control to aim at; or text that the server refuses before any session sees it.
    if (!event) return;
    const lad::Value before = beforeEvent();
    after(session().handle(*event), before);
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
    app_ = std::make_unique<lad::shell::Application>(optionsOf(appid_, dir_, clock_));
    documentsMade_ = 0;
  }

  // The session's view, checked: a JSON object with a kind. Writing it out cannot fail (texts
  // that are not UTF-8 and numbers that are not finite are replaced on the way), so it is not
  // written out here: that costs more than the event.
  const lad::Value& view() {
    lad::Value v = session().view();
    check(v.asMap() && v["kind"].asText() && !v["kind"].asText()->empty());
    return shown_[current_].emplace(std::move(v));
  }

  // The session's view as it was last shown, while nothing has happened since: an event, a
  // timer, time passing, a new session or a relaunch forgets every session's view.
  const lad::Value& shown() {
    const auto& last = shown_[current_];
    return last ? *last : view();
  }

  // The view before an event, taken from the views shown: the event makes them all stale.
  lad::Value beforeEvent() {
    settle();
    shown();
    lad::Value before = std::move(*shown_[current_]);
    forget();
    return before;
  }

  // Reports and book pages on their way are made first: their progress shows in the views
  // without any event, and would pass for a change made by a refused one.
  void settle() {
    const std::size_t made = app_->waitForDocuments();
    if (made != documentsMade_) forget();
    documentsMade_ = made;
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
  }

  void wait(std::int64_t seconds) {
    const lad::Date until = clock_->now() + std::chrono::seconds(std::min(seconds, kLongestWait));
    while (!timers_.empty() && timers_.begin()->first <= until) {
      auto due = timers_.begin();
      forget();
      clock_->set(due->first);
      const auto timer = std::move(due->second);
      timers_.erase(due);
      const lad::Value before = beforeEvent();
      after(timer(), before);
    }
    forget();
    clock_->set(until);
  }

  int appid_;
  std::filesystem::path dir_;
  std::shared_ptr<lad::ManualClock> clock_ = startClock();
  std::unique_ptr<lad::shell::Application> app_;
  std::unique_ptr<lad::shell::Session> sessions_[kSessions];
  std::optional<lad::Value> shown_[kSessions];
  std::size_t current_ = 0;
  std::size_t documentsMade_ = 0;  // jobs of the installation's worker run when last settled
  std::multimap<lad::Date, std::function<EventResult()>> timers_;
};

void runScript(std::uint8_t edition, std::string_view script) {
  Run run(installation(edition));
  int lines = 0;
  for (std::string_view line : lad::splitOn(script, "\n")) {
    if (++lines > kMostLines) break;
    run.line(line);
  }
  run.finish();
}

std::size_t threadCount() {
  std::size_t n = 0;
  for ([[maybe_unused]] const auto& task : std::filesystem::directory_iterator("/proc/self/task"))
    ++n;
  return n;
}

// pango matches fonts on short threads of its own, which can outlive the input whose drawing
// started them. libFuzzer looks for leaks between inputs, and a thread caught ending holds
// blocks that nothing else points to; so an input ends when the threads it started have ended,
// or after a while if one stays.
void awaitThreads(std::size_t most) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
  while (threadCount() > most && std::chrono::steady_clock::now() < deadline)
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::size_t threads = threadCount();
  runScript(data[0], {reinterpret_cast<const char*>(data + 1), size - 1});
  awaitThreads(threads);
  return 0;
}
