// Scripts that are recorded and played again, by the host as a user has it.
#include "platform/simulated/Recording.h"
#include "platform/simulated/SessionRecorder.h"
#include "support/TestData.h"
#include "tools/Host.h"
#include "tools/LibraryCalls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <limits>
#include <sstream>
#include <sys/resource.h>

namespace vantorel {
namespace {

const std::string kOpening = "initializeVTL\nadvance 0\nisVTLDefaultScanEnabled true\n";
const std::string kSaving = "trySaveRoomPlanExperience d s\nfiles\nstate\n";
const std::string kLost = "device end 'World tracking failure'\n";

auto linesIn(const std::string &text) { return std::count(text.begin(), text.end(), '\n'); }

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
    const std::string recording = folder.path() + "/recording";
    return {isGood, out.str(), std::filesystem::exists(recording) ? testing::readFile(recording) : ""};
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
  if (!testing::sharedRooms().empty())
    for (const char *name : {"i16-school-a", "i17-room-small"}) rooms.push_back(testing::sharedRoom(name));
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
  expectSameReplay(kOpening + room + "startCaptureSession\nadvance 1\n" + kLost + kLost + "advance 1\n" +
                   "device room '" + house + "' 1\n" + kLost + "screenshotVTL\nadvance 0\nfiles\n" +
                   "device end\nadvance 1\nrunCaptureSession\nscreenshotVTL\nsettle\nfiles\n");
  const std::string custom = "isVTLCustomXREnabled true\ninitializeVTL\nadvance 0\nstartCaptureSession\n";
  const std::string sent = "advance 1\ndevice instruction normal\n";
  expectSameReplay(custom + sent + sent + "advance 1\n");
  expectSameReplay(custom + sent + "createNewRoomCaptureSession\ndevice instruction normal\nadvance 0\n");
}

TEST_F(RecordingReplay, HoldsOnlyWhatHappensInRuns) {
  const std::string room = "device room '" + testing::sampleRooms().at(0) + "' 1\n";
  EXPECT_EQ(linesIn(play(kOpening + room).recording), 1) << "the header";
  const std::string events = "device instruction normal\ndevice end\ndevice instruction normal\n";
  const std::string runs = "startCaptureSession\n" + events + "stopCaptureSession\n" + events + "settle\n";
  EXPECT_EQ(linesIn(play(kOpening + runs).recording), 4);
}

TEST_F(RecordingReplay, OfNothingIsAnError) {
  const std::string end = std::string(kRecordingHeader) + "\n" + R"({"time":1,"event":"end"})";
  const std::string load = "\ndevice recording " + file(end) + "\n";
  const Played unplayed = play(load + kOpening + "startCaptureSession\nadvance 0.9", false);
  EXPECT_FALSE(unplayed.isGood);
  EXPECT_NE(unplayed.events.find("line 2: no event of the recording was played"), std::string::npos);
  EXPECT_TRUE(play(load + kOpening + "startCaptureSession\nadvance 1", false).isGood);
  EXPECT_FALSE(play(load + load + kOpening + "startCaptureSession\nadvance 1", false).isGood);
  const std::string count = "\nstate recording.playedEvents\n";
  EXPECT_NE(play(count, false).events.find("\"value\":null"), std::string::npos);
  const std::string played = load + kOpening + "startCaptureSession\nsettle\n";
  EXPECT_NE(play(played + count, false).events.find("\"value\":1"), std::string::npos);
  EXPECT_FALSE(play(played + load, false).isGood) << "counts from the recording before";
  const std::string room = "device room '" + testing::sampleRooms().at(0) + "' 1\n";
  EXPECT_FALSE(play(load + kOpening + room + "startCaptureSession\nsettle\n", false).isGood)
      << "a room's events count";
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
        Host(printer, files_.path()).record(files_.path() + "/none/recording");
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
  EXPECT_EQ(played.recording, "") << "half a recording bears the name";
  EXPECT_NE(played.events.find("line 6: cannot write the recording"), std::string::npos) << played.events;
}

TEST_F(RecordingReplay, IsWrittenUpToTheFirstFailure) {
  const std::string path = files_.path() + "/recording";
  SessionRecorder recorder;
  ASSERT_EQ(recorder.start(path), std::nullopt);
  EXPECT_EQ(recorder.start(path), "a recording is under way, to " + path);
  const auto older = recorder.begin({}), run = recorder.begin({});
  recorder.record(older, {.event = Playback::End{}}, {}, {});
  EXPECT_EQ(recorder.end(), std::nullopt);
  EXPECT_EQ(linesIn(testing::readFile(path)), 3) << "an event of a run that is not the last";

  ASSERT_EQ(recorder.start(path), std::nullopt);
  recorder.record(run, {.event = Playback::End{}}, {}, {});
  auto room = std::make_shared<RoomDocument>();
  room->walls.emplace_back().dimensions.x = std::numeric_limits<float>::quiet_NaN();
  recorder.record(recorder.begin({}), {.event = Playback::Update{}}, {}, {room, {}});
  recorder.record(recorder.begin({}), {.event = Playback::End{}}, {}, {});
  EXPECT_NE(recorder.end().value_or("").find("cannot write the recording"), std::string::npos);
  EXPECT_EQ(linesIn(testing::readFile(path + ".part")), 2) << "the header and the run that failed";
}

}  // namespace
}  // namespace vantorel
