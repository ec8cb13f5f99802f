#include "platform/PlatformError.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/SimulatedRoom.h"
#include "support/DeviceTest.h"
#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

class SimulatedFilesTest : public ::testing::Test {
 protected:
  std::string path(const std::string &name) const { return folder_.path() + "/" + name; }
  static std::string refusalOf(const std::function<void()> &call) {
    try {
      call();
    } catch (const PlatformError &error) {
      return error.what();
    }
    return "";
  }
  static void expectRefusal(const std::function<void()> &call, const std::string &what,
                            const std::string &why) {
    EXPECT_EQ(refusalOf(call), "cannot " + what + ": " + why);
  }

  testing::TemporaryFolder folder_;
  DeviceParts device_;
  SimulatedFiles &files_ = device_.files;
};

/// What holds on the disk and in memory.
class AnyFiles : public SimulatedFilesTest, public ::testing::WithParamInterface<const char *> {
 protected:
  AnyFiles() {
    if (GetParam() == std::string("Memory")) files_.setStore(std::make_shared<testing::MemoryFiles>());
    files_.createDirectory(folder_.path());
  }
};
INSTANTIATE_TEST_SUITE_P(, AnyFiles, ::testing::Values("Disk", "Memory"),
                         [](const auto &test) { return std::string(test.param); });

TEST_P(AnyFiles, ReplaceWhatWasThere) {
  files_.createDirectory(path("a/b/c"));
  files_.createDirectory(path("a/b/c/"));
  files_.writeFile(path("a/b/c/é ü"), "a longer text");
  files_.writeFile(path("a/b//c/../c/./é ü"), std::string("s\0t", 3));
  EXPECT_EQ(files_.readFile(path("a/b/c/é ü")), std::string("s\0t", 3));
  EXPECT_TRUE(files_.fileExists(path("a/b")) && files_.fileExists(path("a/b/")));
  EXPECT_FALSE(files_.fileExists(path("a/b/c/none")));
  EXPECT_FALSE(files_.fileExists(path("a/b/c/é ü/below a file")));
  EXPECT_TRUE(files_.fileExists(files_.temporaryDirectory()));
}

TEST_P(AnyFiles, RemoveAFileOrAFolderWithAllInIt) {
  for (const char *folder : {"a/b/c", "a-", "ab"}) files_.createDirectory(path(folder));
  for (const char *file : {"a/b/c/file", "a/b/file", "a/b.file"}) files_.writeFile(path(file), "x");
  files_.removeItem(path("a/b.file"));
  EXPECT_FALSE(files_.fileExists(path("a/b.file")));
  files_.removeItem(path("a"));
  for (const char *gone : {"a", "a/b", "a/b/c", "a/b/c/file"}) EXPECT_FALSE(files_.fileExists(path(gone)));
  EXPECT_TRUE(files_.fileExists(path("a-")) && files_.fileExists(path("ab")));
  expectRefusal([&] { files_.removeItem(path("a")); }, "remove " + path("a"), "No such file or directory");
}

TEST_P(AnyFiles, TellWhatFailedAndWhy) {
  const std::string noFile = "No such file or directory", noFolder = "Not a directory",
                    folder = "Is a directory";
  files_.writeFile(path("file"), "kept");
  expectRefusal([&] { files_.createDirectory(path("file")); }, "create the folder " + path("file"), noFolder);
  expectRefusal([&] { files_.createDirectory(path("file/below")); },
                "create the folder " + path("file/below"), noFolder);
  expectRefusal([&] { files_.writeFile(path("none/file"), "x"); }, "write " + path("none/file"), noFile);
  expectRefusal([&] { files_.writeFile(path("file/below"), "x"); }, "write " + path("file/below"), noFolder);
  expectRefusal([&] { files_.writeFile(folder_.path(), "x"); }, "write " + folder_.path(), folder);
  expectRefusal([&] { files_.readFile(path("none")); }, "read " + path("none"), noFile);
  expectRefusal([&] { files_.readFile(folder_.path()); }, "read " + folder_.path(), folder);
  EXPECT_EQ(files_.readFile(path("file")), "kept");
}

TEST_P(AnyFiles, FailAsPlanned) {
  files_.writeFile(path("file"), "kept");
  for (const char *call : {"documentsDirectory", "createDirectory", "readFile", "removeFile", "writeFile"})
    device_.faults.plan(call, 1, 0);
  EXPECT_NE(refusalOf([&] { files_.documentsDirectory(); }), "");
  EXPECT_NE(refusalOf([&] { files_.createDirectory(path("a")); }), "");
  EXPECT_NE(refusalOf([&] { files_.readFile(path("file")); }), "");
  EXPECT_NE(refusalOf([&] { files_.removeItem(path("file")); }), "");
  EXPECT_NE(refusalOf([&] { files_.writeFile(path("file"), "x"); }), "");
  EXPECT_FALSE(files_.fileExists(path("a")));
  EXPECT_EQ(files_.readFile(path("file")), "kept");
  EXPECT_EQ(refusalOf([&] { files_.writeFile(path("file"), "x"); }), "");
}

TEST_F(SimulatedFilesTest, RefuseWhatTheSystemRefuses) {
  if (!fs::exists("/dev/full") || !fs::exists("/proc/self/mem")) GTEST_SKIP() << "no such files here";
  expectRefusal([&] { files_.writeFile("/dev/full", "x"); }, "write /dev/full", "No space left on device");
  expectRefusal([&] { files_.readFile("/proc/self/mem"); }, "read /proc/self/mem", "Input/output error");
}

