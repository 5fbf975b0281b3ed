// The photo book of a full pregnancy with 60 photos of 12 megapixels: every page drawn at 300
// dots per inch and written as JPEG, then book.pdf. The peak memory of the whole process is
// reported beside it.
#include <benchmark/benchmark.h>

#include "bench/pregnancy_with_photos.h"
#include "reports/book_job.h"

namespace {

using lad::bench::kGid;

void BM_PhotoBook(benchmark::State& state) {
  static lad::bench::PregnancyWithPhotos diary;
  const auto target = lad::report::bookFile(*diary.context);
  std::size_t pages = 0;
  lad::report::BookOptions options;
  options.imagesDir = LADANEYA_IMAGES_DIR;
  options.progress = [&](std::size_t, std::size_t total) { pages = total; };
  for (auto _ : state) {
    std::string error;
    if (!lad::report::makeBook(*diary.store, {kGid, static_cast<int>(state.range(0)), 0, target},
                               options, &error))
      state.SkipWithError(error.c_str());
  }
  state.counters["pages"] = static_cast<double>(pages);
  state.counters["pdf_mb"] = static_cast<double>(std::filesystem::file_size(target)) / 1048576;
  state.counters["photo_mb"] = static_cast<double>(diary.photoBytes) / 1048576;
  state.counters["peak_rss_mb"] = lad::bench::peakMegabytes();
}

}  // namespace

BENCHMARK(BM_PhotoBook)->Arg(2)->Unit(benchmark::kMillisecond)->Iterations(1);
