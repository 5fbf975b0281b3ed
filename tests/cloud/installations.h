// Two installations of one edition, each on a temporary folder of its own with the program's
// real database templates, sharing one cloud folder.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

#include "core/context.h"
#include "core/launch.h"
#include "platform/images.h"
#include "store/first_launch.h"
#include "store/records.h"
#include "store/setup_data.h"
#include "store/store.h"
#include "tests/support/test_files.h"

namespace lad::testing {

struct Installation {
  Installation(int appid, const std::filesystem::path& cloud) {
    context = std::make_unique<Context>(
        ContextOptions{appid, 1, dir.path(), "1.0", clock, LADANEYA_RESOURCES_DIR});
    launch(*context);
    context->settings().set("cloudFolder", cloud.string());
    store = std::make_unique<Store>(*context);
    fromOldVersion(*store);
  }
  Date day(int d, int m, int y) const { return context->dates().encodeDate(d, m, y); }
  void put(const std::string& type, const std::string& value, Date on, const std::string& gid) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, type, value, on, gid, true, false);
  }
  // A pregnancy begun on 1 February 2026.
  void makePregnancy(const std::string& gid) {
    Map setup;
    setup.set("sdat1", "2026-02-01");
    setup.set("sbirthdate", "2026-11-08");
    setup.set("name", "Ева");
    setup.set("active", true);
    saveSetupData(*store, kSetupWhole, setup, gid);
  }
  std::string valueOn(const std::string& type, Date on, const std::string& gid) {
    StoreBracket bracket = store->connectToBase();
    return getDateValue(*store, bracket, on, type, gid);
  }

  TempDir dir;
  std::shared_ptr<ManualClock> clock =
      std::make_shared<ManualClock>(*dateFromIso("2026-03-30T08:00:00Z"), "Europe/Berlin");
  std::unique_ptr<Context> context;
  std::unique_ptr<Store> store;
};

class CloudTest : public ::testing::Test {
 protected:
  CloudTest() { std::filesystem::create_directories(cloud()); }
  std::filesystem::path cloud() const { return shared.path() / "cloud"; }

  // Waits until a file written now would change later than this one: file systems keep change
  // dates to a clock tick, and a pass tells two writes of a unit apart only by them.
  static void waitPastChangeOf(const std::filesystem::path& file) {
    const auto before = std::filesystem::last_write_time(file);
    const auto probe = file.parent_path() / ".probe";
    do {
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
      writeFile(probe, "x");
    } while (std::filesystem::last_write_time(probe) <= before);
    std::filesystem::remove(probe);
  }

  // A picture of w by h pixels as JPEG bytes.
  static Bytes picture(int w, int h) {
    platform::Image image{w, h, std::vector<std::uint8_t>(static_cast<std::size_t>(w * h * 3), 90)};
    return platform::encodeJpeg(image, 90);
  }

  TempDir shared;
  Installation first{1, cloud()};
  Installation second{1, cloud()};
};

}  // namespace lad::testing
