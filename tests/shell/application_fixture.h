// An installation launched as the program launches it, on a temporary folder with the real
// templates and a clock that the test moves.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "core/base64.h"
#include "platform/images.h"
#include "shell/application.h"
#include "shell/session.h"
#include "tests/support/test_files.h"

namespace lad::testing {

// The i-th element of a list in a view.
inline const Value& nth(const Value& list, std::size_t i) {
  return list.asList()->at(i);
}

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

  // A browser's session on the launched installation, past the greeting if the launch had one.
  std::unique_ptr<shell::Session> greetedSession() {
    auto s = std::make_unique<shell::Session>(*app);
    if (s->view()["kind"].text() == "welcome") {
      EXPECT_TRUE(tap(*s, "welcome:close").ok());
    }
    return s;
  }
  // Events as the browser sends them.
  static shell::EventResult send(shell::Session& s, const std::string& json) {
    return s.handle(*Value::fromJson(json));
  }
  static shell::EventResult tap(shell::Session& s, std::string_view target) {
    Map m;
    m.set("type", "tap");
    m.set("target", std::string(target));
    return s.handle(Value(std::move(m)));
  }
  static shell::EventResult change(shell::Session& s, std::string_view target, Value value) {
    Map m;
    m.set("type", "change");
    m.set("target", std::string(target));
    m.set("value", std::move(value));
    return s.handle(Value(std::move(m)));
  }
  // Today's day editor of the first profile, through the home screen's shortcut.
  std::unique_ptr<shell::Session> todayEditor() {
    auto s = greetedSession();
    EXPECT_TRUE(send(*s, R"({"type":"shortcut","name":"NEWNOTE"})").ok());
    EXPECT_TRUE(send(*s, R"({"type":"visible"})").ok());
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
    const Image image{width, height,
                      std::vector<std::uint8_t>(static_cast<std::size_t>(width * height * 3), 160)};
    const auto jpeg = encodeJpeg(image, 85);
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
