#include "platform/simulated/RoomPlayback.h"
#include "platform/simulated/SimulatedARSession.h"
#include "support/DeviceTest.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace vantorel {
namespace {

using Tracking = DeviceTraits::Tracking;

constexpr Scheduler::Time kSecond = Scheduler::kSecond;

class SimulatedARSessionTest : public ::testing::Test {
 protected:
  std::shared_ptr<SimulatedARSession> make() { return std::make_shared<SimulatedARSession>(device); }
  void advance(double seconds) { device.scheduler.advance(static_cast<Scheduler::Time>(seconds * kSecond)); }
  std::shared_ptr<WorldMap> mapAt(float x) {
    Float4x4 camera;
    camera.elements[12] = x;
    return std::make_shared<SimulatedWorldMap>(KnownSpace{mapsSpace, camera}, device.faults);
  }
  void ask(SimulatedARSession &asked) {
    asked.getCurrentWorldMap([this](const std::shared_ptr<WorldMap> &map) {
      EXPECT_EQ(Scheduler::currentRole(), Role::completion);
      answers.push_back(std::dynamic_pointer_cast<SimulatedWorldMap>(map));
    });
  }

  const Uuid mapsSpace = *Uuid::parse("01234567-89AB-CDEF-0123-456789ABCDEF");
  DeviceParts device;
  std::shared_ptr<SimulatedARSession> session = make();
  std::vector<std::shared_ptr<SimulatedWorldMap>> answers;
};

TEST_F(SimulatedARSessionTest, TracksNormallyFromItsFirstFrameOn) {
  EXPECT_EQ(session->tracking(), std::nullopt);
  session->run(nullptr);
  EXPECT_EQ(session->tracking(), std::nullopt);
  EXPECT_FALSE(session->isTrackingNormal() || session->cameraTransform());
  advance(0);
  EXPECT_TRUE(session->isTrackingNormal());
  session->run(nullptr);
  EXPECT_TRUE(session->isTrackingNormal()) << "nothing is reset";
}

TEST_F(SimulatedARSessionTest, FindsItselfInAMapAfterTwoSeconds) {
  session->run(mapAt(7));
  advance(0);
  EXPECT_EQ(session->tracking(), Tracking::limited);
  EXPECT_EQ(session->space(), mapsSpace);
  EXPECT_TRUE(session->hasInitialMap());
  EXPECT_EQ(session->cameraTransform()->at(3, 0), 7);
  advance(1.999);
  EXPECT_FALSE(session->isTrackingNormal());
  advance(0.001);
  EXPECT_TRUE(session->isTrackingNormal());

  session->run(mapAt(8));
  EXPECT_EQ(session->tracking(), Tracking::limited) << "its frames stay";
  EXPECT_EQ(session->cameraTransform()->at(3, 0), 8);
  session->run(nullptr);
  EXPECT_EQ(session->tracking(), Tracking::limited) << "nothing is reset";
  EXPECT_EQ(session->space(), mapsSpace);
  EXPECT_FALSE(session->hasInitialMap());
  advance(2);
  EXPECT_TRUE(session->isTrackingNormal());
}

TEST_F(SimulatedARSessionTest, TracksAsToldUntilAuto) {
  const auto tell = [&](const char *tracking) { device.options.set("tracking", tracking); };
  tell("normal");
  session->run(mapAt(0));
  EXPECT_FALSE(session->isTrackingNormal()) << "there is no frame yet";
  advance(0);
  EXPECT_TRUE(session->isTrackingNormal());
  tell("limited");
  advance(100);
  EXPECT_EQ(session->tracking(), Tracking::limited);
  tell("unavailable");
  EXPECT_EQ(session->tracking(), Tracking::unavailable);
  tell("auto");
  EXPECT_EQ(session->tracking(), Tracking::normal);
}

TEST_F(SimulatedARSessionTest, StandsWhereTheMapLeftOffUntilItWalks) {
  auto room = std::make_shared<RoomDocument>(testing::walledRoom(1));
  session->run(mapAt(7));
  session->beginWalk(std::make_shared<RoomPlayback>(room, 5, 10), 0);
  advance(1);
  EXPECT_NE(session->cameraTransform()->at(3, 0), 7);
  session->endWalk();
  session->run(mapAt(8));
  EXPECT_EQ(session->cameraTransform()->at(3, 0), 8);
  device.options.set("camera", "1 0 0 0 0 1 0 0 0 0 1 0 3 4 5 1");
  EXPECT_EQ(session->cameraTransform()->at(3, 0), 3);
  session->beginWalk(nullptr, 0);
  session->run(nullptr);
  EXPECT_EQ(session->cameraTransform()->at(3, 0), 8) << "a run sees its own frames";
}

TEST_F(SimulatedARSessionTest, GivesItsMapHalfASecondLater) {
  ask(*session);
  advance(0.5);
  ASSERT_EQ(answers.size(), 1U);
  EXPECT_EQ(answers[0], nullptr) << "nothing was seen yet";

  session->run(mapAt(7));
  ask(*session);
  advance(0.499);
  EXPECT_EQ(answers.size(), 1U);
  device.options.set("camera", "1 0 0 0 0 1 0 0 0 0 1 0 3 4 5 1");
  advance(0.001);
  ASSERT_EQ(answers.size(), 2U);
  EXPECT_EQ(answers[1]->space().identifier, mapsSpace);
  EXPECT_EQ(answers[1]->space().camera.at(3, 2), 5) << "as it is when the map is made";

  ask(*session);
  device.options.set("map", "none");
  advance(0.5);
  EXPECT_EQ(answers.back(), nullptr);
  ask(*session);
  device.options.set("map", "present");
  session.reset();
  advance(10);
  ASSERT_EQ(answers.size(), 4U) << "each is answered once, also when the session is gone";
  EXPECT_NE(answers.back(), nullptr);
}

TEST_F(SimulatedARSessionTest, DropsWhatWaitsWithThePower) {
  session->run(nullptr);
  const std::weak_ptr<SimulatedARSession> gone = std::exchange(session, nullptr);
  EXPECT_TRUE(gone.expired()) << "a first frame keeps no session";
  advance(0);
  auto held = std::make_shared<int>(1);
  make()->getCurrentWorldMap([held](const std::shared_ptr<WorldMap> &) { FAIL(); });
  EXPECT_EQ(held.use_count(), 2);
  device.scheduler.shutDown();
  EXPECT_EQ(held.use_count(), 1);
}

// ---- Through the exported functions ----

class WorldMapOfADevice : public testing::DeviceTest {};

TEST_F(WorldMapOfADevice, TellsItsSpaceAndTracking) {
  const std::string own = R"("00000000-0000-8000-8000-000000000002")";
  initialize();
  EXPECT_EQ(state("arSession.tracking"), R"("none")");
  start();
  EXPECT_EQ(state("arSession.space"), own);
  EXPECT_EQ(state("arSession.tracking"), R"("normal")");
  EXPECT_EQ(state("arSession.initialWorldMap"), "null");
  std::filesystem::create_directories(file("WorldMap"));
  stopCaptureSessionWithARWorldMap(file("").c_str());
  advance(0.5);
  powerCycle();
  EXPECT_EQ(state("arSession.space"), "null");
  initialize();
  isVTLCustomXREnabled(1);
  setVantorelXRSession(vantorelDeviceARSession());
  startCaptureSession();
  stopCaptureSession();
  startCaptureSessionWithARWorldMap(file("WorldMap/scan").c_str());
  advance(1.5);
  EXPECT_EQ(state("captureSession.usesHostARSession"), "true");
  EXPECT_EQ(state("arSession.tracking"), R"("limited")");
  EXPECT_EQ(state("arSession.space"), own);
  EXPECT_EQ(state("arSession.initialWorldMap"), "\"map of " + own.substr(1));
}

}  // namespace
}  // namespace vantorel
