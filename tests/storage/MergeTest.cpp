#include "platform/simulated/SimulatedPlatform.h"
#include "rooms/RoomWriter.h"
#include "support/DeviceTest.h"
#include "support/MemoryFiles.h"

namespace vantorel::testing {
namespace {

constexpr const char *kSeparator = "_|+++++AMBER_WREN+++++|_";

Lines const kMerged = {"a/", "a/b/", "a/b/scan.json", "a/b/scan.plist", "a/b/scan.usdz"};

std::string joined(const Lines &texts) {
  std::string all;
  for (std::size_t i = 0; i < texts.size(); ++i) all += (i ? kSeparator : "") + texts[i];
  return all;
}

std::string identifierLine(const RoomDocument &room) { return "main console " + identifierOf(room).text(); }

class Merge : public DeviceTest {
 protected:
  /// A session with that many closed rooms and one that is still being scanned, each with one wall more.
  void scanRooms(std::size_t closed) {
    initialize();
    start();
    for (std::size_t i = 0; i < closed; ++i) {
      update(walledRoom(i + 1));
      advance();
      createNewRoomCaptureSession();
      advance();
    }
    update(walledRoom(closed + 1));
    advance();
    heard();
  }
  std::size_t roomsMerged(const std::string &path) const {
    const std::string text = readFile(file(path));
    std::size_t rooms = 0;
    for (auto at = text.find("\"version\""); at != text.npos; at = text.find("\"version\"", at + 1)) ++rooms;
    return rooms - 1;  // the structure has a version too
  }

  const std::string one_ = writeRoom(walledRoom(1)), two_ = writeRoom(walledRoom(2));
};

TEST_F(Merge, ReadsTheHostsTextsPieceByPieceAndSkipsWhatIsNoRoom) {
  mergeScans(joined({"", one_, "", " ", "{\"walls\":[", two_, ""}).c_str(), "a", "b");
  EXPECT_EQ(heard(), Lines()) << "nothing of a job runs inside the call";
  advance();
  EXPECT_EQ(heard(), (Lines{identifierLine(walledRoom(1)), "main console Data is empty.",
                            identifierLine(walledRoom(2))}));
  advance(1.9);
  EXPECT_EQ(files(), Lines());
  advance(0.1);
  EXPECT_EQ(files(), kMerged);
  EXPECT_EQ(roomsMerged("a/b/scan.json"), 2U);
  EXPECT_EQ(state("directoryName"), R"("model-viewer")") << "a host's merge has names of its own";

  mergeScans(one_.c_str(), "a", "one");
  advance(1.5);
  EXPECT_EQ(roomsMerged("a/one/scan.json"), 1U);
}

TEST_F(Merge, SaysNothingWithoutAPieceAndTwoThingsWithoutARoom) {
  for (const char *data : {"", " ", kSeparator, "_|+++++AMBER_WREN+++++|_ _|+++++AMBER_WREN+++++|_"}) {
    mergeScans(data, "a", "b");
    advance(5);
    EXPECT_EQ(heard(), Lines()) << data;
  }
  mergeScans(joined({"null", "  "}).c_str(), "a", "b");
  advance(5);
  EXPECT_EQ(heard(), (Lines{"main console Data is empty.", "main console Data is empty.",
                            "main console Structure data is empty."}));
  EXPECT_EQ(files(), Lines());
}

TEST_F(Merge, NeedsIOS17) {
  option("ios", "16.4");
  mergeScans(one_.c_str(), "a", "b");
  advance(5);
  EXPECT_EQ(heard(), Lines{kNeedsIOS17Line});

  scanRooms(0);
  stopCaptureSessionWithPause(0);  // refused, so that no second room can be collected
  heard();
  EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), 1);
  EXPECT_EQ(files(), (Lines{"a/", "a/b/", "a/b/scan.json", "a/b/scan.usdz"}));
}

TEST_F(Merge, TakesTheSessionsRoomsOnceThereAreTwoAndTheCurrentOneToo) {
  scanRooms(1);
  EXPECT_EQ(trySaveRoomPlanExperience("a", "one"), 1);
  EXPECT_EQ(files().back(), "a/one/scan.usdz") << "one closed room is saved as it is";

  removeFiles();
  scanRooms(2);
  EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), 1);
  EXPECT_EQ(phase(), "scanning") << "the session stops at once";
  EXPECT_EQ(files(), Lines());
  advance(2.5);
  EXPECT_EQ(files(), kMerged);
  EXPECT_EQ(roomsMerged("a/b/scan.json"), 3U);
  EXPECT_EQ(heard(), Lines()) << "a session's merge names no room";

  saveRoomPlanExperience("a", "again");
  advance(4);
  EXPECT_EQ(roomsMerged("a/again/scan.json"), 4U) << "the rooms stay, and the current one joins them again";
}

