// Reads and writes of the settings store, as the screens and the launch make them.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "core/settings.h"

namespace {

// A store with as many keys as a long-used installation gathers.
struct BenchStore {
  std::filesystem::path dir;
  std::unique_ptr<lad::SettingsStore> store;

  explicit BenchStore(int keys) {
    dir = std::filesystem::temp_directory_path() /
          ("lad-bench-" + std::to_string(std::random_device{}()));
    store = std::make_unique<lad::SettingsStore>(dir / "Preferences.json");
    for (int i = 0; i < keys; ++i) store->set("LASTCHATID" + std::to_string(i), i);
    store->set("chatIndi", true);
    store->synchronize();
  }
  ~BenchStore() {
    store.reset();
    std::filesystem::remove_all(dir);
  }
};

void BM_ReadBool(benchmark::State& state) {
  BenchStore b(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(b.store->boolForKey("chatIndi"));
}
BENCHMARK(BM_ReadBool)->Arg(20)->Arg(200);

void BM_ReadMissing(benchmark::State& state) {
  BenchStore b(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(b.store->integerForKey("absent"));
}
BENCHMARK(BM_ReadMissing)->Arg(20)->Arg(200);

void BM_Write(benchmark::State& state) {
  BenchStore b(static_cast<int>(state.range(0)));
  int i = 0;
  for (auto _ : state) b.store->set("becomeActive", ++i);
}
BENCHMARK(BM_Write)->Arg(20)->Arg(200);

// A write followed by the synchronise that always comes with it: the file reaches the disk.
void BM_WriteAndSynchronize(benchmark::State& state) {
  BenchStore b(static_cast<int>(state.range(0)));
  int i = 0;
  for (auto _ : state) {
    b.store->set("becomeActive", ++i);
    b.store->synchronize();
  }
}
BENCHMARK(BM_WriteAndSynchronize)->Arg(20)->Arg(200)->Unit(benchmark::kMicrosecond);

}  // namespace
