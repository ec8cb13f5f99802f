#include "rooms/RoomWriter.h"
#include "support/DeviceTest.h"

namespace vantorel::testing {
namespace {

class SaveScan : public DeviceTest {
 protected:
  /// A scan that has seen one wall.
  void scanAWall() {
    initialize();
    start();
    update(walledRoom(1));
    advance();
    heard();
  }
  std::string read(const std::string &path) const { return readFile(file(path)); }
};

TEST_F(SaveScan, WritesThePlatformsTextAndTheModel) {
  scanAWall();
  EXPECT_EQ(trySaveRoomPlanExperience("a/b", "c"), 1);
  EXPECT_EQ(files(), (Lines{"a/", "a/b/", "a/b/c/", "a/b/c/scan.json", "a/b/c/scan.usdz"}));
  EXPECT_EQ(read("a/b/c/scan.json"), writeRoom(walledRoom(1)));
  EXPECT_EQ(read("a/b/c/scan.usdz").substr(0, 4), "PK\x03\x04");

  saveRoomPlanExperience("a/b", "again");
  EXPECT_EQ(read("a/b/again/scan.json"), read("a/b/c/scan.json"));
  EXPECT_EQ(read("a/b/again/scan.usdz"), read("a/b/c/scan.usdz"));
  EXPECT_EQ(state("directoryName"), R"("a\/b")") << "the names stay";
  EXPECT_EQ(state("scanName"), R"("again")");
  EXPECT_EQ(phase(), "scanning running");
  EXPECT_EQ(heard(), Lines());
}

TEST_F(SaveScan, WritesNullWithoutARoom) {
  EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), 1);
  EXPECT_EQ(files(), (Lines{"a/", "a/b/", "a/b/scan.json"}));
  EXPECT_EQ(read("a/b/scan.json"), "null");
  EXPECT_EQ(heard(), Lines());
}

TEST_F(SaveScan, LeavesAFolderThatExistsAsItIs) {
  EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), 1);
  scanAWall();
  EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), 0);
  EXPECT_EQ(trySaveRoomPlanExperience("a", ""), 0) << "an empty name means the folder above";
  saveRoomPlanExperience("a", "b");
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(files(), (Lines{"a/", "a/b/", "a/b/scan.json"}));
  EXPECT_EQ(read("a/b/scan.json"), "null");
}

TEST_F(SaveScan, EndsAtTheStepThatFailsAndSaysSo) {
  const struct {
    const char *call;
    std::uint32_t skip;
    Lines files;
    const char *jsonBegins;
  } table[] = {
      {"documentsDirectory", 0, {}, ""},
      {"createDirectory", 0, {}, ""},
      {"writeFile", 0, {"a/", "a/b/"}, ""},
      {"writeFile", 1, {"a/", "a/b/", "a/b/scan.json"}, "{\n  \"surfaces\" : "},
      {"encodeRoom", 0, {"a/", "a/b/", "a/b/scan.json"}, "{\n  \"surfaces\" : "},
      {"exportRoom", 0, {"a/", "a/b/", "a/b/scan.json"}, "{\n  \"doors\" : "},
  };
  for (const auto &row : table) {
    for (const bool asks : {true, false}) {
      SCOPED_TRACE(std::string(row.call) + " after " + std::to_string(row.skip));
      powerCycle();
      removeFiles();
      scanAWall();
      fail(row.call, 1, row.skip);
      if (asks) {
        EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), 0);
      } else {
        saveRoomPlanExperience("a", "b");
      }
      EXPECT_EQ(heard(), Lines{"main console Couldn't create file(s)"});
      EXPECT_EQ(files(), row.files);
      if (files().size() == 3) {
        EXPECT_EQ(read("a/b/scan.json").find(row.jsonBegins), 0U);
      }
    }
  }
}

}  // namespace
}  // namespace vantorel::testing
