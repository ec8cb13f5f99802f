#include "platform/PlatformError.h"
#include "platform/simulated/SimulatedRoom.h"
#include "support/TestData.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
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

TEST_F(SimulatedFilesTest, ReplaceWhatWasThere) {
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

TEST_F(SimulatedFilesTest, RemoveAFolderWithAllInIt) {
  files_.createDirectory(path("a/b"));
  files_.writeFile(path("a/b/file"), "x");
  files_.removeItem(path("a"));
  EXPECT_FALSE(files_.fileExists(path("a")));
  expectRefusal([&] { files_.removeItem(path("a")); }, "remove " + path("a"), "No such file or directory");
}

TEST_F(SimulatedFilesTest, TellWhatFailedAndWhy) {
  const std::string noFile = "No such file or directory", noFolder = "Not a directory";
  const auto create = [&](const std::string &name, const std::string &why) {
    expectRefusal([&] { files_.createDirectory(path(name)); }, "create the folder " + path(name), why);
  };
  const auto write = [&](const std::string &name, const std::string &why) {
    expectRefusal([&] { files_.writeFile(path(name), "x"); }, "write " + path(name), why);
  };
  files_.writeFile(path("file"), "kept");
  create("file", noFolder);
  create("file/below", noFolder);
  write("none/file", noFile);
  write("file/below", noFolder);
  write("", "Is a directory");
  expectRefusal([&] { files_.readFile(path("none")); }, "read " + path("none"), noFile);
  EXPECT_EQ(files_.readFile(path("file")), "kept");
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
  document->walls = {testing::wall(1, {}, 2)};
  const SimulatedRoom room(document, {}, device_);
  device_.faults.plan("writeFile", 1, 0);
  EXPECT_EQ(refusalOf([&] { room.writeUsdz(path("scan.usdz")); }), "");
  EXPECT_GT(fs::file_size(path("scan.usdz")), 0U);
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("scan.obj")); }), "");
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("none/scan.usdz")); }), "");

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
  document->windows = {testing::surface("window", 1, {}, 1)};
  document->openings = {testing::surface("opening", 2, {}, 1)};
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
  EXPECT_EQ(content.windows.at(0).category, Content::SurfaceCategory::window);
  EXPECT_EQ(content.openings.at(0).category, Content::SurfaceCategory::opening);
  EXPECT_EQ(content.objects[0].category, Content::ObjectCategory::stairs);
  EXPECT_EQ(content.objects[1].category, Content::ObjectCategory::unknown);
}

}  // namespace
}  // namespace vantorel
