// The photo book of a full pregnancy with 60 photos of 12 megapixels: every page drawn at 300
// dots per inch and written as JPEG, then book.pdf. The peak memory of the whole process is
// reported beside it.
#include <benchmark/benchmark.h>

#include "bench/pregnancy_with_photos.h"
#include "reports/book_job.h"
#include "shell/book/book_previews.h"

namespace {

using lad::bench::kGid;

// One diary for both benchmarks: the second one reads the pages the first one drew.
lad::bench::PregnancyWithPhotos& diary() {
  static lad::bench::PregnancyWithPhotos made;
  return made;
}

void BM_PhotoBook(benchmark::State& state) {
  const auto target = lad::reports::bookFile(*diary().context);
  std::size_t pages = 0;
  lad::reports::BookOptions options;
  options.imagesDir = LADANEYA_IMAGES_DIR;
  options.progress = [&](std::size_t, std::size_t total) { pages = total; };
  for (auto _ : state) {
    std::string error;
    if (!lad::reports::makeBook(*diary().store, {kGid, static_cast<int>(state.range(0)), 0, target},
                                options, &error))
      state.SkipWithError(error.c_str());
  }
  state.counters["pages"] = static_cast<double>(pages);
  state.counters["pdf_mb"] = static_cast<double>(std::filesystem::file_size(target)) / 1048576;
  state.counters["photo_mb"] = static_cast<double>(diary().photoBytes) / 1048576;
  state.counters["peak_rss_mb"] = lad::bench::peakMegabytes();
}

// What the book's screen adds to the making: the thumbnail of every page just drawn.
void BM_PageThumbnails(benchmark::State& state) {
  std::vector<std::filesystem::path> pages;
  const auto folder = lad::reports::bookFolder(*diary().context);
  for (int n = 1; std::filesystem::exists(lad::reports::bookPageFile(folder, n)); ++n)
    pages.push_back(lad::reports::bookPageFile(folder, n));
  if (pages.empty()) state.SkipWithError("the book's pages are made by BM_PhotoBook first");
  for (auto _ : state) {
    std::string error;
    for (const auto& page : pages)
      if (!lad::shell::writePageThumbnail(page, &error)) state.SkipWithError(error.c_str());
  }
  state.counters["pages"] = static_cast<double>(pages.size());
}

}  // namespace

BENCHMARK(BM_PhotoBook)->Arg(2)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_PageThumbnails)->Unit(benchmark::kMillisecond)->Iterations(1);
