#include "platform/simulated/RoomPlayback.h"
#include "platform/simulated/SimulatedARSession.h"
#include "support/DeviceTest.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

namespace vantorel {
namespace {

constexpr Scheduler::Time kSecond = Scheduler::kSecond;

class SimulatedARSessionTest : public ::testing::Test {
 protected:
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
  std::shared_ptr<SimulatedARSession> session = std::make_shared<SimulatedARSession>(device);
  std::vector<std::shared_ptr<SimulatedWorldMap>> answers;
};

TEST_F(SimulatedARSessionTest, StandsWhereTheMapLeftOffUntilItWalks) {
  const auto x = [&] { return session->cameraTransform()->at(3, 0); };
  session->run(mapAt(7));
  session->beginWalk(
      std::make_shared<RoomPlayback>(std::make_shared<RoomDocument>(testing::walledRoom(1)), 5, 10), 0);
  advance(1);
  EXPECT_NE(x(), 7);
  session->endWalk();
  session->run(mapAt(8));
  EXPECT_EQ(x(), 8);
  device.options.set("camera", "1 0 0 0 0 1 0 0 0 0 1 0 3 4 5 1");
  EXPECT_EQ(x(), 3);
  session->run(nullptr);
  EXPECT_EQ(x(), 8) << "a run sees its own frames";
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
  std::make_shared<SimulatedARSession>(device)->getCurrentWorldMap(
      [held](const std::shared_ptr<WorldMap> &) { FAIL(); });
  EXPECT_EQ(held.use_count(), 2);
  device.scheduler.shutDown();
  EXPECT_EQ(held.use_count(), 1);
}

TEST(SimulatedARSession, ProjectsThroughItsLens) {
  const auto depthAt = [](const Float4x4 &matrix, double distance) {
    return (matrix.at(2, 2) * -distance + matrix.at(3, 2)) / distance;
  };
  const double longSide = 1 / std::tan(67.0 / 2 * M_PI / 180);
  const auto upright = lensProjection({InterfaceOrientation::portrait, 390, 844, 0.01, 1000});
  EXPECT_NEAR(upright.at(1, 1), longSide, 1e-5);  // the image is as high as the screen
  EXPECT_NEAR(upright.at(0, 0), longSide * 844 / 390, 1e-5);
  const auto lying = lensProjection({InterfaceOrientation::landscapeRight, 844, 390, 0.01, 1000});
  EXPECT_NEAR(lying.at(0, 0), longSide, 1e-5);
  EXPECT_NEAR(lying.at(1, 1), longSide * 844 / 390, 1e-5);
  const auto tablet = lensProjection({InterfaceOrientation::portrait, 900, 1000, 0.01, 1000});
  EXPECT_NEAR(tablet.at(0, 0), longSide * 4 / 3, 1e-5);  // as wide as the screen
  EXPECT_NEAR(depthAt(upright, 0.01), 0, 1e-5);
  EXPECT_NEAR(depthAt(upright, 1000), 1, 1e-5);
  EXPECT_EQ(upright.at(2, 3), -1);  // looks along -z
}

// ---- Through the exported functions ----

using WorldMapOfADevice = testing::DeviceTest;

TEST_F(WorldMapOfADevice, TellsItsSpace) {
  const std::string own = R"("00000000-0000-8000-8000-000000000002")";
  start();
  EXPECT_EQ(state("arSession.space"), own);
  EXPECT_EQ(state("arSession.initialWorldMap"), "null");
  std::filesystem::create_directories(file("WorldMap"));
  stopCaptureSessionWithARWorldMap(file("").c_str());
  advance(0.5);
  powerCycle();
  EXPECT_EQ(state("arSession.space"), "null");
  startCaptureSessionWithARWorldMap(file("WorldMap/scan").c_str());
  EXPECT_EQ(state("arSession.space"), own);
  EXPECT_EQ(state("arSession.initialWorldMap"), "\"map of " + own.substr(1));
}

}  // namespace
}  // namespace vantorel
