#include "platform/simulated/RoomPlayback.h"
#include "platform/simulated/SimulatedSession.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

#include <future>
#include <map>

namespace vantorel {
namespace {

constexpr Scheduler::Time kSecond = Scheduler::kSecond;

/// Counts what it is told.
struct Listener : RoomCaptureSessionDelegate {
  std::map<std::string, int> heard;
  std::function<void()> onUpdate, onEnd;

  void captureSessionDidStart(std::shared_ptr<RoomCaptureSession>) override { ++heard["start"]; }
  void captureSessionDidUpdate(std::shared_ptr<CapturedRoom>) override {
    ++heard["update"];
    if (onUpdate) onUpdate();
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
  void captureSessionDidEnd(std::optional<std::string>) override {
    ++heard["end"];
    if (onEnd) onEnd();
  }
};

std::shared_ptr<RoomDocument> roomWithWalls(std::uint32_t count) {
  auto room = std::make_shared<RoomDocument>();
  for (std::uint32_t i = 0; i < count; ++i)
    room->walls.push_back(testing::wall(i, {static_cast<float>(i) * 4, 1, 3}, 2));
  return room;
}

class SimulatedSessionTest : public ::testing::Test {
 protected:
  SimulatedSessionTest() { session->setDelegate(listener); }

  using Counts = std::map<std::string, int>;
  void nextScan() { device.sessions.setNextScan(std::make_shared<RoomPlayback>(roomWithWalls(5), 10, 10)); }
  Counts takeHeard() { return std::exchange(listener->heard, {}); }

  DeviceParts device;
  std::shared_ptr<SimulatedSession> session = SimulatedSession::make(device, nullptr);
  std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

TEST_F(SimulatedSessionTest, PlaysTheScanOnce) {
  nextScan();
  session->run({});
  EXPECT_TRUE(listener->heard.empty());
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(device.scheduler.now(), 10 * kSecond);
  EXPECT_EQ(listener->heard["update"], 100);
  EXPECT_EQ(listener->heard["instruction"], 6);
  EXPECT_EQ(listener->heard["added"], 5);
  EXPECT_GT(listener->heard["changed"], 50);
  EXPECT_EQ(listener->heard["removed"], 0);
  takeHeard();
  session->stop();
  session->run({});  // the room was for one run only
  EXPECT_TRUE(device.scheduler.settle());
  EXPECT_EQ(takeHeard(), Counts({{"end", 1}, {"start", 1}}));
}

TEST_F(SimulatedSessionTest, GoesOnAfterAnEndUnlessItIsStopped) {
  const auto stopAndRun = [&] {
    session->stop();
    session->run({});
  };
  const struct {
    std::function<void()> onEnd, later;
    int updates;
  } table[] = {
      {stopAndRun, nullptr, 100},  // at once, as the library answers a lost tracking
      {nullptr, [&] { session->run({}); }, 100},
      {nullptr, stopAndRun, 40},
  };
  for (const auto &[onEnd, later, updates] : table) {
    const auto begin = device.scheduler.now();
    listener->onEnd = onEnd;
    nextScan();
    session->run({});
    device.scheduler.advance(4 * kSecond);
    device.scheduler.handOver(Role::delegate, [&] { session->send(Playback::End{"lost"}); });
    EXPECT_EQ(session->isRunning(), onEnd != nullptr);
    if (later) later();
    EXPECT_TRUE(device.scheduler.settle());
    EXPECT_EQ(device.scheduler.now() - begin, updates * kSecond / 10);
    EXPECT_EQ(takeHeard()["update"], updates);
    session->stop();
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

}  // namespace
}  // namespace vantorel
