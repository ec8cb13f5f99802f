#include "platform/PlatformError.h"
#include "platform/simulated/SimulatedFiles.h"
#include "platform/simulated/SimulatedRoom.h"
#include "support/TestData.h"

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

  testing::TemporaryFolder folder_;
  Faults faults_;
  SimulatedFiles files_{faults_};
};

TEST_F(SimulatedFilesTest, ReplaceWhatWasThere) {
  files_.createDirectory(path("a/b/c"));
  files_.createDirectory(path("a/b/c"));
  files_.writeFile(path("a/b/c/é ü"), "a longer text");
  files_.writeFile(path("a/b/c/é ü"), std::string("s\0t", 3));
  EXPECT_EQ(SimulatedFiles::read(path("a/b/c/é ü")), std::string("s\0t", 3));
  EXPECT_TRUE(files_.fileExists(path("a/b")));
  EXPECT_FALSE(files_.fileExists(path("a/b/c/none")));
  EXPECT_FALSE(files_.fileExists(path("a/b/c/é ü/below a file")));
}

TEST_F(SimulatedFilesTest, TellWhatFailedAndWhy) {
  files_.writeFile(path("file"), "");
  const auto expectRefusal = [](const std::string &refusal, const std::string &what, const std::string &why) {
    EXPECT_NE(refusal.find(what), std::string::npos) << refusal;
    EXPECT_NE(refusal.find(why), std::string::npos) << refusal;
  };
  expectRefusal(refusalOf([&] { files_.createDirectory(path("file")); }), path("file"), "Not a directory");
  expectRefusal(refusalOf([&] { files_.createDirectory(path("file/below")); }), "create the folder",
                "Not a directory");
  expectRefusal(refusalOf([&] { files_.writeFile(path("none/file"), "x"); }),
                "cannot write " + path("none/file"), "No such file");
  expectRefusal(refusalOf([&] { files_.writeFile(folder_.path(), "x"); }), "cannot write", "Is a directory");
  expectRefusal(refusalOf([&] { SimulatedFiles::read(path("none")); }), "cannot read", "No such file");
  expectRefusal(refusalOf([&] { SimulatedFiles::read(folder_.path()); }), "cannot read", "Is a directory");
  if (fs::exists("/dev/full"))
    expectRefusal(refusalOf([&] { files_.writeFile("/dev/full", "x"); }), "cannot write", "No space left");
}

TEST_F(SimulatedFilesTest, GiveAnAbsoluteDocumentsDirectory) {
  EXPECT_EQ(files_.documentsDirectory(), fs::current_path().string());
  files_.setDocumentsDirectory(path("new/er/../documents/"));
  EXPECT_EQ(files_.documentsDirectory(), fs::canonical(folder_.path()).string() + "/new/documents");
  EXPECT_TRUE(fs::is_directory(path("new/documents")));
  files_.writeFile(path("file"), "");
  EXPECT_NE(refusalOf([&] { files_.setDocumentsDirectory(path("file")); }), "");
  EXPECT_NE(refusalOf([&] { files_.setDocumentsDirectory(""); }), "");
  EXPECT_TRUE(files_.documentsDirectory().ends_with("/new/documents"));
}

TEST_F(SimulatedFilesTest, FailAsPlanned) {
  for (const char *call : {"documentsDirectory", "createDirectory", "writeFile"}) faults_.plan(call, 1, 0);
  EXPECT_NE(refusalOf([&] { files_.documentsDirectory(); }), "");
  EXPECT_NE(refusalOf([&] { files_.createDirectory(path("a")); }), "");
  EXPECT_NE(refusalOf([&] { files_.writeFile(path("b"), "x"); }), "");
  EXPECT_TRUE(fs::is_empty(folder_.path()));
  EXPECT_EQ(refusalOf([&] { files_.writeFile(path("b"), "x"); }), "");
}

TEST_F(SimulatedFilesTest, RoomsExportThemselvesWithoutTheLibrarysWrites) {
  auto document = std::make_shared<RoomDocument>();
  document->walls.resize(1);
  document->walls[0].transform.elements = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
  const SimulatedRoom room(document, {}, faults_);
  faults_.plan("writeFile", 1, 0);
  faults_.plan("encodeRoom", 1, 0);
  EXPECT_NE(refusalOf([&] { room.jsonText(); }), "");
  EXPECT_EQ(refusalOf([&] { room.jsonText(); }), "");
  EXPECT_EQ(refusalOf([&] { room.writeUsdz(path("scan.usdz")); }), "");
  EXPECT_GT(fs::file_size(path("scan.usdz")), 0U);
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("scan.obj")); }), "");
  EXPECT_NE(refusalOf([&] { room.writeUsdz(path("none/scan.usdz")); }), "");
  faults_.plan("exportRoom", 1, 0);
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
  Faults faults;
  const Content content = SimulatedRoom(document, {}, faults).content();
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

}  // namespace
}  // namespace vantorel
