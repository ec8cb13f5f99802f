#include "platform/simulated/RoomPlayback.h"
#include "platform/simulated/SimulatedSession.h"

#include <gtest/gtest.h>

#include <cmath>
#include <future>
#include <map>

namespace vantorel {
namespace {

constexpr Scheduler::Time kSecond = Scheduler::kSecond;

/// Counts what it is told; answers an end as `onEnd` says.
struct Listener : RoomCaptureSessionDelegate {
  std::map<std::string, int> heard;
  std::size_t walls = 0;
  std::function<void()> onEnd, onUpdate;

  void captureSessionDidStart(std::shared_ptr<RoomCaptureSession>) override { ++heard["start"]; }
  void captureSessionDidUpdate(std::shared_ptr<CapturedRoom> room) override {
    ++heard["update"];
    if (onUpdate) onUpdate();
    walls = room->content().walls.size();
  }
  void captureSessionDidAdd(std::shared_ptr<CapturedRoom> room) override {
    heard["added"] += static_cast<int>(room->content().walls.size());
  }
  void captureSessionDidChange(std::shared_ptr<CapturedRoom> room) override {
    heard["changed"] += static_cast<int>(room->content().walls.size());
  }
  void captureSessionDidRemove(std::shared_ptr<CapturedRoom> room) override {
    heard["removed"] += static_cast<int>(room->content().walls.size());
  }
  void captureSessionDidProvide(Instruction) override { ++heard["instruction"]; }
  void captureSessionDidEnd(std::optional<std::string> error) override {
    ++heard["end" + error.value_or("")];
    EXPECT_EQ(Scheduler::currentRole(), Role::delegate);
    if (onEnd) onEnd();
  }
};

std::shared_ptr<RoomDocument> roomWithWalls(std::size_t count) {
  auto room = std::make_shared<RoomDocument>();
  for (std::size_t i = 0; i < count; ++i) {
    Surface wall;
    wall.identifier.bytes[0] = static_cast<std::uint8_t>(i);
    wall.confidence.name = "high";
    wall.dimensions = {2, 2, 0};
    wall.transform.elements = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, static_cast<float>(i) * 4, 1, 3, 1};
    room->walls.push_back(wall);
  }
  return room;
}

class SimulatedSessionTest : public ::testing::Test {
 protected:
  SimulatedSessionTest() { session->setDelegate(listener); }

  void nextScan(std::size_t walls = 5, double seconds = 10) {
    device.sessions.setNextScan(std::make_shared<RoomPlayback>(roomWithWalls(walls), seconds, 10));
  }
  void end(const char *error) {
    device.scheduler.handOver(Role::delegate, [this, error] { session->send(Playback::End{error}); });
  }
  std::map<std::string, int> takeHeard() { return std::exchange(listener->heard, {}); }
  using Counts = std::map<std::string, int>;

