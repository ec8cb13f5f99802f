// What the random walk cannot see of a session: which object it is, and what a host does from inside a callback.
#include "controller/VTLViewController.h"
#include "rooms/RoomWriter.h"
#include "support/DeviceTest.h"

#include <filesystem>

namespace vantorel::testing {
namespace {

class CaptureSession : public DeviceTest {
 protected:
  CaptureSession() { initialize(); }
};

TEST_F(CaptureSession, IsMadeOnFirstUseAndReplacedByTheOneThatStarted) {
  const CallbackRegistry nobody;
  const auto controller = std::make_shared<VTLViewController>(platform(), nobody);
  const auto first = controller->session();
  EXPECT_EQ(controller->session(), first);
  controller->createCaptureSession();
  EXPECT_EQ(controller->session(), first) << "the camera view shows the session that is there";

  const auto second = platform().makeRoomCaptureSession(nullptr);
  controller->isCustomXREnabled = true;
  controller->captureSessionDidStart(second);
  EXPECT_EQ(controller->session(), first) << "unless the host renders";
  controller->isCustomXREnabled = false;
  controller->captureSessionDidStart(second);
  EXPECT_EQ(controller->session(), second);
  EXPECT_FALSE(controller->captureViewShouldPresent());
}

std::vector<const char *> kept;

TEST_F(CaptureSession, HandsOutACopyThatStaysValid) {
  kept.clear();
  setVTLRoomSnapshot([](const char *text) { kept.push_back(text); });
  start();
  update(walledRoom(1));
  update(walledRoom(1));
  advance();
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_NE(kept[0], kept[1]);
  for (const char *text : kept) EXPECT_EQ(taken(const_cast<char *>(text)), writeRoom(walledRoom(1)));
}

TEST_F(CaptureSession, LetsTheHostSaveTheRoomFromInsideItsSnapshot) {
  start();
  setVTLRoomSnapshot([](const char *text) {
    taken(const_cast<char *>(text));
    EXPECT_EQ(trySaveRoomPlanExperience("in", "callback"), 1);
  });
  update(walledRoom(2));
  advance();
  EXPECT_EQ(readFile(file("in/callback/scan.json")), writeRoom(walledRoom(2)));
}

std::string stateAtEnd;

TEST_F(CaptureSession, HasEndedWhenTheHostHearsOfIt) {
  setVTLCaptureSessionDidEnd([] { stateAtEnd = phase() + " " + state("view.subviews"); });
  std::filesystem::create_directories(file("WorldMap"));
  for (const bool withMap : {false, true}) {
    stateAtEnd = "";
    start();
    pauseCaptureSessionScanning();
    withMap ? stopCaptureSessionWithARWorldMap(file("").c_str()) : stopCaptureSession();
    advance(0.5);
    EXPECT_EQ(stateAtEnd, "idle []");
  }
}

}  // namespace
}  // namespace vantorel::testing
