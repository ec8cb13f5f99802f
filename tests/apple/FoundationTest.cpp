// What the simulated device takes the place of when scripts run: Foundation's files, the console, what the phone is.
#include "platform/PlatformError.h"
#include "platform/apple/ApplePlatform.h"
#include "support/TestData.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vantorel::testing {
namespace {

class Foundation : public ::testing::Test {
 protected:
  TemporaryFolder home_;
  apple::ApplePlatform phone_;
  FileManager &files_ = phone_.fileManager();
};

TEST_F(Foundation, KeepsFilesByteForByte) {
  const std::string folder = home_.path() + "/a folder", path = folder + "/ä", bytes("a\0\xFF\n", 4);
  files_.createDirectory(folder + "/b/c");
  files_.createDirectory(folder);
  files_.writeFile(path, "longer than what replaces it");
  files_.writeFile(path, bytes);
  EXPECT_EQ(files_.readFile(path), bytes);
  files_.writeFile(path, "");
  EXPECT_EQ(files_.readFile(path), "");
  EXPECT_TRUE(files_.fileExists(folder));
  files_.removeItem(folder);
  EXPECT_FALSE(files_.fileExists(folder));
}

TEST_F(Foundation, TellsWhatFilesCannotDo) {
  const std::string nothing = home_.path() + "/nothing";
  EXPECT_THROW(files_.readFile(nothing), PlatformError);
  EXPECT_THROW(files_.readFile(home_.path()), PlatformError);
  EXPECT_THROW(files_.removeItem(nothing), PlatformError);
  EXPECT_THROW(files_.writeFile(nothing + "/deep", "a"), PlatformError);
  EXPECT_THROW(files_.createDirectory("/dev/null/folder"), PlatformError);
}

/// In a process of its own, since Foundation looks once.
TEST_F(Foundation, KnowsItsFoldersWithoutASlash) {
  const std::string home = home_.path();
  const auto isRight = [&] {
    setenv("CFFIXED_USER_HOME", home.c_str(), 1);
    setenv("TMPDIR", (home + "/").c_str(), 1);
    const bool holds =
        files_.documentsDirectory() == home + "/Documents" && files_.temporaryDirectory() == home;
    std::_Exit(holds ? 0 : 1);
  };
  EXPECT_EXIT(isRight(), ::testing::ExitedWithCode(0), "");
}

TEST_F(Foundation, PrintsLines) {
  ::testing::internal::CaptureStdout();
  phone_.console().print("a line with 50 % of everything, and ä");
  std::fflush(stdout);
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "a line with 50 % of everything, and ä\n");
}

TEST_F(Foundation, KnowsThePhone) {
  EXPECT_TRUE(phone_.device().isSystemAtLeast(16));
  EXPECT_TRUE(phone_.device().isSystemAtLeast(17));
  EXPECT_TRUE(phone_.device().supportsSceneReconstruction());
}

}  // namespace
}  // namespace vantorel::testing
