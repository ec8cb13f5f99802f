// What the random walk does not try of a merge: a disk that is full, and the end of the power.
#include "platform/simulated/SimulatedPlatform.h"
#include "rooms/RoomWriter.h"
#include "support/DeviceTest.h"
#include "support/MemoryFiles.h"

namespace vantorel::testing {
namespace {

using Merge = DeviceTest;

const std::string kOne = writeRoom(walledRoom(1));

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
  const std::string identifier = identifierOf(walledRoom(1)).text();
  Lines written = {"a/", "a/b/"};
  for (const char *name : {"scan.json", "scan.usdz", "scan.plist"}) {
    const auto disk = std::make_shared<FullDisk>(name);
    device.setStore(disk);
    device.setDocumentsDirectory("/documents");
    mergeScans(kOne.c_str(), "a", "b");
    advance(5);
    EXPECT_EQ(heard(), (Lines{"main console " + identifier, "main console Merging Error."})) << name;
    EXPECT_EQ(disk->list("/documents"), written) << name;
    written.push_back(std::string("a/b/") + name);
  }
  device.setStore(std::make_shared<DiskFiles>());
  device.setDocumentsDirectory(file(""));
}

TEST_F(Merge, EndsWithThePower) {
  mergeScans(kOne.c_str(), "a", "b");
  advance(1);
  powerCycle();
  advance(5);
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(files(), Lines());
}

}  // namespace
}  // namespace vantorel::testing
