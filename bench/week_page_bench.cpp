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
  const auto folder = lad::shell::contentFolder(context);
  for (auto _ : state) {
    lad::content::TextData text(lad::content::contextTools(context));
    text.justGroup(20);
    text.prepareFromFile(folder, "woman-u");
    benchmark::DoNotOptimize(text.layout().rows.size());
  }
}
BENCHMARK(BM_WeekTextLaidOut)->Unit(benchmark::kMillisecond);

// The pages open nothing over themselves here.
struct NoHost : lad::shell::ScreenHost {
  void push(std::shared_ptr<lad::shell::Screen>) override {}
  void openPopup(std::unique_ptr<lad::shell::Popup>, PopupAction) override {}
  void showMessage(lad::shell::MessageBox) override {}
};

template <class Build>
void pageBuilt(benchmark::State& state, Build build) {
  Pregnancy& p = pregnancy();
  NoHost host;
  for (auto _ : state) benchmark::DoNotOptimize(build(*p.app, host)->view());
}

void BM_TodayPageBuilt(benchmark::State& state) {
  pageBuilt(state, [](lad::shell::Application& app, NoHost&) {
    return std::make_unique<lad::shell::TodayPage>(app, kGid, 1.2);
  });
}
BENCHMARK(BM_TodayPageBuilt)->Unit(benchmark::kMillisecond);

void BM_BabyPageBuilt(benchmark::State& state) {
  pageBuilt(state, [](lad::shell::Application& app, NoHost& host) {
    return std::make_unique<lad::shell::BabyPage>(app, host, kGid, 1.2);
  });
}
BENCHMARK(BM_BabyPageBuilt)->Unit(benchmark::kMillisecond);

void BM_WomanPageBuilt(benchmark::State& state) {
  pageBuilt(state, [](lad::shell::Application& app, NoHost& host) {
    return std::make_unique<lad::shell::WomanPage>(app, host, kGid, 1.2);
  });
}
BENCHMARK(BM_WomanPageBuilt)->Unit(benchmark::kMillisecond);

}  // namespace
