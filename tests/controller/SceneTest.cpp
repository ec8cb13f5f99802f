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

}  // namespace
}  // namespace vantorel::testing
