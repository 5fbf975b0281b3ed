// The reading matter and the pages of a pregnancy's week: one week's text laid out with the
// browser's font, and the today, baby and woman pages built for a pregnancy in week 20.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "content/resource.h"
#include "content/text_data.h"
#include "shell/application.h"
#include "shell/week/baby_page.h"
#include "shell/week/reading.h"
#include "shell/week/today_page.h"
#include "shell/week/woman_page.h"
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
    const lad::Date first = app->context().dates().addDays(app->context().clock().now(), -140);
    lad::testing::addPregnancy(app->store(), kGid, first, "60");
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

// Week 20 of the mother's text, from its file, as the today page lays it out.
void BM_WeekTextLaidOut(benchmark::State& state) {
  const lad::Context& context = pregnancy().app->context();
  const auto folder = lad::shell::week::contentFolder(context);
  for (auto _ : state) {
    lad::content::TextData text(lad::content::contextTools(context));
    text.justGroup(20);
    text.prepareFromFile(folder, "woman-u");
    benchmark::DoNotOptimize(text.layout().rows.size());
  }
}
BENCHMARK(BM_WeekTextLaidOut)->Unit(benchmark::kMillisecond);

template <class Page>
void BM_PageBuilt(benchmark::State& state) {
  Pregnancy& p = pregnancy();
  for (auto _ : state) {
    Page page(*p.app, kGid, 1.2);
    benchmark::DoNotOptimize(page.view());
  }
}
BENCHMARK(BM_PageBuilt<lad::shell::TodayPage>)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PageBuilt<lad::shell::BabyPage>)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PageBuilt<lad::shell::WomanPage>)->Unit(benchmark::kMillisecond);

}  // namespace
