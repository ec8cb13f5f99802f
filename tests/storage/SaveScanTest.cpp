#include "rooms/RoomWriter.h"
#include "support/DeviceTest.h"

namespace vantorel::testing {
namespace {

using SaveScan = DeviceTest;

TEST_F(SaveScan, EndsAtTheStepThatFailsAndSaysSo) {
  const struct {
    const char *call;
    std::uint32_t skip;
    std::size_t files;       ///< of those that a whole save leaves
    const char *jsonBegins;  ///< the records first, then the platform's text over them
  } table[] = {
      {"documentsDirectory", 0, 0, ""},
      {"createDirectory", 0, 0, ""},
      {"writeFile", 0, 2, ""},
      {"writeFile", 1, 3, "{\n  \"surfaces\" : "},
      {"encodeRoom", 0, 3, "{\n  \"surfaces\" : "},
      {"exportRoom", 0, 3, "{\n  \"doors\" : "},
      {"exportRoom", 1, 4, "{\n  \"doors\" : "},
  };
  const Lines whole = {"a/", "a/b/", "a/b/scan.json", "a/b/scan.usdz"};
  initialize();
  start();
  update(walledRoom(1));
  advance();
  heard();
  for (const auto &row : table) {
    SCOPED_TRACE(std::string(row.call) + " after " + std::to_string(row.skip));
    removeFiles();
    fail(row.call, 1, row.skip);
    const bool isSaved = row.files == whole.size();
    EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), isSaved);
    EXPECT_EQ(heard(), isSaved ? Lines() : Lines{"main console Couldn't create file(s)"});
    EXPECT_EQ(files(), Lines(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(row.files)));
    if (row.files < 3) continue;
    EXPECT_EQ(readFile(file("a/b/scan.json")).find(row.jsonBegins), 0U);
  }
}

}  // namespace
}  // namespace vantorel::testing
