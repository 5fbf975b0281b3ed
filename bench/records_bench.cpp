// Saving a whole diary day with every field of the pregnancy edition filled, and reading it back,
// on the real database file made from the program's template.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

#include "core/context.h"
#include "core/launch.h"
#include "store/first_launch.h"
#include "store/keywords.h"
#include "store/records.h"
#include "store/store.h"

namespace {

const std::string kFirst = "00000000-0000-0000-0001-000000000001";

struct BenchDiary {
  std::filesystem::path dir = std::filesystem::temp_directory_path() /
                              ("lad-bench-" + std::to_string(std::random_device{}()));
  std::unique_ptr<lad::Context> context;
  std::unique_ptr<lad::Store> store;

  BenchDiary() {
    context = std::make_unique<lad::Context>(
        lad::ContextOptions{1, 1, dir, "1.0", nullptr, LADANEYA_RESOURCES_DIR});
    lad::launch(*context);
    store = std::make_unique<lad::Store>(*context);
    lad::fromOldVersion(*store);
  }
  ~BenchDiary() {
    store.reset();
    context.reset();
    std::filesystem::remove_all(dir);
  }
};

// A value of a typical size for each field of the day.
lad::List fullDay() {
  lad::List rows;
  for (const lad::Keyword& k : lad::keywordsOf(1)) {
    if (k.kind == lad::kKindPhoto || k.kind == lad::kKindBirth) continue;
    lad::Map row;
    row.set("tp", k.kind);
    row.set("field", std::string(k.name));
    row.set("source", "[\n  {\n    \"time\" : \"08:30\",\n    \"temp\" : \"36.7\"\n  }\n]");
    rows.push_back(lad::Value(std::move(row)));
  }
  return rows;
}

void BM_SaveAndReadFullDay(benchmark::State& state) {
  BenchDiary diary;
  const lad::List rows = fullDay();
  const lad::Date day = diary.context->dates().encodeDate(15, 5, 2026);
  for (auto _ : state) {
    lad::saveNoteData(*diary.store, lad::kNoteFromEditor, rows, {}, kFirst, day);
    lad::StoreBracket bracket = diary.store->connectToBase();
    for (const lad::Keyword& k : lad::keywordsOf(1))
      benchmark::DoNotOptimize(
          lad::getDateValue(*diary.store, bracket, day, std::string(k.name), kFirst));
  }
}
BENCHMARK(BM_SaveAndReadFullDay)->Unit(benchmark::kMillisecond);

}  // namespace
