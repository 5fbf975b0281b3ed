// Loading a year of diary days (a pregnancy of 294 days, a child's first year, each day with a
// dozen records and 60 photos) in the list regim and in the report regim, against a plain scan
// of the same rows.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "core/context.h"
#include "core/db_cells.h"
#include "core/launch.h"
#include "store/day_loader.h"
#include "store/first_launch.h"
#include "store/store.h"
#include "store/tables.h"
#include "tests/fixtures/diary_generator.h"

namespace {

const std::string kGid = "BENCH-PROFILE";

struct GeneratedDiary {
  std::filesystem::path dir;
  std::unique_ptr<lad::Context> context;
  std::unique_ptr<lad::Store> store;
  lad::Date first;
  lad::Date end;

  explicit GeneratedDiary(int appid)
      : dir(std::filesystem::temp_directory_path() /
            ("lad-bench-" + std::to_string(std::random_device{}()))) {
    context = std::make_unique<lad::Context>(
        lad::ContextOptions{appid, 1, dir, "1.0", nullptr, LADANEYA_RESOURCES_DIR});
    lad::launch(*context);
    store = std::make_unique<lad::Store>(*context);
    lad::fromOldVersion(*store);
    const lad::DateCodec& dates = context->dates();
    first = dates.encodeDate(1, 3, 2025);
    if (appid == 2) {
      lad::testing::addChild(*store, kGid, first, "3.2", "50");
      end = dates.addYears(first, 1);
    } else {
      lad::testing::addPregnancy(*store, kGid, first, "60");
      end = dates.addDays(first, 294);
    }
    lad::testing::generateDiary(*store, kGid, first, dates.getDays(first, end), 60);
  }
  ~GeneratedDiary() {
    store.reset();
    context.reset();
    std::filesystem::remove_all(dir);
  }
};

GeneratedDiary& diary(int appid) {
  static GeneratedDiary pregnancy(1);
  static GeneratedDiary child(2);
  return appid == 2 ? child : pregnancy;
}

// Every row of the period stepped through with each of its columns read.
void BM_PlainScan(benchmark::State& state) {
  GeneratedDiary& d = diary(static_cast<int>(state.range(0)));
  const lad::EditionTables& t = lad::tablesFor(d.context->values().appid);
  for (auto _ : state) {
    lad::SqliteConnection db(d.store->liveFile(), lad::SqliteConnection::Mode::ReadOnly);
    lad::SqliteStatement st =
        db.prepare(std::string("select sdat, type, value from ") + t.data + " where " + t.guid +
                   "=? and date(sdat)>=date(?) and date(sdat)<=date(?) "
                   "order by date(sdat)");
    st.bindText(1, kGid);
    lad::dateToBase(st, 2, d.first, false, d.context->dates());
    lad::dateToBase(st, 3, d.end, false, d.context->dates());
    std::size_t bytes = 0;
    while (st.step())
      for (int column = 0; column < 3; ++column) bytes += st.columnText(column)->size();
    benchmark::DoNotOptimize(bytes);
  }
}

void BM_LoadNoteData(benchmark::State& state) {
  const int appid = static_cast<int>(state.range(0));
  const int regim = static_cast<int>(state.range(1));
  GeneratedDiary& d = diary(appid);
  for (auto _ : state) {
    lad::List days = lad::loadNoteData(*d.store, regim, 1, d.first, kGid);
    benchmark::DoNotOptimize(days.data());
  }
}

}  // namespace

// Pregnancy (appid 1) and child (appid 2).
BENCHMARK(BM_PlainScan)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
// The list regims (1), and the report regims with their strings (pregnancy 4, child 6).
BENCHMARK(BM_LoadNoteData)
    ->Args({1, 1})
    ->Args({1, 4})
    ->Args({2, 1})
    ->Args({2, 6})
    ->Unit(benchmark::kMillisecond);
