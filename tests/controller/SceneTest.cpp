#include "support/DeviceTest.h"

namespace vantorel::testing {
namespace {

using Scene = DeviceTest;

TEST_F(Scene, NeedsAWindowAndARootController) {
  const struct {
    const char *window;
    bool starts;
    const char *subviews;
  } table[] = {
      {"full", true, R"(["controller","host"])"},
      {"bare", false, R"(["controller","host"])"},
      {"empty", true, R"(["controller"])"},
      {"none", false, "[]"},
  };
  for (const auto &row : table) {
    powerCycle();
    option("window", row.window);
    initializeVTL();
    EXPECT_EQ(heard(), Lines()) << "the set-up is queued";
    advance();
    EXPECT_EQ(heard(), row.starts ? Lines{"main VTLDidStart"} : Lines()) << row.window;
    EXPECT_EQ(state("isPresent"), row.starts ? "true" : "false");
    EXPECT_EQ(state("rootViewController"), row.starts ? "\"UIViewController\"" : "null");
    EXPECT_EQ(state("renderThreads"), row.starts ? "1" : "0");
    EXPECT_EQ(state("window.subviews"), row.subviews) << row.window;
  }
}

TEST_F(Scene, InitializesOnceWhilePresentAndAgainAfterADispose) {
  initializeVTL();
  initializeVTL();
  disposeVTL();
  initializeVTL();
  advance();
  EXPECT_EQ(heard(), (Lines{"main VTLDidStart", "main VTLDidEnd", "main VTLDidStart"}));
  EXPECT_EQ(state("renderThreads"), "1");
  disposeVTL();
  advance(1);
  EXPECT_EQ(state("renderThreads"), "0");
  EXPECT_EQ(state("window.subviews"), R"(["controller","host"])")
      << "the view stays; added again, it moved to the front and was exchanged again";
}

TEST_F(Scene, LeavesTheWindowToAHostThatRenders) {
  isVTLCustomXREnabled(1);
  initializeVTL();
  advance();
  EXPECT_EQ(heard(), Lines{"main VTLDidStart"});
  EXPECT_EQ(state("isPresent"), "true");
  EXPECT_EQ(state("window.subviews"), R"(["host"])");
  EXPECT_EQ(state("renderThreads"), "0");
  EXPECT_EQ(state("displayLink"), "null");
}

TEST_F(Scene, PreparesResourcesAndForgetsThem) {
  const std::string fresh = state(nullptr);
  prepareVTLResources();
  EXPECT_EQ(state(nullptr), fresh);

  initialize();
  start();
  EXPECT_NE(state("sceneView"), "null");
  const std::string onScreen = state("view.subviews");
  isVTLCustomXREnabled(1);
  prepareVTLResources();
  EXPECT_NE(state("sceneView"), "null") << "nothing happens for a host that renders";
  isVTLCustomXREnabled(0);
  prepareVTLResources();
  EXPECT_EQ(state("sceneView"), "null");
  EXPECT_EQ(state("roomCaptureView"), "null");
  EXPECT_EQ(state("view.subviews"), onScreen) << "the live view stays, and nobody holds it";
}

TEST_F(Scene, OpensTheWayToTheCameraUnlessTheHostRenders) {
  const char *kLink = R"({"mode":"common","minimum":10,"maximum":59,"preferred":0,"framesPerSecond":59})";
  const struct {
    const char *name, *fresh, *initialized, *forAHostThatRenders;
  } table[] = {
      {"window.isClear", "false", "true", "false"},
      {"rootView.isTransparent", "false", "true", "false"},
      {"view.ignoresTouches", "false", "true", "true"},
      {"displayLink.settings", "null", kLink, "null"},
      {"navigationController.dismissals", "0", "0", "0"},
  };
  for (const auto &row : table) EXPECT_EQ(state(row.name), row.fresh) << row.name;
  initialize();
  for (const auto &row : table) EXPECT_EQ(state(row.name), row.initialized) << row.name;
  disposeVTL();
  EXPECT_EQ(state("navigationController.dismissals"), "0") << "it is queued";
  advance();
  EXPECT_EQ(state("navigationController.dismissals"), "1");

  powerCycle();
  isVTLCustomXREnabled(1);
  initialize();
  for (const auto &row : table) EXPECT_EQ(state(row.name), row.forAHostThatRenders) << row.name;
}

TEST_F(Scene, ShowsEachModeThroughItsOwnViewAndSession) {
  const char *kCamera =
      R"({"frame":[0,0,390,844],"hasSession":true,"hasDelegate":true,"antialiasingMode":0,)"
      R"("automaticallyUpdatesLighting":false,"rendersCameraGrain":false,"rendersMotionBlur":false,)"
      R"("preferredFramesPerSecond":30})";
  const char *kModel = R"({"frame":[0,0,390,844],"isModelEnabled":true,"hasDelegate":true})";
  const char *kNoModel = R"({"frame":[0,0,390,844],"isModelEnabled":false,"hasDelegate":true})";
  const struct {
    const char *ios;
    bool customXR, defaultScan, miniatureModel;
    const char *roomCaptureView, *sceneView, *usesHostARSession, *hasDelegate;
  } table[] = {
      {"18.0", false, false, true, "null", kCamera, "false", "true"},
      {"18.0", false, true, true, kModel, "null", "false", "true"},
      {"18.0", false, true, false, kNoModel, "null", "false", "true"},
      {"18.0", true, true, true, "null", "null", "true", "false"},
      {"16.4", true, true, true, kModel, "null", "false", "true"},
  };
  for (const auto &row : table) {
    powerCycle();
    option("ios", row.ios);
    setVantorelXRSession(vantorelDeviceARSession());
    isVTLCustomXREnabled(row.customXR);
    isVTLDefaultScanEnabled(row.defaultScan);
    isVTLDefaultMiniatureModelEnabled(row.miniatureModel);
    initialize();
    start();
    SCOPED_TRACE(std::string(row.roomCaptureView) + " on iOS " + row.ios);
    EXPECT_EQ(state("roomCaptureView.settings"), row.roomCaptureView);
    EXPECT_EQ(state("sceneView.settings"), row.sceneView);
    EXPECT_EQ(state("captureSession.usesHostARSession"), row.usesHostARSession);
    EXPECT_EQ(state("arSession.hasDelegate"), row.hasDelegate);
  }
}

}  // namespace
}  // namespace vantorel::testing
