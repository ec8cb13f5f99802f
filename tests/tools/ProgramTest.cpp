// The built program as a shell meets it: exit codes, and what it leaves behind.
#include "support/TestData.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>

namespace vantorel::testing {
namespace {

namespace fs = std::filesystem;

class Program : public ::testing::Test {
 protected:
  /// Runs it with `arguments` in a shell; standard output and error land in `said`.
  int run(const std::string &arguments, const std::string &before = "") {
    const std::string log = folder_.path() + "/log";
    const std::string command = before + "TMPDIR=" + temporary() + " " + VANTOREL_BINARY_DIR +
                                "/bin/vantorel " + arguments + " >" + log + " 2>&1";
    const int status = std::system(command.c_str());
    said = readFile(log);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::string temporary() const {
    fs::create_directories(folder_.path() + "/tmp");
    return folder_.path() + "/tmp";
  }
  std::string out() const { return folder_.path() + "/out"; }
  std::string sample() const { return sampleRooms().at(0); }

  std::string said;

 private:
  TemporaryFolder folder_;
};

TEST_F(Program, ExitsWith2AtWrongUsage) {
  for (const char *arguments : {"", "scan room.json --seconds", "host a b"})
    EXPECT_EQ(run(arguments), 2) << arguments << '\n' << said;
  EXPECT_EQ(run("scan " + sample() + " --scan ../x --out " + out()), 2) << said;
  EXPECT_FALSE(fs::exists(out()));
}

TEST_F(Program, ExitsWith1AtWhatItRefuses) {
  EXPECT_EQ(run("host /nowhere.vtl"), 1) << said;
  EXPECT_EQ(run("scan /nowhere.json --out " + out()), 1) << said;
  EXPECT_FALSE(fs::exists(out()));
  EXPECT_EQ(run("host", "echo nonsense | "), 1) << said;
}

TEST_F(Program, ExitsWith0WhenDone) {
  EXPECT_EQ(run("--version"), 0);
  EXPECT_EQ(said, "Vantorel 1.3.0\n");
  EXPECT_EQ(run("scan --help"), 0);
  EXPECT_EQ(run("scan " + sample() + " --out " + out()), 0) << said;
  EXPECT_EQ(readFile(out() + "/model-viewer/My new scan/scan.json"), readFile(sample()));
  EXPECT_EQ(run("scan " + sample() + " --out " + out()), 1) << "saved over a scan";
}

TEST_F(Program, DrawsPlansAndSlimsScans) {
  fs::create_directories(out());
  const std::string slim = out() + "/slim.json", plan = out() + "/plan.svg", other = out() + "/other.svg";
  EXPECT_EQ(run("slim " + sample() + " -o " + slim), 0) << said;
  EXPECT_EQ(said, "");
  EXPECT_LT(fs::file_size(slim), fs::file_size(sample()));
  EXPECT_EQ(run("plan " + slim + " --feet -o " + plan), 0) << said;
  EXPECT_EQ(readFile(plan).find("lengths in metres"), std::string::npos);
  EXPECT_EQ(run("scan " + slim + " --plan " + plan + " --out " + out()), 0) << said;
  EXPECT_EQ(run("plan " + slim), 0);
  EXPECT_TRUE(readFile(plan) == said) << "the same plan wherever it goes";
  EXPECT_EQ(run("plan " + slim + " -o /nowhere/x.svg"), 1) << said;
  EXPECT_EQ(run("plan /nowhere.json -o " + other), 1) << said;
  EXPECT_EQ(run("plan " + slim + " -o " + slim), 1) << said;
  EXPECT_EQ(run("slim " + slim), 0) << "the scan is still one";
  EXPECT_EQ(run("slim " VANTOREL_SOURCE_DIR "/README.md -o " + other), 1) << said;
  EXPECT_NE(said.find("README.md: line 1, column 1"), std::string::npos) << said;
  EXPECT_FALSE(fs::exists(other));
}

TEST_F(Program, RemovesItsTemporaryDocuments) {
  EXPECT_EQ(run("host", "printf 'trySaveRoomPlanExperience a b\\nfiles\\n' | "), 0) << said;
  EXPECT_NE(said.find("a/b/scan.json"), std::string::npos) << said;
  EXPECT_TRUE(fs::is_empty(temporary()));
}

TEST_F(Program, GoesOnInANewProcessWhereAWorldMapLeftOff) {
  const std::string commands = "initializeVTL\nadvance 0\ntrySaveRoomPlanExperience maps WorldMap\n";
  writeFile(out() + ".stop", commands + "device room '" + sample() + "' 2\nstartCaptureSession\nsettle\n" +
                                 "stopCaptureSessionWithARWorldMap '" + out() + "/maps/'\nsettle\n");
  EXPECT_EQ(run("host " + out() + ".stop --out " + out()), 0) << said;
  writeFile(out() + ".start", commands + "startCaptureSessionWithARWorldMap '" + out() +
                                  "/maps/WorldMap/scan'\nadvance 1\nstate isScanning\nadvance 1\n" +
                                  "device update '" + sample() + "'\nadvance 0\nstate arSession.space\n" +
                                  "saveRoomPlanExperience scans resumed\n");
  EXPECT_EQ(run("host " + out() + ".start --json --out " + out()), 0) << said;
  EXPECT_NE(said.find(R"("name":"isScanning","value":false)"), std::string::npos) << said;
  EXPECT_NE(said.find(R"("value":"Worker task ending")"), std::string::npos) << said;
  EXPECT_EQ(readFile(out() + "/scans/resumed/scan.json"), readFile(sample()));

  fs::remove_all(out() + "/maps");
  EXPECT_EQ(run("host " + out() + ".start --json --out " + out()), 1) << "there is no session to update";
  EXPECT_NE(said.find("AR World Map Data loading error."), std::string::npos) << said;
  writeFile(out() + ".fatal",
            "startCaptureSession\nadvance 0\nstopCaptureSessionWithARWorldMap /nowhere/\nsettle\n");
  EXPECT_NE(run("host " + out() + ".fatal"), 0);
  EXPECT_NE(said.find("Can't write to url"), std::string::npos) << said;
  EXPECT_TRUE(fs::is_empty(temporary())) << "an abort leaves its temporary documents";
}

}  // namespace
}  // namespace vantorel::testing
