#include "support/TestData.h"
#include "tools/CommandLine.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantorel {
namespace {

TEST(CommandLine, ExplainsWrongUsageInOneLine) {
  const std::string room = VANTOREL_SAMPLES_DIR "/flat.json";
  const std::pair<std::vector<std::string>, std::string> table[] = {
      {{}, "expected a command: scan, host, plan or slim"},
      {{"bogus", "x"}, "there is no command bogus"},
      {{"--versio"}, "there is no option --versio"},
      {{"plan"}, "SCAN is required"},
      {{"plan", "x", "--meters"}, "there is no option --meters"},
      {{"slim", "x", "y"}, "one argument too many: y"},
      {{"scan"}, "ROOM is required"},
      {{"scan", "a", "b"}, "one argument too many: b"},
      {{"scan", "a", "--bogus"}, "there is no option --bogus"},
      {{"scan", "a", "--seconds", "0"}, "--seconds: expected a number from 0.001 to 3600, got 0"},
      {{"scan", "a", "--ios", "15.0"}, "--ios: expected a version from 16.0 on, as 16.4"},
      {{"scan", room, "--scan", "new/.."}, "--scan: expected a name without .."},
      {{"scan", room, "--directory", "../.."}, "--directory: expected a name without .."},
      {{"scan", room, "--scan", "\xFF"}, "--scan: expected UTF-8"},
      {{"scan", room, "--scan", "a\nb"}, "--scan: expected no line break"},
  };
  for (const auto &[words, message] : table) {
    std::vector<const char *> arguments{"vantorel"};
    for (const std::string &word : words) arguments.push_back(word.c_str());
    ::testing::internal::CaptureStderr();
    const int code = runCommandLine(static_cast<int>(arguments.size()), arguments.data());
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "vantorel: " + message + "\n");
    EXPECT_EQ(code, 2) << message;
  }
}

}  // namespace
}  // namespace vantorel
