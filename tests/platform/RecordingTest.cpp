#include "platform/simulated/Recording.h"
#include "platform/simulated/RecordingWriter.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"
#include "support/RecordingText.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::Runs;
using testing::written;

const std::string kRoom =
    R"("room":{"doors":[],"objects":[],"openings":[],"version":2,"walls":[],"windows":[]}})";

std::string poseAt(int x) { return "[1,0,0,0,0,1,0,0,0,0,1,0," + std::to_string(x) + ",0,0,1]"; }

std::string recording(const std::string &lines) { return std::string(kRecordingHeader) + "\n" + lines; }

TEST(Recording, ComesBackAsItWasWritten) {
  const std::string model =
      R"("room":{"coreModel":"a\/b","doors":[],"identifier":)"
      R"("00000000-0000-0000-0000-000000000009","objects":[],"openings":[],"version":2,)"
      R"("walls":[],"windows":[]}})";
  const std::string text = recording(
      R"({"time":0,"event":"run","camera":)" + poseAt(1) + R"(}
{"time":1e-09,"event":"update","identifier":"00000000-0000-0000-0000-000000000001",)" +
      model + "\n" + R"({"time":0.1,"event":"update","camera":)" + poseAt(2) + R"(,"sameCoreModel":true,)" +
      kRoom + "\n" + R"({"time":0.1,"event":"update","identifier":"00000000-0000-0000-0000-000000000002",)" +
      kRoom + R"(
{"time":0.100000001,"event":"instruction","name":"other"}
{"time":3599.999999999,"event":"end","sent":true,"description":"a \"lost\" phone"}
{"time":3600,"event":"instruction","sent":true,"name":"lowTexture"}
{"time":3600,"event":"end","sent":true,"atOnce":true,"description":null}
{"time":0,"event":"run"}
{"time":0,"event":"run"}
{"time":0,"event":"instruction","sent":true,"atOnce":true,"name":"normal"}
{"time":1.001,"event":"update","identifier":"00000000-0000-0000-0000-000000000002","sameCoreModel":true,)" +
      kRoom + "\n");
  const Runs runs = readRecording(text);
  EXPECT_EQ(written(runs), text);
  std::string longer = text;
  const std::string same = R"("sameCoreModel":true,"room":{)";
  longer.replace(longer.find(same), same.size(), R"("room":{"coreModel":"a\/b",)");
  EXPECT_EQ(written(readRecording(longer)), text) << "an equal coreModel is written twice";
  const Playback::Step end{.event = Playback::End{"\xFF"}};
  EXPECT_NE(RecordingWriter().eventLine(end, {}, {}).find("\xEF\xBF\xBD"), text.npos) << "not UTF-8";
  ASSERT_EQ(runs.size(), 3U);
  const auto first = runs[0]->seenAt(0).room, second = runs[0]->seenAt(1).room;
  EXPECT_EQ(second->coreModel, first->coreModel) << "shared, not copied";
  EXPECT_EQ(runs[0]->cameraAt(99'999'999).at(3, 0), 1);
  EXPECT_EQ(runs[0]->cameraAt(100'000'000).at(3, 0), 2);
  EXPECT_EQ(runs[0]->cameraAt(3'600'000'000'000).at(3, 0), 2) << "a pose holds";
  EXPECT_EQ(runs[1]->cameraAt(0), kCameraAtOrigin) << "until the next run";
  EXPECT_EQ(runs[2]->steps()[1].due, 1'001'000'000) << "rounded, not cut";
}

TEST(Recording, MayBeWrittenByOthers) {
  const Runs runs = readRecording(
      std::string(
          "\xEF\xBB\xBF{\"version\":1.0,\"format\":\"vantorel-recording\",\"by\":[1]}\r\n"
          "{\"later\":{\"a\":[null]},\"event\":\"instruction\",\"time\":0,\"name\":\"MoveAwayFromWall\"}\r\n "
          "\t\n") +
      R"({"time":1,"event":"update","sameCoreModel":false,)" + kRoom + R"(
{"time":1,"event":"instruction","name":"slowUp"}
{"time":2,"event":"update","identifier":"00000000-0000-0000-0000-000000000001",)" +
      kRoom + R"(
{"time":2,"event":"end"}
{"time":0,"event":"run"}
{"time":0,"event":"update",)" +
      kRoom);
  ASSERT_EQ(runs.size(), 2U);
  ASSERT_EQ(runs[0]->steps().size(), 5U);
  EXPECT_EQ(std::get<Instruction>(runs[0]->steps()[0].event), Instruction::moveAwayFromWall);
  EXPECT_EQ(std::get<Instruction>(runs[0]->steps()[2].event), Instruction::other);
  EXPECT_FALSE(std::get<Playback::End>(runs[0]->steps()[4].event).description);
  const auto [room, identifier] = runs[0]->seenAt(1);
  EXPECT_EQ(identifier, identifierOf(*room)) << "where nobody named one";
  EXPECT_EQ(runs[1]->seenAt(0).identifier, identifier) << "a name outlives its run";
}

TEST(Recording, IsRefusedWithTheFirstThingThatIsWrong) {
  const std::string header =
      "line 1, column 1: expected a recording, which begins with " + std::string(kRecordingHeader);
  const std::string event = "{\"time\":5,\"event\":\"instruction\",\"name\":\"normal\"}\n";
  const std::pair<std::string, std::string> table[] = {
      {"", header},
      {"\n" + recording(event), header},
      {R"({"doors":[]})", header},
      {R"({"format":"vantorel-recording"})", header},
      {R"({"format":"vantorel-recording","version":2})",
       "line 1, column 1 (version): expected 1, got 2, which this version cannot play"},
      {recording(""), "line 1, column 1: the recording ends without an event"},
      {recording(R"({"time":0,"event":"run"})"), "line 2, column 1: the recording ends without an event"},
      {recording("{\"time\":5}"), "line 2, column 1: the key \"event\" is missing"},
      {recording(event + "[]"), "line 3, column 1: expected an event, which is an object, got an array"},
      {recording(R"({"time":5,"event":"jump"})"),
       "line 2, column 1 (event): expected run, update, instruction or end"},
      {recording(event + R"({"time":4.5,"event":"end"})"),
       "line 3, column 1 (time): goes back from 5 to 4.5"},
      {recording(R"({"time":-1,"event":"end"})"), "line 2, column 1 (time): expected 0 to 3600 seconds"},
      {recording(R"({"time":3600.1,"event":"end"})"), "line 2, column 1 (time): expected 0 to 3600 seconds"},
      {recording(event + R"({"time":1,"event":"run"})"), "line 3, column 1 (time): a run begins at 0"},
      {recording(R"({"time":5,"event":"instruction"})"),
       "line 2, column 1 (name): an instruction needs the name of a case, as \"moveCloseToWall\""},
      {recording(R"({"time":5,"event":"update"})"), "line 2, column 1: an update needs the key \"room\""},
      {recording(R"({"time":5,"event":"update","room":{"version":2,"walls":[{}]}})"),
       "line 2, column 57 (room.walls[0]): the key \"category\" is missing"},
      {recording(R"({"time":5,"event":"update","sameCoreModel":true,)" + kRoom),
       "line 2, column 1 (sameCoreModel): no update before has a coreModel"},
      {recording(R"({"time":5,"event":"update","sameCoreModel":true,"room":{"coreModel":"YQ==","doors":[],)"
                 R"("objects":[],"openings":[],"version":2,"walls":[],"windows":[]}})"),
       "line 2, column 1 (sameCoreModel): the room has a coreModel of its own"},
      {recording(R"({"time":5,"event":"end","camera":[1]})"),
       "line 2, column 34 (camera): expected 16 numbers, got 1"},
      {recording(R"({"time":5,"event":"end","atOnce":true})"),
       "line 2, column 1 (atOnce): the line before has another time"},
  };
  for (const auto &[text, message] : table) {
    try {
      readRecording(text);
      ADD_FAILURE() << "not refused: " << text;
    } catch (const RoomReadError &error) {
      EXPECT_EQ(error.what(), message) << text;
    }
  }
}

}  // namespace
}  // namespace vantorel