TEST_F(SimulatedFilesTest, GiveAnAbsoluteDocumentsDirectory) {
  EXPECT_EQ(files_.documentsDirectory(), fs::current_path().string());
  const std::string documents = fs::canonical(folder_.path()).string() + "/new/documents";
  for (const char *name : {"new/er/../documents/", "new/documents", "new/documents/."}) {
    files_.setDocumentsDirectory(path(name));
    EXPECT_EQ(files_.documentsDirectory(), documents) << name;
  }
  EXPECT_TRUE(fs::is_directory(documents));
  fs::create_directory_symlink(documents, path("link"));
  files_.setDocumentsDirectory(path("link/below"));
  EXPECT_EQ(files_.documentsDirectory(), documents + "/below");
  files_.writeFile(path("file"), "");
  EXPECT_NE(refusalOf([&] { files_.setDocumentsDirectory(path("file")); }), "");
  EXPECT_NE(refusalOf([&] { files_.setDocumentsDirectory(""); }), "");
  EXPECT_EQ(files_.documentsDirectory(), documents + "/below");
}

TEST_F(SimulatedFilesTest, RoomsExportThemselvesWithoutTheLibrarysWrites) {
  auto document = std::make_shared<RoomDocument>();
  document->walls.resize(1);
  document->walls[0].transform.elements = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
  const SimulatedRoom room(document, {}, device_);
  device_.faults.plan("writeFile", 1, 0);
  device_.faults.plan("encodeRoom", 1, 0);
  EXPECT_NE(refusalOf([&] { room.jsonText(); }), "");
  EXPECT_EQ(refusalOf([&] { room.jsonText(); }), "");
  EXPECT_EQ(refusalOf([&] { room.writeUsdz(path("scan.usdz")); }), "");
  EXPECT_GT(fs::file_size(path("scan.usdz")), 0U);
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("scan.obj")); }), "");
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("none/scan.usdz")); }), "");
  device_.faults.plan("exportRoom", 1, 0);
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("b.usdz")); }), "");

  document->walls[0].dimensions.x = std::numeric_limits<float>::quiet_NaN();
  EXPECT_NE(refusalOf([&] { room.jsonText(); }), "");
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("b.usdz")); }), "");
  EXPECT_FALSE(fs::exists(path("b.usdz")));
}

TEST(SimulatedRoom, GivesCasesOfLaterSystemsAsUnknown) {
  using Content = CapturedRoomContent;
  auto document = std::make_shared<RoomDocument>();
  document->doors.resize(2);
  document->doors[0].category = {.name = "door", .isOpen = true, .payload = {}};
  document->doors[0].confidence.name = "high";
  document->doors[0].completedEdges = {{.name = "left", .isOpen = {}, .payload = {}},
                                       {.name = "hinge", .isOpen = {}, .payload = {}}};
  document->doors[0].curve.emplace().emplace().startAngle.value = 30;
  document->doors[1].category.name = "portal";
  document->doors[1].confidence.name = "absolute";
  document->objects.resize(2);
  document->objects[0].category.name = "stairs";
  document->objects[1].category.name = "hammock";
  DeviceParts device;
  const Content content = SimulatedRoom(document, {}, device).content();
  EXPECT_EQ(content.doors[0].category, Content::SurfaceCategory::door);
  EXPECT_TRUE(content.doors[0].isOpen);
  EXPECT_EQ(content.doors[0].confidence, Content::Confidence::high);
  EXPECT_TRUE(content.doors[0].completedEdges.left && !content.doors[0].completedEdges.right);
  EXPECT_EQ(content.doors[0].curve->startAngle, 30);
  EXPECT_EQ(content.doors[1].category, Content::SurfaceCategory::unknown);
  EXPECT_EQ(content.doors[1].confidence, Content::Confidence::unknown);
  EXPECT_EQ(content.objects[0].category, Content::ObjectCategory::stairs);
  EXPECT_EQ(content.objects[1].category, Content::ObjectCategory::unknown);
}

class DeviceInMemory : public testing::DeviceTest {
 protected:
  DeviceInMemory() {
    simulatedPlatform().files().setStore(memory_);
    vantorelDeviceSetDocumentsDirectory(file("below").c_str());
  }
  ~DeviceInMemory() override { simulatedPlatform().files().setStore(std::make_shared<DiskFiles>()); }

  const std::shared_ptr<testing::MemoryFiles> memory_ = std::make_shared<testing::MemoryFiles>();
};

TEST_F(DeviceInMemory, LeavesTheDiskAlone) {
  powerCycle();
  initialize();
  start();
  update(testing::walledRoom(1));
  advance();
  EXPECT_EQ(trySaveRoomPlanExperience("a", "b"), 1);
  EXPECT_EQ(memory_->list(file("below")), (testing::Lines{"a/", "a/b/", "a/b/scan.json", "a/b/scan.usdz"}));
  EXPECT_EQ(memory_->read(file("below/a/b/scan.usdz")).substr(0, 4), "PK\x03\x04");
  EXPECT_EQ(files(), testing::Lines());
}

}  // namespace
}  // namespace vantorel
