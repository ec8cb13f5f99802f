#include "support/TestData.h"
#include "tools/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace vantorel {
namespace {

/// Makes a folder with a file in it and ends by a signal of its own; exits with 0 if that does not end it.
void endBy(int number, const std::string &parent) {
  setenv("TMPDIR", parent.c_str(), 1);
  const TemporaryFolder folder;
  testing::writeFile(folder.path() + "/file", "");
  if (std::filesystem::is_empty(parent)) std::_Exit(1);
  if (number == SIGABRT) std::abort();
  kill(getpid(), number);
  sleep(10);
  std::_Exit(0);
}

TEST(TemporaryFolderDeathTest, IsRemovedHoweverTheProcessEnds) {
  const testing::TemporaryFolder parent;
  for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGABRT}) {
    std::signal(number, SIG_DFL);
    EXPECT_EXIT(endBy(number, parent.path()), ::testing::KilledBySignal(number), "") << number;
    EXPECT_TRUE(std::filesystem::is_empty(parent.path())) << number;
  }
}

}  // namespace
}  // namespace vantorel
