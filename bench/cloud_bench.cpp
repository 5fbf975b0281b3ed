// The cloud folder at the size of a full pregnancy: the copy of the whole diary (294 days with a
// dozen records each and 60 photos of 3 MB) into the folder, and a pass of another installation
// over 1,000 change files that it has already received.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "cloud/bulk_copy.h"
#include "cloud/change_content.h"
#include "cloud/cloud_pass.h"
#include "core/context.h"
#include "core/launch.h"
#include "store/day_photo.h"
#include "store/first_launch.h"
#include "tests/fixtures/diary_generator.h"

namespace {

const std::string kGid = "5A1E0C3B-0000-4000-8000-0000000000BE";
constexpr int kDays = 294, kPhotos = 60, kReceived = 1000;
constexpr std::size_t kPhotoBytes = 3 << 20;

// One installation in its own folder, syncing through `cloud`.
struct Installation {
  std::unique_ptr<lad::Context> context;
  std::unique_ptr<lad::Store> store;

  Installation(const std::filesystem::path& dir, const std::filesystem::path& cloud) {
    context = std::make_unique<lad::Context>(
        lad::ContextOptions{1, 1, dir, "1.0", nullptr, LADANEYA_RESOURCES_DIR});
    lad::launch(*context);
    context->settings().set("cloudFolder", cloud.string());
    lad::cloud::chooseCloudSync(*context);
    store = std::make_unique<lad::Store>(*context);
    lad::fromOldVersion(*store);
  }
};

// Photo files of the size a phone's camera makes; their bytes travel as they are.
void addPhotos(const lad::Context& context, lad::Date first) {
  std::string bytes(kPhotoBytes, '\0');
  std::mt19937 noise(7);
  for (char& c : bytes) c = static_cast<char>(noise());
  for (int k = 0; k < kPhotos; ++k) {
    const auto files = lad::dayPhotoFiles(context, context.dates().addDays(first, k * 4), kGid);
    for (const auto& file : {files.full, files.small}) {
      std::filesystem::create_directories(file.parent_path());
      std::ofstream(file, std::ios::binary) << bytes;
    }
  }
}

struct SharedFolder {
  std::filesystem::path dir = std::filesystem::temp_directory_path() /
                              ("lad-cloud-bench-" + std::to_string(std::random_device{}()));
  Installation home{dir / "home", dir / "cloud"};
  Installation laptop{dir / "laptop", dir / "cloud"};

  SharedFolder() {
    std::filesystem::create_directories(dir / "cloud");
    const lad::Date first = home.context->dates().addDays(home.context->clock().now(), -kReceived);
    lad::testing::addPregnancy(*home.store, kGid, first, "60");
    lad::testing::generateDiary(*home.store, kGid, first, kReceived, 0);
  }
  ~SharedFolder() { std::filesystem::remove_all(dir); }
};

void BM_PassOverReceivedFiles(benchmark::State& state) {
  SharedFolder folder;
  lad::cloud::BulkCopy copy(*folder.home.store);
  while (copy.step(100)) {
  }
  lad::cloud::cloudPass(*folder.laptop.store, {std::chrono::milliseconds(0), nullptr, {}});
  std::size_t applied = 0;
  for (auto _ : state)
    applied +=
        lad::cloud::cloudPass(*folder.laptop.store, {std::chrono::milliseconds(0), nullptr, {}})
            .report.applied.size();
  if (applied != 0) state.SkipWithError("a received file was applied again");
  state.counters["files"] = static_cast<double>(copy.unitCount());
}

void BM_BulkCopyOfAPregnancy(benchmark::State& state) {
  const auto dir = std::filesystem::temp_directory_path() /
                   ("lad-cloud-bench-" + std::to_string(std::random_device{}()));
  {
    Installation home{dir / "home", dir / "cloud"};
    std::filesystem::create_directories(dir / "cloud");
    const lad::Date first = home.context->dates().addDays(home.context->clock().now(), -kDays);
    lad::testing::addPregnancy(*home.store, kGid, first, "60");
    lad::testing::generateDiary(*home.store, kGid, first, kDays, 0);
    addPhotos(*home.context, first);
    for (auto _ : state) {
      lad::cloud::BulkCopy copy(*home.store);
      while (copy.step(100)) {
      }
      if (!copy.errors().empty()) state.SkipWithError(copy.errors().front().c_str());
      state.counters["files"] = static_cast<double>(copy.unitCount());
    }
  }
  std::filesystem::remove_all(dir);
}

}  // namespace

BENCHMARK(BM_PassOverReceivedFiles)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BulkCopyOfAPregnancy)->Unit(benchmark::kMillisecond)->Iterations(3);
