// Rebuilding the plan of notifications, as each activation of the program does, from a diary
// with twenty medicine courses running over a whole year and a reminder on every day.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "core/context.h"
#include "core/ids.h"
#include "core/launch.h"
#include "health/reminder_plan.h"
#include "store/first_launch.h"
#include "store/pill_courses.h"
#include "store/records.h"
#include "store/store.h"
#include "store/values/regimen.h"

namespace {

const std::string kFirst = "00000000-0000-0000-0001-000000000001";

// Courses of every kind: fixed hours, spread over the day, bound to meals; with each
// periodicity.
lad::Regimen course(int n, const std::string& first) {
  lad::Regimen r;
  r.pillname = lad::newID2(4, 4 + n % 3);
  r.pilldoza = std::to_string(1 + n % 4) + "<td>шт.";
  r.pillinter = std::to_string(1 + n % 8) + (n % 2 ? "<td>раз в день" : "<td>раз в сутки");
  r.pillperiod = lad::newID2(4, 10 + n % 5);
  r.pilleat = lad::newID2(4, 15 + n % 10);
  r.pilllength = "12<td>месяцы";
  r.pillsdate = first;
  if (n % 3 == 0) r.pilltime = "08:00<td>15:00<td>22:00";
  return r;
}

struct CourseDiary {
  std::filesystem::path dir = std::filesystem::temp_directory_path() /
                              ("lad-bench-" + std::to_string(std::random_device{}()));
  std::unique_ptr<lad::Context> context;
  std::unique_ptr<lad::Store> store;

  CourseDiary() {
    context = std::make_unique<lad::Context>(
        lad::ContextOptions{1, 1, dir, "1.0", nullptr, LADANEYA_RESOURCES_DIR});
    lad::launch(*context);
    context->values().pillsAlarm = true;
    store = std::make_unique<lad::Store>(*context);
    lad::fromOldVersion(*store);
    const lad::DateCodec& dates = context->dates();
    const lad::Date start = dates.addDays(dates.noTime(context->clock().now()), -180);
    const std::string first = dates.dateToString(start, "dd.MM.yyyy");
    lad::StoreBracket bracket = store->connectToBase();
    bracket.db()->execute("begin");
    for (int n = 0; n < 20; ++n)
      lad::addNoteComplex(*store, bracket, "pills", course(n, first).toValue().toJson(), {}, kFirst,
                          start);
    for (int d = 0; d < 365; ++d)
      lad::insertValue(*store, bracket, "alarm",
                       R"([{"time":"12:00","temp":"Врач"},{"time":"18:30","temp":""}])",
                       dates.addDays(start, d), kFirst, true, false);
    bracket.db()->execute("commit");
  }
  ~CourseDiary() {
    store.reset();
    context.reset();
    std::filesystem::remove_all(dir);
  }
};

void BM_PlanReminders(benchmark::State& state) {
  static CourseDiary diary;
  for (auto _ : state)
    benchmark::DoNotOptimize(
        lad::health::planReminders(*diary.store, diary.context->clock().now()));
}
BENCHMARK(BM_PlanReminders)->Unit(benchmark::kMillisecond);

}  // namespace
