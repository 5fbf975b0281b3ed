// An installation launched as the program launches it, on a temporary folder with the real
// templates and a clock that the test moves.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "shell/application.h"
#include "shell/session.h"
#include "tests/support/test_files.h"

namespace lad::testing {

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
