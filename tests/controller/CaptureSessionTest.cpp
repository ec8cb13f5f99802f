#include "controller/VTLViewController.h"
#include "support/DeviceTest.h"

#include <cstdlib>
#include <functional>

namespace vantorel::testing {
namespace {

enum class Mode { cameraView, scanView, customXR };

constexpr const char *kTrackingFailure = "World tracking failure";

class CaptureSession : public DeviceTest {
 protected:
  /// On this system, present, with the views of that mode.
  static void setUp(const char *ios, Mode mode) {
    option("ios", ios);
    isVTLDefaultScanEnabled(mode == Mode::scanView);
    isVTLCustomXREnabled(mode == Mode::customXR);
    if (mode == Mode::customXR) setVantorelXRSession(vantorelDeviceARSession());
    initialize();
  }
  /// Which view the controller holds.
  static std::string view() {
    const bool hasScanView = state("roomCaptureView") != "null", hasCameraView = state("sceneView") != "null";
    return std::string(hasScanView ? "scan view" : "") + (hasCameraView ? "camera view" : "");
  }
};

// ---- The state table ----

struct Operation {
  const char *name;
  std::function<void()> run;
  const char *to[4];  ///< from each of kStates
  Lines lines;
  bool isGuarded = true;  ///< does nothing while idle
  bool needsIOS17 = false;
};

const char *const kStates[] = {"idle", "scanning running", "paused running", "scanning"};

const Operation kOperations[] = {
    {"startCaptureSession",
     startCaptureSession,
     {"scanning running", "scanning running", "scanning running", "scanning running"},
     {"main VTLCaptureSessionDidStart"},
     false},
    {"stopCaptureSession",
     stopCaptureSession,
     {"idle", "idle", "idle", "idle"},
     {"main VTLCaptureSessionDidEnd"}},
    {"stopCaptureSessionWithPause(1)",
     [] { stopCaptureSessionWithPause(1); },
     {"idle", "scanning", "paused", "scanning"},
     {},
     true,
     true},
    {"stopCaptureSessionWithPause(0)",
     [] { stopCaptureSessionWithPause(0); },
     {"idle", "scanning", "paused", "scanning"},
     {},
     true,
     true},
    {"runCaptureSession",
     runCaptureSession,
     {"idle", "scanning running", "scanning running", "scanning running"},
     {},
     true,
     true},
    {"createNewRoomCaptureSession",
     createNewRoomCaptureSession,
     {"idle", "scanning running", "scanning running", "scanning running"},
     {},
     true,
     true},
    {"pauseCaptureSessionScanning",
     pauseCaptureSessionScanning,
     {"idle", "paused running", "paused running", "paused"},
     {}},
    {"resumeCaptureSessionScanning",
     resumeCaptureSessionScanning,
     {"idle", "scanning running", "scanning running", "scanning"},
     {}},
    {"disposeVTL", disposeVTL, {"idle", "idle", "idle", "idle"}, {"main VTLDidEnd"}, false},
    {"the end of a session that lost its tracking",
     [] { std::free(vantorelDeviceDeliverEnd(kTrackingFailure)); },
     {"scanning running", "scanning running", "scanning running", "scanning running"},
     {"delegate console There was an error in the Apple RoomCaptureSession form!",
      "delegate console RSError: kRSError_Runtime_DriftDetection: 4", "delegate console Session reloaded!"},
     false},
};

TEST_F(CaptureSession, FollowsTheStateTable) {
  for (const char *ios : {"16.4", "17.0", "18.0"}) {
    for (const Mode mode : {Mode::cameraView, Mode::scanView, Mode::customXR}) {
      for (const Operation &operation : kOperations) {
        const bool isOld = ios[1] == '6';
        for (std::size_t from = 0; from < (isOld ? 3 : 4); ++from) {
          SCOPED_TRACE(std::string(operation.name) + " from " + kStates[from] + " on iOS " + ios + ", mode " +
                       std::to_string(static_cast<int>(mode)));
          powerCycle();
          setUp(ios, mode);
          start();
          if (from == 0) stopCaptureSession();
          if (from == 2) pauseCaptureSessionScanning();
          if (from == 3) stopCaptureSessionWithPause(0);
          advance();
          heard();
          ASSERT_EQ(phase(), kStates[from]);

          operation.run();
          advance();

          const bool isRefused = isOld && operation.needsIOS17;
          const bool isIdle = from == 0 && operation.isGuarded;
          EXPECT_EQ(phase(), isRefused ? kStates[from] : operation.to[from]);
          EXPECT_EQ(heard(), isIdle ? Lines() : isRefused ? Lines{kNeedsIOS17Line} : operation.lines);
        }
      }
    }
  }
}

// ---- Views ----

TEST_F(CaptureSession, BuildsOneViewByModeAndRemovesIt) {
  const struct {
    const char *ios;
    Mode mode;
    const char *view, *afterStop;
  } table[] = {
      {"18.0", Mode::cameraView, "camera view", ""},
      {"18.0", Mode::scanView, "scan view", ""},
      {"18.0", Mode::customXR, "", ""},
      // Before iOS 17 the mode is ignored where views are built, but not where they are removed.
      {"16.4", Mode::customXR, "camera view", "camera view"},
  };
  for (const auto &row : table) {
    powerCycle();
    setUp(row.ios, row.mode);
    start();
    EXPECT_EQ(view(), row.view);
    stopCaptureSession();
    EXPECT_EQ(view(), row.afterStop);
  }
}

TEST_F(CaptureSession, StopAndDisposeChooseTheViewByTheModeOfThatMoment) {
  for (const auto leave : {stopCaptureSession, disposeVTL}) {
    powerCycle();
    setUp("18.0", Mode::scanView);
    start();
    isVTLDefaultScanEnabled(0);
    leave();
    advance();
    EXPECT_EQ(view(), "scan view");
    EXPECT_EQ(state("view.subviews"), R"(["roomCaptureView"])");
    isVTLDefaultScanEnabled(1);
    start();
    leave();
    advance();
    EXPECT_EQ(view(), "");
    EXPECT_EQ(state("view.subviews"), R"(["roomCaptureView"])") << "nobody holds the first view any more";
  }
}

TEST_F(CaptureSession, BuildsASecondViewBehindTheFirstWhenStartedTwice) {
  setUp("18.0", Mode::scanView);
  start();
  isVTLDefaultScanEnabled(0);
  startCaptureSession();
  EXPECT_EQ(heard(), Lines{"main VTLCaptureSessionDidStart"});
  EXPECT_EQ(state("view.subviews"), R"(["sceneView","roomCaptureView"])");
}

TEST_F(CaptureSession, MakesASessionForTheScanViewButNoneForTheCameraView) {
  for (const bool scanViewAgain : {true, false}) {
    powerCycle();
    setUp("18.0", Mode::scanView);
    std::free(vantorelDeviceSetRoom(sampleRooms().at(0).c_str(), 2, 10));
    start();
    isVTLDefaultScanEnabled(scanViewAgain);
    start();
    advance(3);
    // The room goes on in the first session, unless that is the one that the second start ran anew.
    EXPECT_EQ(!snapshots().empty(), scanViewAgain);
  }
}

// Which session it is shows only from inside.
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

TEST_F(CaptureSession, HidesTheCoachingOverlayByItsPlace) {
  const struct {
    const char *subviews;
    int coaching;
    const char *shown;
  } table[] = {
      {"2", 1, R"(["subview 0","subview 1"])"},
      {"2", 0, R"_(["subview 0","subview 1 (hidden)"])_"},
      {"3", 0, R"_(["subview 0","subview 1 (hidden)","subview 2"])_"},
      {"1", 0, R"(["subview 0"])"},
      {"0", 0, "[]"},
  };
  for (const auto &row : table) {
    powerCycle();
    setUp("18.0", Mode::scanView);
    option("coaching", row.subviews);
    isVTLCoachingEnabled(static_cast<vantorelBool>(row.coaching));
    start();
    EXPECT_EQ(state("roomCaptureView.subviews"), row.shown);
    EXPECT_EQ(state("roomCaptureSessionConfig.isCoachingEnabled"), row.coaching ? "true" : "false");
    stopCaptureSession();
    isVTLDefaultScanEnabled(0);
    isVTLCoachingEnabled(!row.coaching);
    start();
    EXPECT_EQ(state("roomCaptureSessionConfig.isCoachingEnabled"), row.coaching ? "true" : "false")
        << "the camera view leaves the configuration alone";
  }
}

// ---- Rooms ----

TEST_F(CaptureSession, CollectsTheTextOfEachRoomThatIsClosed) {
  initialize();
  start();
  update(walledRoom(1));
  advance();
  const std::string first = state("roomFinalStringResults");
  createNewRoomCaptureSession();
  EXPECT_EQ(state("roomFinalStringResults"), R"("")");
  update(walledRoom(2));
  advance();
  const std::string second = state("roomFinalStringResults");
  stopCaptureSessionWithPause(1);
  stopCaptureSessionWithPause(1);  // nothing came in between
  const std::string rooms = "[" + first + "," + second + R"(,""])";
  EXPECT_EQ(state("capturedRoomsData"), rooms);

  runCaptureSession();
  end(kTrackingFailure);
  EXPECT_EQ(state("capturedRoomsData"), rooms) << "a reload keeps them";
  disposeVTL();
  advance();
  EXPECT_EQ(state("capturedRoomsData"), rooms) << "and so does a dispose";
  initialize();
  start();
  EXPECT_EQ(state("capturedRoomsData"), "[]") << "a start does not";
  createNewRoomCaptureSession();
  EXPECT_EQ(state("capturedRoomsData"), R"([""])");
  stopCaptureSession();
  EXPECT_EQ(state("capturedRoomsData"), "[]") << "nor does a stop";
}

TEST_F(CaptureSession, KeepsTheLastRoomThroughStopAndStart) {
  initialize();
  start();
  update(walledRoom(1));
  advance();
  const std::string room = state("finalResults"), text = state("roomFinalStringResults");
  EXPECT_NE(room, "null");
  stopCaptureSession();
  EXPECT_EQ(state("finalResults") + state("roomFinalStringResults"), room + text);
  start();
  EXPECT_EQ(state("finalResults") + state("roomFinalStringResults"), room + text);
}

// ---- Dispose ----

TEST_F(CaptureSession, DisposesTwiceAndWhileScanning) {
  initialize();
  start();
  disposeVTL();
  disposeVTL();
  advance();
  EXPECT_EQ(heard(), (Lines{"main VTLDidEnd", "main VTLDidEnd"}));
  EXPECT_EQ(phase(), "idle");
  EXPECT_EQ(state("isPresent"), "false");
  EXPECT_EQ(state("displayLink"), R"("CADisplayLink")") << "invalidated but kept";
  EXPECT_EQ(view(), "");
}

TEST_F(CaptureSession, DisposesAHostThatRendersWithoutAnyInitialize) {
  isVTLCustomXREnabled(1);  // then there is no display link to miss
  disposeVTL();
  advance();
  EXPECT_EQ(heard(), Lines{"main VTLDidEnd"});
}

}  // namespace
}  // namespace vantorel::testing