TEST_F(Merge, ReadsTheSessionsRoomsWhenItRunsAndTheNamesWhenItWrites) {
  scanRooms(2);
  saveRoomPlanExperience("a", "stopped");
  stopCaptureSession();
  heard();
  advance(5);
  EXPECT_EQ(heard(), Lines{"main console Paths is empty."});

  scanRooms(2);
  saveRoomPlanExperience("a", "first");
  advance(1);
  saveRoomPlanExperience("a", "b");  // now both write there, and who comes second finds the folder
  advance(10);
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(files(), kMerged);
  EXPECT_EQ(roomsMerged("a/b/scan.json"), 3U);
}

TEST_F(Merge, RunsBesideAnother) {
  mergeScans(joined({one_, two_, one_}).c_str(), "a", "slow");
  mergeScans(one_.c_str(), "a", "fast");
  advance(1.5);
  EXPECT_EQ(roomsMerged("a/fast/scan.json"), 1U);
  EXPECT_EQ(files().size(), 5U);
  advance(1);
  EXPECT_EQ(roomsMerged("a/slow/scan.json"), 3U);
}

TEST_F(Merge, LeavesAFolderThatExistsAsItIs) {
  trySaveRoomPlanExperience("a", "b");
  mergeScans(one_.c_str(), "a", "b");
  advance();
  heard();
  advance(5);
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(files(), (Lines{"a/", "a/b/", "a/b/scan.json"}));
}

TEST_F(Merge, EndsAtTheStepThatFailsAndSaysSo) {
  const struct {
    const char *call;
    Lines files;
  } table[] = {
      {"buildStructure", {}},        {"documentsDirectory", {}},
      {"createDirectory", {}},       {"encodeStructure", {"a/", "a/b/"}},
      {"writeFile", {"a/", "a/b/"}}, {"exportStructure", {"a/", "a/b/", "a/b/scan.json"}},
  };
  for (const auto &row : table) {
    SCOPED_TRACE(row.call);
    powerCycle();
    removeFiles();
    mergeScans(one_.c_str(), "a", "b");
    fail(row.call);
    advance(5);
    EXPECT_EQ(heard(), (Lines{identifierLine(walledRoom(1)), "main console Merging Error."}));
    EXPECT_EQ(files(), row.files);
  }
  option("lidar", "off");
  mergeScans(one_.c_str(), "c", "d");
  mergeScans(writeRoom(flooredRoom()).c_str(), "c", "d");  // nothing to merge in it
  advance(5);
  EXPECT_EQ(heard().back(), "main console Merging Error.");
  EXPECT_EQ(files().back(), "a/b/scan.json");
}

/// A disk on which there is no room for one file.
class FullDisk : public MemoryFiles {
 public:
  explicit FullDisk(std::string name) : name_(std::move(name)) {}
  void write(const std::string &path, std::string_view bytes) override {
    if (path.ends_with(name_)) throw PlatformError("no space left for " + path);
    MemoryFiles::write(path, bytes);
  }

 private:
  std::string name_;
};

TEST_F(Merge, LeavesWhatWasWrittenBeforeTheDiskWasFull) {
  SimulatedFiles &device = simulatedPlatform().files();
  Lines written = {"a/", "a/b/"};
  for (const char *name : {"scan.json", "scan.usdz", "scan.plist"}) {
    const auto disk = std::make_shared<FullDisk>(name);
    device.setStore(disk);
    device.setDocumentsDirectory("/documents");
    mergeScans(one_.c_str(), "a", "b");
    advance(5);
    EXPECT_EQ(heard(), (Lines{identifierLine(walledRoom(1)), "main console Merging Error."})) << name;
    EXPECT_EQ(disk->list("/documents"), written) << name;
    written.push_back(std::string("a/b/") + name);
  }
  device.setStore(std::make_shared<DiskFiles>());
  device.setDocumentsDirectory(file(""));
}

TEST_F(Merge, EndsWithThePower) {
  mergeScans(joined({one_, two_}).c_str(), "a", "b");
  advance(1);
  powerCycle();
  advance(5);
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(files(), Lines());
}

}  // namespace
}  // namespace vantorel::testing
