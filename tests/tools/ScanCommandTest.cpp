#include "support/TestData.h"
#include "tools/Files.h"
#include "tools/Host.h"
#include "tools/ScanCommand.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

class ScanCommandTest : public ::testing::Test {
 protected:
  ScanCommandTest() {
    options_.room = VANTOREL_SAMPLES_DIR "/flat.json";
    options_.documents = folder_.path() + "/documents";
    options_.seconds = 2;
    options_.json = true;
  }

  /// The summary.
  std::string scan() {
    std::ostringstream out;
    notes_.str("");
    runScan(options_, out, notes_, false);
    return out.str();
  }

  /// Why the scan was refused.
  std::string refusal() {
    try {
      return "not refused: " + scan();
    } catch (const std::exception &error) {
      return error.what();
    }
  }

  void useRoom(const std::string &text) {
    options_.room = folder_.path() + "/room.json";
    testing::writeFile(options_.room, text);
  }

  testing::TemporaryFolder folder_;
  ScanOptions options_;
  std::ostringstream notes_;
};

TEST_F(ScanCommandTest, SavesTheRoomAndSaysSo) {
  const std::string summary = scan();
  const std::string saved = options_.documents + "/model-viewer/My new scan/";
  const std::string room = testing::readFile(options_.room);
  EXPECT_EQ(testing::readFile(saved + "scan.json"), room);
  EXPECT_TRUE(
      summary.starts_with(R"({"room":")" + options_.room + R"(","ios":"18.0","seconds":2,"updates":)"))
      << summary;
  const std::string counts =
      R"("walls":5,"doors":2,"windows":2,"openings":1,"floors":1,"objects":13,"sections":2,"folder":")" +
      options_.documents + R"(/model-viewer/My new scan","files":[{"name":"scan.json","bytes":)" +
      std::to_string(room.size()) + R"(},{"name":"scan.usdz","bytes":)";
  EXPECT_NE(summary.find(counts), std::string::npos) << summary;
  EXPECT_EQ(notes_.str(), "");
}

TEST_F(ScanCommandTest, IsTheScriptThatItPrints) {
  options_.directoryName = "it's";
  options_.scanName = "a \"name\" # \\";
  scan();
  const auto saved = fileSizes(options_.documents);
  ASSERT_EQ(saved.size(), 2U);
  fs::remove_all(options_.documents);
  std::stringstream script(scanScript(options_)), out;
  JsonPrinter printer(out);
  EXPECT_TRUE(Host(printer, options_.documents).runScript(script)) << out.str();
  EXPECT_EQ(fileSizes(options_.documents), saved);
}

TEST_F(ScanCommandTest, NeverTouchesAScanThatExists) {
  scan();
  const auto saved = fileSizes(options_.documents);
  options_.room = VANTOREL_SAMPLES_DIR "/house.json";
  EXPECT_NE(refusal().find("My new scan exists"), std::string::npos);
  EXPECT_EQ(fileSizes(options_.documents), saved);
}

TEST_F(ScanCommandTest, RefusesWhatIsNoRoomBeforeItWritesAnything) {
  const std::string room = testing::readFile(options_.room);
  for (const std::string &text :
       {std::string(), room.substr(0, room.size() / 2), std::string("[]"), "{\"rooms\":[" + room + "]}",
        std::string("{\"version\":2,\"walls\":[7]}")}) {
    useRoom(text);
    const std::string reason = refusal();
    EXPECT_TRUE(reason.starts_with(options_.room + ": line ")) << reason;
    EXPECT_EQ(reason.find('\n'), std::string::npos) << reason;
  }
  options_.room = folder_.path();
  EXPECT_EQ(refusal(), "cannot read " + folder_.path() + ": Is a directory");
  EXPECT_FALSE(fs::exists(options_.documents));
}

TEST_F(ScanCommandTest, WarnsOfAnEmptyRoom) {
  useRoom(R"({"version":2,"doors":[],"objects":[],"openings":[],"walls":[],"windows":[]})");
  EXPECT_NE(scan().find(R"("files":[{"name":"scan.json","bytes":4}])"), std::string::npos);
  EXPECT_NE(notes_.str().find("warning"), std::string::npos);
}

TEST_F(ScanCommandTest, SaysWhyNothingCouldBeSaved) {
  testing::writeFile(folder_.path() + "/file", "");
  options_.documents = folder_.path() + "/file";
  EXPECT_EQ(refusal().starts_with("not refused"), false);
  EXPECT_EQ(fileSizes(folder_.path()).size(), 1U);
  options_.documents = folder_.path();
  options_.scanName = std::string(300, 'x');
  EXPECT_NE(refusal().find("File name too long"), std::string::npos);
  options_.directoryName = options_.scanName = "";  // there as soon as the device has its documents folder
  options_.documents += "/made";
  EXPECT_NE(refusal().find("exists"), std::string::npos);
}

TEST_F(ScanCommandTest, WritesNothingWhenTheDeviceRefusesTheRoom) {
  options_.seconds = options_.updatesPerSecond = 1000;
  EXPECT_EQ(refusal(), "a scan has at most 100000 updates");
  EXPECT_FALSE(fs::exists(options_.documents));
}

TEST_F(ScanCommandTest, ClearsTheBarBeforeItsSummary) {
  std::ostringstream terminal;
  options_.json = false;
  runScan(options_, terminal, terminal, true);
  EXPECT_NE(terminal.str().find("updates\r\x1b[KScanned "), std::string::npos) << terminal.str();
  EXPECT_TRUE(terminal.str().ends_with(" bytes\n"));
}

}  // namespace
}  // namespace vantorel
