// The title page of a pregnancy with 60 weight and 10 ultrasound records: built with its three
// charts drawn (after a change of the diary), and shown again from what it drew.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "core/context.h"
#include "shell/application.h"
#include "shell/title_page.h"
#include "store/records.h"
#include "store/store.h"
#include "tests/fixtures/diary_generator.h"

namespace {

const std::string kGid = "BENCH-PROFILE";

struct Pregnancy {
  std::filesystem::path dir = std::filesystem::temp_directory_path() /
                              ("lad-bench-" + std::to_string(std::random_device{}()));
  std::unique_ptr<lad::shell::Application> app = std::make_unique<lad::shell::Application>(
      lad::ContextOptions{1, 1, dir, "1.0", nullptr, LADANEYA_RESOURCES_DIR});

  Pregnancy() {
    app->setImagesDir(LADANEYA_IMAGES_DIR);
    lad::Store& store = app->store();
    const lad::DateCodec& dates = app->context().dates();
    const lad::Date first = dates.addDays(app->context().clock().now(), -250);
    lad::testing::addPregnancy(store, kGid, first, "60");
    lad::StoreBracket bracket = store.connectToBase();
    for (int k = 0; k < 60; ++k)
      lad::insertValue(store, bracket, "ves", std::to_string(60 + k / 5) + ".500",
                       dates.addDays(first, 4 * k), kGid, true, false);
    for (int k = 1; k <= 10; ++k)
      lad::insertValue(store, bracket, "uzi",
                       "{\"rost\":\"" + std::to_string(3 * k) + "\",\"ves\":\"" +
                           std::to_string(k * 0.3) + "\"}",
                       dates.addDays(first, 24 * k + 1), kGid, true, false);
  }
  ~Pregnancy() {
    app.reset();
    std::filesystem::remove_all(dir);
  }
};

Pregnancy& pregnancy() {
  static Pregnancy p;
  return p;
}

void BM_TitlePageDrawn(benchmark::State& state) {
  Pregnancy& p = pregnancy();
  for (auto _ : state) {
    lad::shell::TitlePage page(*p.app, kGid, 1.2);
    benchmark::DoNotOptimize(page.view());
  }
}
BENCHMARK(BM_TitlePageDrawn)->Unit(benchmark::kMillisecond);

void BM_TitlePageShownAgain(benchmark::State& state) {
  Pregnancy& p = pregnancy();
  lad::shell::TitlePage page(*p.app, kGid, 1.2);
  for (auto _ : state) benchmark::DoNotOptimize(page.view());
}
BENCHMARK(BM_TitlePageShownAgain)->Unit(benchmark::kMillisecond);

}  // namespace
