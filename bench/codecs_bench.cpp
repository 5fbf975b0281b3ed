// The codecs that run thousands of times while a year of the diary loads.
#include <benchmark/benchmark.h>

#include <array>

#include "core/dates.h"
#include "core/word_forms.h"

namespace {

const lad::DateCodec& berlin() {
  static const lad::DateCodec codec("Europe/Berlin", 1);
  return codec;
}

// Moments over ten years, a day and some minutes apart, taken in turn so that no offset lookup
// repeats.
class Moments {
 public:
  Moments() {
    lad::Date d = *lad::dateFromIso("2020-01-01T10:00:00Z");
    for (auto& m : moments_) m = d += std::chrono::hours(24) + std::chrono::minutes(17);
  }
  lad::Date next() { return moments_[i_++ % moments_.size()]; }

 private:
  std::array<lad::Date, 3650> moments_;
  std::size_t i_ = 0;
};

void BM_DateToString(benchmark::State& state, const char* pattern) {
  Moments moments;
  for (auto _ : state) benchmark::DoNotOptimize(berlin().dateToString(moments.next(), pattern));
}
BENCHMARK_CAPTURE(BM_DateToString, column, "yyyy-MM-dd");
BENCHMARK_CAPTURE(BM_DateToString, month_name, "dd MMMM yyyy");

void BM_DateFromString(benchmark::State& state, const char* text) {
  for (auto _ : state) benchmark::DoNotOptimize(berlin().dateFromString(text));
}
BENCHMARK_CAPTURE(BM_DateFromString, day, "2026-03-05");
BENCHMARK_CAPTURE(BM_DateFromString, moment, "2026-03-05 14:30:15");

void BM_GetDays(benchmark::State& state) {
  Moments moments;
  const lad::Date to = *lad::dateFromIso("2026-07-01T08:00:00Z");
  for (auto _ : state) benchmark::DoNotOptimize(berlin().getDays(moments.next(), to));
}
BENCHMARK(BM_GetDays);

void BM_RusForms(benchmark::State& state) {
  std::int64_t n = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(lad::rusForms(++n % 200, "неделя", "недели", "недель"));
}
BENCHMARK(BM_RusForms);

}  // namespace
