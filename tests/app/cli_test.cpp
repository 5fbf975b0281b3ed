#include "app/cli.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace lad::app {
namespace {

TEST(CommandLine, TheFakeClockIsOnlyForTestRuns) {
  const std::vector<std::string> args{"serve", "--fake-clock", "--data", "d"};
  std::string error;
  unsetenv("LADANEYA_TEST_MODE");
  EXPECT_FALSE(parseCommandLine(args, &error));
  EXPECT_EQ(error, "--fake-clock is only for the test suite");

  setenv("LADANEYA_TEST_MODE", "0", 1);
  EXPECT_FALSE(parseCommandLine(args, &error));

  setenv("LADANEYA_TEST_MODE", "1", 1);
  const auto command = parseCommandLine(args, &error);
  ASSERT_TRUE(command);
  EXPECT_TRUE(command->serve.fakeClock);
  EXPECT_EQ(command->serve.dataDir, "d");
  EXPECT_FALSE(parseCommandLine({"serve", "--data", "d"}, &error)->serve.fakeClock);
  unsetenv("LADANEYA_TEST_MODE");
}

}  // namespace
}  // namespace lad::app
