// An installation launched as the program launches it, on a temporary folder with the real
// templates and a clock that the test moves.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <thread>

#include "core/base64.h"
#include "platform/images.h"
#include "shell/application.h"
#include "shell/screen_host.h"
#include "shell/session.h"
#include "store/records.h"
#include "store/store.h"
#include "tests/support/test_files.h"

namespace lad::testing {

// The i-th element of a list in a view.
inline const Value& nth(const Value& list, std::size_t i) {
  return list.asList()->at(i);
}
// The positions a picker's wheels were opened at.
inline List openedPositions(const Value& picker) {
  List positions;
  for (const Value& wheel : *picker["wheels"].asList()) positions.push_back(wheel["selected"]);
  return positions;
}

// Keeps what a screen opens over itself: the screen pushed, the popup with its action (which the
// test answers) and the texts of the messages shown.
struct RecordingHost : shell::ScreenHost {
  void push(std::shared_ptr<shell::Screen> s) override { pushed = std::move(s); }
  void openPopup(std::unique_ptr<shell::Popup> p, PopupAction a) override {
    popup = std::move(p);
    action = std::move(a);
  }
  void showMessage(shell::MessageBox m) override { messages.push_back(m.text); }
  shell::EventResult answer(int button, const std::string& choice, Value value = {}) {
    popup.reset();
    return action(shell::PopupAnswer{button, choice, std::move(value)});
  }
  std::shared_ptr<shell::Screen> pushed;
  std::unique_ptr<shell::Popup> popup;
  PopupAction action;
  std::vector<std::string> messages;
};

class ApplicationTest : public ::testing::Test {
 protected:
  // Each call is one more launch of the same installation, possibly of another version.
  shell::Application& launchApp(int appid = 1, const std::string& version = "1.0", int langid = 1) {
    app.reset();
    app = std::make_unique<shell::Application>(
        ContextOptions{appid, langid, dir.path(), version, clock, LADANEYA_RESOURCES_DIR});
    return *app;
  }
  SettingsStore& settings() { return app->context().settings(); }
  // The value of `type` stored for the profile on the day, today by default.
  std::string dayValue(const std::string& type, const std::string& gid,
                       std::optional<Date> day = std::nullopt) {
    StoreBracket bracket = app->store().connectToBase();
    return getDateValue(app->store(), bracket, day.value_or(clock->now()), type, gid);
  }

  // A browser's session on the launched installation, past the greeting if the launch had one.
  std::unique_ptr<shell::Session> greetedSession() {
    auto s = std::make_unique<shell::Session>(*app);
    if (s->view()["kind"].text() == "welcome") {
      EXPECT_TRUE(tap(*s, "welcome:close").ok());
    }
    return s;
  }
  // Runs the redraws a result asks for until the work it follows is done.
  static void follow(shell::EventResult result) {
    while (result.timer) {
      std::this_thread::sleep_for(result.timerDelay);
      result = result.timer();
    }
  }
  // Events as the browser sends them.
  static shell::EventResult send(shell::Session& s, const std::string& json) {
    return s.handle(*Value::fromJson(json));
  }
  static shell::EventResult event(shell::Session& s, const char* type, std::string_view target,
                                  std::optional<Value> value = std::nullopt) {
    Map m;
    m.set("type", type);
    m.set("target", std::string(target));
    if (value) m.set("value", std::move(*value));
    return s.handle(Value(std::move(m)));
  }
  static shell::EventResult tap(shell::Session& s, std::string_view target) {
    return event(s, "tap", target);
  }
  static shell::EventResult change(shell::Session& s, std::string_view target, Value value) {
    return event(s, "change", target, std::move(value));
  }
  // Taps in turn, and changes written "target=text"; fails at the first one refused.
  static ::testing::AssertionResult act(shell::Session& s,
                                        std::initializer_list<std::string> steps) {
    for (const std::string& step : steps) {
      const auto eq = step.find('=');
      const shell::EventResult r = eq == std::string::npos
                                       ? tap(s, step)
                                       : change(s, step.substr(0, eq), Value(step.substr(eq + 1)));
      if (!r.ok()) return ::testing::AssertionFailure() << step << ": " << r.error;
    }
    return ::testing::AssertionSuccess();
  }
  // The wheels on screen confirmed at these positions.
  static shell::EventResult pick(shell::Session& s, List positions) {
    return event(s, "tap", "popup:1", Value(std::move(positions)));
  }
  // A home screen shortcut, which runs at the session's next activation.
  static void shortcut(shell::Session& s, const std::string& name) {
    EXPECT_TRUE(send(s, R"({"type":"shortcut","name":")" + name + R"("})").ok());
    EXPECT_TRUE(send(s, R"({"type":"visible"})").ok());
  }
  // Today's day editor of the first profile, through the home screen's shortcut.
  std::unique_ptr<shell::Session> todayEditor() {
    auto s = greetedSession();
    shortcut(*s, "NEWNOTE");
    EXPECT_EQ(s->view()["kind"].text(), "dayEditor");
    return s;
  }
  // The row of the view on screen whose `key` is `value` (a field's, an icon's), or null.
  static Value rowWith(shell::Session& s, const std::string& key, const std::string& value) {
    const Value view = s.view();
    for (const Value& row : *view["rows"].asList())
      if (row[key].text() == value) return row;
    return Value();
  }
  static std::string source(shell::Session& s, const std::string& field) {
    return rowWith(s, "field", field)["source"].text();
  }
  // A grey photo of that size, as the browser sends a chosen picture.
  static std::string jpegDataUrl(int width, int height) {
    const platform::Image image{
        width, height,
        std::vector<std::uint8_t>(static_cast<std::size_t>(width * height * 3), 160)};
    const auto jpeg = platform::encodeJpeg(image, 85);
    return "data:image/jpeg;base64," + base64Encode(Bytes(jpeg.begin(), jpeg.end()));
  }
  // Digits typed on the lock's pad.
  static void type(shell::Session& s, std::string_view digits) {
    for (char d : digits) tap(s, "lock:" + std::string(1, d));
  }

  TempDir dir;
  std::shared_ptr<ManualClock> clock =
      std::make_shared<ManualClock>(*dateFromIso("2026-11-23T09:00:00Z"), "Europe/Berlin");
  std::unique_ptr<shell::Application> app;
};

}  // namespace lad::testing
