// Objects of two languages that come and go at the worst of times; what is wrong here, sanitizers find.
#include "platform/Platform.h"
#include "platform/apple/Border.h"
#include "support/DeviceTest.h"

extern "C" {
int standin_scan_views_asked();
bool standin_has_scene_view();
void standin_set_scene_view(bool isThere);
void standin_archive_no_map(const char *path);
}

namespace vantorel::testing {
namespace {

/// Drops its session in the middle of the first update.
struct Dropper : RoomCaptureSessionDelegate {
  std::shared_ptr<RoomCaptureSession> session;
  int updates = 0, others = 0;

  void captureSessionDidStart(std::shared_ptr<RoomCaptureSession>) override { ++others; }
  void captureSessionDidUpdate(std::shared_ptr<CapturedRoom> room) override {
    ++updates;
    session.reset();
    EXPECT_FALSE(room->jsonText().empty());
  }
  void captureSessionDidAdd(std::shared_ptr<CapturedRoom>) override { ++others; }
  void captureSessionDidChange(std::shared_ptr<CapturedRoom>) override { ++others; }
  void captureSessionDidRemove(std::shared_ptr<CapturedRoom>) override { ++others; }
  void captureSessionDidProvide(Instruction) override { ++others; }
  void captureSessionDidEnd(std::optional<std::string>) override { ++others; }
};

class Lifetime : public DeviceTest {
 protected:
  static void scan(double seconds) {
    const auto sample = sampleRooms().front();
    EXPECT_EQ(vantorelDeviceSetRoom(sample.c_str(), seconds, 10), nullptr);
    startCaptureSession();
  }
};

TEST_F(Lifetime, ASessionMayGoInMidEvent) {
  const auto dropper = std::make_shared<Dropper>();
  dropper->session = platform().makeRoomCaptureSession(nullptr);
  dropper->session->setDelegate(dropper);
  EXPECT_EQ(vantorelDeviceSetRoom(sampleRooms().front().c_str(), 1, 10), nullptr);
  dropper->session->run({});
  advance(1);
  EXPECT_EQ(dropper->updates, 1);
  EXPECT_EQ(dropper->session, nullptr);
}

TEST_F(Lifetime, ADelegateMayGoBeforeItsSession) {
  auto dropper = std::make_shared<Dropper>();
  const auto session = platform().makeRoomCaptureSession(nullptr);
  session->setDelegate(dropper);
  session->run({});
  const std::weak_ptr<Dropper> gone = dropper;
  dropper.reset();
  EXPECT_TRUE(gone.expired());
  advance(1);
}

TEST_F(Lifetime, NothingIsHeardAfterDispose) {
  initialize();
  scan(2);
  advance(0.55);
  disposeVTL();
  advance();
  heard();
  advance(3);
  EXPECT_EQ(heard(), Lines{});
}

TEST_F(Lifetime, ThePowerMayGoInTheMiddleOfEverything) {
  for (const double seconds : {0.0, 0.05, 0.6, 1.2}) {
    initialize();
    mergeScans(readFile(sampleRooms().front()).c_str(), "merged", "a");
    startScreenRecorderVTL();
    scan(1);
    advance(seconds);
    stopCaptureSessionWithARWorldMap(file("").c_str());
    powerCycle();
    advance(2);
    EXPECT_EQ(heard(), Lines{});
  }
}

TEST_F(Lifetime, TheScanViewShowsNoResultOfItsOwn) {
  initialize();
  isVTLDefaultScanEnabled(1);
  const int before = standin_scan_views_asked();
  for (int scans = 1; scans <= 2; ++scans) {
    start();
    runCaptureSession();
    end(nullptr);
    advance();
    EXPECT_EQ(standin_scan_views_asked(), before + scans);
    stopCaptureSession();
    advance();
  }
}

TEST_F(Lifetime, TheSceneViewIsReadAndWrittenByName) {
  initialize();
  EXPECT_FALSE(standin_has_scene_view());
  start();
  EXPECT_TRUE(standin_has_scene_view());
  prepareVTLResources();
  EXPECT_FALSE(standin_has_scene_view()) << "though it is on the screen";
  standin_set_scene_view(true);
  EXPECT_EQ(state("sceneView"), R"("ARSCNView")");
  stopCaptureSession();
  EXPECT_FALSE(standin_has_scene_view());
  standin_set_scene_view(true);
  standin_set_scene_view(false);
  EXPECT_EQ(state("sceneView"), "null");
}

TEST_F(Lifetime, AnArchiveOfSomethingElseHoldsNoMap) {
  initialize();
  standin_archive_no_map(file("other").c_str());
  startCaptureSessionWithARWorldMap(file("other").c_str());
  advance();
  EXPECT_EQ(phase(), "scanning running");
}

TEST(Handles, OfAnotherKindStopTheProcessAndAreNamed) {
  const apple::Handle window(vantorel_swift_first_window());
  ASSERT_TRUE(window);
  EXPECT_DEATH(vantorel_swift_room_is_empty(window.get()), "UIWindow.*CapturedRoom");
}

}  // namespace
}  // namespace vantorel::testing
