// Scripts that are recorded and played again, by the host as a user has it.
#include "support/TestData.h"
#include "tools/Host.h"
#include "tools/LibraryCalls.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sstream>
#include <sys/resource.h>

namespace vantorel {
namespace {

const std::string kOpening = "initializeVTL\nadvance 0\nisVTLDefaultScanEnabled true\n";
const std::string kSaving = "trySaveRoomPlanExperience d s\nfiles\nstate\n";
const std::string kLost = "device end 'World tracking failure'\n";

class RecordingReplay : public ::testing::Test {
 protected:
  struct Played {
    bool isGood;
    std::string events, recording;
  };

  static Played play(const std::string &text, bool records = true) {
    const testing::TemporaryFolder folder;
    std::stringstream out, script(text);
    JsonPrinter printer(out);
    Host host(printer, folder.path() + "/documents");
    if (records) host.record(folder.path() + "/recording");
    registerCallbacks();
    const bool isGood = host.runScript(script);
    return {isGood, out.str(), records ? testing::readFile(folder.path() + "/recording") : ""};
  }

  std::string file(const std::string &bytes) const {
    testing::writeFile(files_.path() + "/file", bytes);
    return files_.path() + "/file";
  }

  /// The script without what the recording brings, and with the recording in the first place.
  std::string replaying(const std::string &script, const std::string &recording) const {
    std::string replay = "device recording " + file(recording) + "\n";
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) {
      const auto begins = [&](const char *words) { return line.starts_with(words); };
      if (!begins("device room") && !begins("device update") && !begins("device instruction") &&
          !begins("device end"))
        replay += line + "\n";
    }
    return replay;
  }

  void expectSameReplay(const std::string &script) const {
    SCOPED_TRACE(script);
    const Played first = play(script);
    const Played again = play(replaying(script, first.recording));
    EXPECT_TRUE(first.isGood && again.isGood);
    EXPECT_TRUE(first.events == again.events) << first.events.size() << ", then " << again.events.size();
    EXPECT_TRUE(first.recording == again.recording) << "a recording of a replay is the recording";
  }

  testing::TemporaryFolder files_;
};

TEST_F(RecordingReplay, IsTheSessionByteForByte) {
  auto rooms = testing::sampleRooms();
  for (const std::string &room : testing::sharedRooms()) rooms.push_back(room);
  const std::string house = testing::sampleRooms().at(1);
  for (const std::string &path : rooms) {
    const std::string room = "device room '" + path + "' 2.7 3.31\n";
    expectSameReplay(kOpening + room + "startCaptureSession\nadvance 1\npauseCaptureSessionScanning\n" +
                     "advance 0.45\nresumeCaptureSessionScanning\n" + kLost + "settle\n" + kSaving);
  }
  const std::string room = "device room '" + rooms.at(0) + "' 4\n";
  expectSameReplay("isVTLCoachingEnabled false\n" + kOpening + room +
                   "startCaptureSession\nadvance 2\ndevice instruction slowDown\nsettle\n" + kSaving);
  expectSameReplay(
      kOpening + room + "startCaptureSession\nadvance 2\ncreateNewRoomCaptureSession\nadvance 1\n" +
      "device room '" + house + "' 3\ncreateNewRoomCaptureSession\nadvance 1\ndevice update '" + house +
      "'\ndevice instruction normal\nadvance 0\ndevice end 'Some other'\nadvance 0.5\n" +
      "runCaptureSession\nsettle\ndevice end\n" + room + "runCaptureSession\nsettle\n" + kSaving);
  expectSameReplay(kOpening + "startCaptureSession\nadvance 1\ndevice update '" + house + "'\n" + kLost +
                   "device instruction lowTexture\nadvance 1\ndisposeVTL\nadvance 0\n");
}

TEST_F(RecordingReplay, HoldsOnlyWhatHappensInRuns) {
  const auto linesOf = [](const std::string &script) {
    const std::string text = play(kOpening + script).recording;
    return std::count(text.begin(), text.end(), '\n');
  };
  EXPECT_EQ(linesOf("device room '" + testing::sampleRooms().at(0) + "' 1\n"), 1) << "the header";
  const std::string events = "device instruction normal\ndevice end\ndevice instruction normal\n";
  EXPECT_EQ(linesOf("startCaptureSession\n" + events + "stopCaptureSession\n" + events + "settle\n"), 4);
}

TEST_F(RecordingReplay, OfNothingIsAnError) {
  const std::string end = R"({"format":"vantorel-recording","version":1})"
                          "\n"
                          R"({"time":1,"event":"end"})";
  const std::string load = "\ndevice recording " + file(end) + "\n";
  const Played unplayed = play(load + kOpening + "startCaptureSession\nadvance 0.9", false);
  EXPECT_FALSE(unplayed.isGood);
  EXPECT_NE(unplayed.events.find("line 2: no event of the recording was played"), std::string::npos);
  EXPECT_TRUE(play(load + kOpening + "startCaptureSession\nadvance 1", false).isGood);
  EXPECT_FALSE(play(load + load + kOpening + "startCaptureSession\nadvance 1", false).isGood);
  const std::string count = "\nstate recording.playedEvents\n";
  EXPECT_NE(play(count, false).events.find("\"value\":null"), std::string::npos);
  EXPECT_NE(play(load + kOpening + "startCaptureSession\nsettle" + count, false).events.find("\"value\":1"),
            std::string::npos);
}

TEST_F(RecordingReplay, IsNotDisturbedByARefusedOne) {
  const std::string room = testing::sampleRooms().at(0);
  const Played played = play(kOpening + "device room '" + room + "' 1\ndevice recording '" + room +
                                 "'\nstartCaptureSession\nsettle\nstate recording.playedEvents\n",
                             false);
  EXPECT_FALSE(played.isGood);
  EXPECT_NE(played.events.find("VTLCaptureSessionDidUpdate"), std::string::npos)
      << "the room is still scanned";
  EXPECT_NE(played.events.find("\"value\":null"), std::string::npos);
}

TEST_F(RecordingReplay, TellsThatTheDiskIsFull) {
  EXPECT_THROW(
      {
        std::stringstream out;
        JsonPrinter printer(out);
        Host(printer, files_.path()).record("/dev/full");
      },
      ScriptError);
  const auto before = std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{.rlim_cur = 3000, .rlim_max = limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const Played played =
      play(kOpening + "device room '" + testing::sampleRooms().at(0) + "' 1\nstartCaptureSession\nsettle\n");
  setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, before);
  EXPECT_FALSE(played.isGood);
  EXPECT_NE(played.events.find("line 6: cannot write the recording"), std::string::npos) << played.events;
}

}  // namespace
}  // namespace vantorel
