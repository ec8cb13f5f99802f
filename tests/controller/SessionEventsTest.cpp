#include "rooms/RoomWriter.h"
#include "support/DeviceTest.h"

#include <functional>

namespace vantorel::testing {
namespace {

const Lines kPublished{"main VTLRoomSnapshot", "main VTLCaptureSessionDidUpdate"};

class SessionEvents : public DeviceTest {
 protected:
  SessionEvents() {
    initialize();
    start();
  }
  Lines published(const RoomDocument &room) {
    update(room);
    EXPECT_EQ(heard(), Lines()) << "the main queue has its say first";
    advance();
    return heard();
  }
};

TEST_F(SessionEvents, PublishesARoomWithAnyOneThingInIt) {
  const RoomDocument one = walledRoom(1);
  const std::function<void(RoomDocument &)> contents[] = {
      [&](RoomDocument &room) { room.walls = one.walls; },
      [&](RoomDocument &room) {
        room.doors = one.walls;
        room.doors[0].category = {"door", true, ""};
      },
      [&](RoomDocument &room) { room.openings = one.walls; },
      [&](RoomDocument &room) { room.windows = one.walls; },
      [&](RoomDocument &room) {
        room.objects.resize(1);
        room.objects[0].category.name = "table";
        room.objects[0].confidence.name = "low";
      },
  };
  for (const auto &fill : contents) {
    RoomDocument room;
    fill(room);
    EXPECT_EQ(published(room), kPublished);
    EXPECT_EQ(snapshots().back(), writeRoom(room));
  }
  EXPECT_EQ(snapshots().size(), 5U);
}

TEST_F(SessionEvents, IgnoresARoomWithNothingOrFloorsAlone) {
  EXPECT_EQ(published(walledRoom(1)), kPublished);
  const std::string before = state(nullptr);
  EXPECT_EQ(published({}), Lines());
  EXPECT_EQ(published(flooredRoom()), Lines());
  EXPECT_EQ(state(nullptr), before);
}

TEST_F(SessionEvents, PublishesEveryUpdateInItsOrder) {
  update(walledRoom(1));
  update(walledRoom(2));
  update(walledRoom(2));
  advance();
  EXPECT_EQ(heard().size(), 6U);
  EXPECT_EQ(snapshots(),
            (Lines{writeRoom(walledRoom(1)), writeRoom(walledRoom(2)), writeRoom(walledRoom(2))}));
}

std::vector<const char *> kept;

TEST_F(SessionEvents, HandsOutACopyThatStaysValid) {
  kept.clear();
  setVTLRoomSnapshot([](const char *text) { kept.push_back(text); });
  update(walledRoom(1));
  update(walledRoom(1));
  advance();
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_NE(kept[0], kept[1]);
  for (const char *text : kept) EXPECT_EQ(taken(const_cast<char *>(text)), writeRoom(walledRoom(1)));
}

TEST_F(SessionEvents, LetsTheHostSaveTheRoomFromInsideItsSnapshot) {
  published(walledRoom(1));
  setVTLRoomSnapshot([](const char *text) {
    taken(const_cast<char *>(text));
    EXPECT_EQ(trySaveRoomPlanExperience("in", "callback"), 1);
  });
  EXPECT_EQ(published(walledRoom(2)), Lines{"main VTLCaptureSessionDidUpdate"});
  EXPECT_EQ(readFile(file("in/callback/scan.json")), writeRoom(walledRoom(2)));
}

TEST_F(SessionEvents, ReadsThePauseFlagWhenTheUpdateArrives) {
  update(walledRoom(1));
  pauseCaptureSessionScanning();
  advance();
  EXPECT_EQ(heard(), kPublished);

  update(walledRoom(2));
  instruction("normal");
  resumeCaptureSessionScanning();
  advance();
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(snapshots().size(), 1U);
  EXPECT_EQ(published(walledRoom(3)), kPublished);
}

TEST_F(SessionEvents, GoesOnWhenARoomCannotBeEncoded) {
  published(walledRoom(1));
  const std::string text = state("roomFinalStringResults"), room = state("finalResults");
  fail("encodeRoom");
  EXPECT_EQ(published(walledRoom(2)), Lines{"main VTLCaptureSessionDidUpdate"});
  EXPECT_EQ(state("roomFinalStringResults"), text);
  EXPECT_NE(state("finalResults"), room) << "the room itself is kept";
}

TEST_F(SessionEvents, ForwardsEachInstructionAsItsWordOnTheDelegateThread) {
  const std::pair<const char *, std::string> table[] = {
      {"moveCloseToWall", "MoveCloseToWall"},
      {"moveAwayFromWall", "MoveAwayFromWall"},
      {"slowDown", "SlowDown"},
      {"turnOnLight", "TurnOnLight"},
      {"normal", "Normal"},
      {"lowTexture", "LowTexture"},
      {"lowTexture", "LowTexture"},  // repeated, forwarded again
      {"aCaseOfALaterSystem", "None"},
  };
  for (const auto &[name, word] : table) {
    instruction(name);
    EXPECT_EQ(heard(), Lines{"delegate VTLCaptureSessionInstruction " + word});
    EXPECT_EQ(state("roomInstructionStringResults"), "\"" + word + "\"");
  }
  isVTLInstructionEnabled(0);
  instruction("normal");
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(state("roomInstructionStringResults"), "\"None\"") << "keeps its last value";
}

TEST_F(SessionEvents, IgnoresEveryEndButALostTracking) {
  for (const char *description :
       {static_cast<const char *>(nullptr), "", "World tracking failure.", "world tracking failure"}) {
    runCaptureSession();
    end(description);
    advance();
    EXPECT_EQ(heard(), Lines());
    EXPECT_EQ(phase(), "scanning") << "the platform's session has stopped and nobody says so";
  }
}

TEST_F(SessionEvents, ReloadsOnTheDelegateThreadAndUnpauses) {
  pauseCaptureSessionScanning();
  end("World tracking failure");
  EXPECT_EQ(heard().size(), 3U);
  EXPECT_EQ(phase(), "scanning running");
}

}  // namespace
}  // namespace vantorel::testing
