// Feeds every file of a fuzz target's corpus through the target: a seed that breaks one of its
// promises or crashes fails the build's tests, not only a fuzzing run.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>

#include "tests/support/test_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

TEST(FuzzReplayTest, EverySeedPasses) {
  int seeds = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(LADANEYA_FUZZ_CORPUS)) {
    if (!entry.is_regular_file()) continue;
    const std::string bytes = lad::testing::readFile(entry.path());
    SCOPED_TRACE(entry.path().string());
    EXPECT_EQ(
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()),
        0);
    ++seeds;
  }
  // A corpus that went missing would pass without running anything.
  EXPECT_GE(seeds, 5);
}

}  // namespace
