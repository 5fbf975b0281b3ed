// Feeds every file of a fuzz target's seed corpus through the target: a seed that trips one of
// its invariants or crashes fails the build's tests, not only a fuzzing run.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>

#include "tests/support/test_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

TEST(FuzzReplayTest, HttpRequestSeedsPass) {
  const std::filesystem::path corpus =
      std::filesystem::path(LADANEYA_FUZZ_CORPUS_DIR) / "http_request";
  int seeds = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    const std::string bytes = lad::testing::readFile(entry.path());
    EXPECT_EQ(
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()),
        0)
        << entry.path();
    ++seeds;
  }
  EXPECT_GE(seeds, 10);
}

}  // namespace