  DeviceParts device;
  std::shared_ptr<SimulatedSession> session = SimulatedSession::make(device, nullptr);
  std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

TEST_F(SimulatedSessionTest, PlaysTheScanOnceAndEndsWhenItIsStopped) {
  nextScan();
  session->run({});
  EXPECT_TRUE(listener->heard.empty());
  device.scheduler.advance(0);
  EXPECT_EQ(takeHeard(), Counts({{"start", 1}}));
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(device.scheduler.now(), 10 * kSecond);
  EXPECT_EQ(listener->heard["update"], 100);
  EXPECT_EQ(listener->heard["instruction"], 6);
  EXPECT_EQ(listener->heard["added"], 5);
  EXPECT_GT(listener->heard["changed"], 50);
  EXPECT_EQ(listener->heard["removed"], 0);
  EXPECT_EQ(listener->walls, 5U);
  EXPECT_TRUE(session->isRunning());
  takeHeard();
  session->stop();
  session->stop();
  EXPECT_FALSE(session->isRunning());
  session->run({});  // the room was for one run only
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(takeHeard(), Counts({{"end", 1}, {"start", 1}}));
}

TEST_F(SimulatedSessionTest, StopsInTheMiddle) {
  nextScan();
  session->run({});
  device.scheduler.advance(3 * kSecond);
  EXPECT_EQ(listener->heard["update"], 30);
  session->stop(false);
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(device.scheduler.now(), 3 * kSecond) << "nothing is left of the scan";
  EXPECT_EQ(listener->heard["update"], 30);
}

TEST_F(SimulatedSessionTest, GoesOnAfterAForcedReload) {
  listener->onEnd = [&] {
    session->stop();
    session->run({});
  };
  nextScan();
  session->run({});
  device.scheduler.advance(4 * kSecond);
  nextScan(2);  // for the next run of the host's
  end("lost");
  EXPECT_TRUE(session->isRunning());
  const auto pose = session->arSession()->cameraTransform();
  device.scheduler.advance(kSecond);
  EXPECT_NE(session->arSession()->cameraTransform(), pose) << "the walk goes on";
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(device.scheduler.now(), 10 * kSecond);
  EXPECT_EQ(listener->heard["update"], 100);
  EXPECT_EQ(listener->heard["start"], 2);
  EXPECT_EQ(listener->heard["end"], 0);
  EXPECT_EQ(listener->walls, 5U);
  listener->onEnd = nullptr;
  session->run({});
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(listener->walls, 2U);
}

TEST_F(SimulatedSessionTest, GoesOnWithALaterRunUnlessItWasStoppedInBetween) {
  for (const bool isStopped : {false, true}) {
    nextScan();
    session->run({});
    device.scheduler.advance(4 * kSecond);
    end("lost");
    EXPECT_FALSE(session->isRunning());
    EXPECT_TRUE(device.scheduler.settle());
    EXPECT_EQ(listener->heard["update"], 40);
    if (isStopped) session->stop();
    session->run({});
    EXPECT_TRUE(device.scheduler.settle());
    EXPECT_EQ(listener->heard["update"], isStopped ? 40 : 100);
    takeHeard();
  }
}

TEST_F(SimulatedSessionTest, PlaysNothingThatWasHandedOverToAnEarlierRun) {
  device.scheduler.restart(true);
  std::promise<void> hasSeen, mayGoOn;
  listener->onUpdate = [&, isFirst = true]() mutable {
    if (!std::exchange(isFirst, false)) return;
    hasSeen.set_value();
    mayGoOn.get_future().wait();
  };
  nextScan();
  session->run({});
  device.scheduler.advance(4 * kSecond);  // all of it waits behind the first update
  hasSeen.get_future().wait();
  nextScan();
  session->run({});
  mayGoOn.set_value();
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(listener->heard["update"], 1 + 100);
}

TEST_F(SimulatedSessionTest, GivesNoCoachingWhenThatIsOff) {
  nextScan();
  session->run({.isCoachingEnabled = false});
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(listener->heard["instruction"], 0);
  EXPECT_EQ(listener->heard["update"], 100);
}

TEST_F(SimulatedSessionTest, TellsWhatAnUpdateChanges) {
  const auto deliver = [&](std::shared_ptr<RoomDocument> room) {
    device.scheduler.handOver(Role::delegate, [&] { session->send(Playback::Update{}, {room, {}}); });
    return takeHeard();
  };
  EXPECT_EQ(deliver(roomWithWalls(3)), Counts({{"added", 3}, {"update", 1}}));
  auto smaller = roomWithWalls(2);
  smaller->walls[1].dimensions.x = 9;
  EXPECT_EQ(deliver(smaller), Counts({{"changed", 1}, {"removed", 1}, {"update", 1}}));
  EXPECT_EQ(deliver(smaller), Counts({{"update", 1}}));
  EXPECT_EQ(deliver(std::make_shared<RoomDocument>()), Counts({{"removed", 2}, {"update", 1}}));
}

TEST_F(SimulatedSessionTest, HoldsNoDelegateAndKeepsNoSession) {
  nextScan();
  session->run({});
  listener.reset();
  device.scheduler.advance(kSecond);
  EXPECT_EQ(device.sessions.current(), session);
  const auto newer = SimulatedSession::make(device, nullptr);
  EXPECT_EQ(device.sessions.current(), session);
  session.reset();
  EXPECT_EQ(device.sessions.current(), newer);
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(device.scheduler.now(), kSecond) << "a session that is gone has nothing to play";
}

TEST_F(SimulatedSessionTest, ShowsTheWalkInItsFrames) {
  const auto ar = session->arSession();
  const ProjectionRequest request{InterfaceOrientation::portrait, 390, 844, 0.01, 1000};
  EXPECT_FALSE(ar->cameraTransform() || ar->projectionMatrix(request));
  nextScan();
  session->run({});
  EXPECT_FALSE(ar->cameraTransform());
  device.scheduler.advance(0);
  const auto first = ar->cameraTransform();
  device.scheduler.advance(5 * kSecond);
  const auto later = ar->cameraTransform();
  EXPECT_NE(first, later);
  session->stop();
  device.scheduler.advance(kSecond);
  EXPECT_EQ(ar->cameraTransform(), later) << "nobody walks on";
  device.options.set("camera", "2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1");
  EXPECT_EQ(ar->cameraTransform()->at(0, 0), 2);
  session->run({});
  EXPECT_EQ(ar->cameraTransform()->elements,
            (std::array<float, 16>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
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

}  // namespace
}  // namespace vantorel
