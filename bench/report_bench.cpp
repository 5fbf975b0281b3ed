// The diary report of a full pregnancy: 294 days with a dozen records each and 60 photos of 12
// megapixels, drawn into a PDF. The peak memory of the whole process is reported beside it.
#include <benchmark/benchmark.h>

#include "bench/pregnancy_with_photos.h"
#include "reports/diary_report.h"
#include "reports/report_input.h"

namespace {

using lad::bench::kGid;
using lad::bench::peakMegabytes;

void BM_DiaryReport(benchmark::State& state) {
  static lad::bench::PregnancyWithPhotos diary;
  const lad::Map dic = lad::reports::diaryReportInput(*diary.store, kGid, 0);
  const auto target = diary.dir / "report.pdf";
  for (auto _ : state) {
    std::string error;
    if (!lad::reports::saveDiaryReport(*diary.store, kGid, 0, dic, target,
                                       {LADANEYA_IMAGES_DIR, {}}, &error))
      state.SkipWithError(error.c_str());
  }
  state.counters["pdf_mb"] = static_cast<double>(std::filesystem::file_size(target)) / 1048576;
  state.counters["photo_mb"] = static_cast<double>(diary.photoBytes) / 1048576;
  state.counters["peak_rss_mb"] = peakMegabytes();
}

}  // namespace

BENCHMARK(BM_DiaryReport)->Unit(benchmark::kMillisecond)->Iterations(3);
