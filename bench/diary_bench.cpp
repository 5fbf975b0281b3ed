// The diary's screens on generated diaries (a pregnancy of 294 days, a child's first year, a
// dozen records a day): the list's first screen from the store, a search over every day, and
// opening a day's editor.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "core/context.h"
#include "shell/application.h"
#include "shell/diary/day_editor.h"
#include "shell/diary/diary_list.h"
#include "store/day_periods.h"
#include "store/store.h"
#include "tests/fixtures/diary_generator.h"

namespace {

const std::string kGid = "BENCH-PROFILE";

// The screens open nothing over themselves here.
class QuietHost : public lad::shell::ScreenHost {
 public:
  void push(std::shared_ptr<lad::shell::Screen>) override {}
  void openPopup(std::unique_ptr<lad::shell::Popup>, PopupAction) override {}
  void showMessage(lad::shell::MessageBox) override {}
};

struct GeneratedDiary {
  std::filesystem::path dir;
  std::unique_ptr<lad::shell::Application> app;
  lad::Date first;

  explicit GeneratedDiary(int appid)
      : dir(std::filesystem::temp_directory_path() /
            ("lad-bench-" + std::to_string(std::random_device{}()))) {
    app = std::make_unique<lad::shell::Application>(
        lad::ContextOptions{appid, 1, dir, "1.0", nullptr, LADANEYA_RESOURCES_DIR});
    lad::Store& store = app->store();
    const lad::DateCodec& dates = app->context().dates();
    first = dates.addDays(app->context().clock().now(), -200);
    int days = lad::kPregnancyListDays;
    if (appid == 2) {
      lad::testing::addChild(store, kGid, first, "3.2", "50");
      days = 365;
    } else {
      lad::testing::addPregnancy(store, kGid, first, "60");
    }
    lad::testing::generateDiary(store, kGid, first, days, 60);
  }
  ~GeneratedDiary() {
    app.reset();
    std::filesystem::remove_all(dir);
  }
};

GeneratedDiary& diary(int appid) {
  static GeneratedDiary pregnancy(1);
  static GeneratedDiary child(2);
  return appid == 2 ? child : pregnancy;
}

// Loading every day with its strings, then the sections and the cells the browser gets first.
void BM_ListFirstScreen(benchmark::State& state) {
  GeneratedDiary& d = diary(static_cast<int>(state.range(0)));
  QuietHost host;
  for (auto _ : state) {
    lad::shell::DiaryState diaryState;
    lad::shell::DiaryList list(*d.app, host, kGid, diaryState, true);
    benchmark::DoNotOptimize(list.view());
  }
}
BENCHMARK(BM_ListFirstScreen)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// A search over every day of the list, the field rows of each made for it.
void BM_SearchAllDays(benchmark::State& state) {
  GeneratedDiary& d = diary(static_cast<int>(state.range(0)));
  QuietHost host;
  for (auto _ : state) {
    state.PauseTiming();
    lad::shell::DiaryState diaryState;
    lad::shell::DiaryList list(*d.app, host, kGid, diaryState, true);
    state.ResumeTiming();
    benchmark::DoNotOptimize(list.change("diary:search", lad::Value("ВЕС")));
    benchmark::DoNotOptimize(list.view());
  }
}
BENCHMARK(BM_SearchAllDays)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void BM_OpenDayEditor(benchmark::State& state) {
  GeneratedDiary& d = diary(static_cast<int>(state.range(0)));
  QuietHost host;
  const lad::Date day = d.app->context().dates().addDays(d.first, 100);
  for (auto _ : state) {
    lad::shell::DayEditor editor(*d.app, host, kGid, day);
    benchmark::DoNotOptimize(editor.view());
  }
}
BENCHMARK(BM_OpenDayEditor)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
