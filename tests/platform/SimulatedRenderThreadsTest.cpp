#include "platform/simulated/SimulatedRenderThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>

namespace vantorel {
namespace {

constexpr Scheduler::Time kSecond = Scheduler::kSecond;

class SimulatedRenderThreadsTest : public ::testing::Test {
 protected:
  /// Frames in ten seconds of a link with that greatest rate.
  int framesAt(float maximum) {
    int frames = 0;
    const auto link = threads.makeDisplayLink([&](DisplayLink &) { ++frames; });
    startThreadOf(link, maximum);
    scheduler.advance(10 * kSecond);
    link->invalidate();
    scheduler.advance(0);
    return frames;
  }
  void startThreadOf(const std::shared_ptr<DisplayLink> &link, float maximum) {
    threads.startThread([this, link, maximum] {
      link->addToCurrentRunLoop(RunLoopMode::commonModes);
      link->setPreferredFrameRateRange({.minimum = 1, .maximum = maximum});
      threads.runCurrentRunLoop();
    });
  }

  DeviceParts device;
  Scheduler &scheduler = device.scheduler;
  SimulatedRenderThreads threads{device};
};

TEST_F(SimulatedRenderThreadsTest, FireAtThePreferredRateAndNotAboveTheDisplays) {
  EXPECT_EQ(framesAt(59), 590);
  EXPECT_EQ(framesAt(120), 600);
  EXPECT_EQ(framesAt(10), 100);
  EXPECT_EQ(framesAt(0), 600);
  EXPECT_EQ(scheduler.renderThreadCount(), 0U);
}

TEST_F(SimulatedRenderThreadsTest, EndWhenTheLinkIsInvalidatedWhereverThatHappens) {
  int frames = 0;
  const auto held = std::make_shared<int>();
  const auto link = threads.makeDisplayLink([&, held](DisplayLink &fired) {
    EXPECT_EQ(Scheduler::currentRole(), Role::render);
    EXPECT_NEAR(fired.targetTimestamp() - fired.timestamp(), 0.1, 1e-9);
    if (++frames == 3) fired.invalidate();
  });
  startThreadOf(link, 10);
  scheduler.advance(kSecond);
  EXPECT_EQ(frames, 3);
  EXPECT_EQ(scheduler.renderThreadCount(), 0U);
  EXPECT_EQ(held.use_count(), 1) << "an invalid link holds no action";
  link->invalidate();
  startThreadOf(link, 10);  // too late for this link: its thread ends at once
  EXPECT_EQ(scheduler.renderThreadCount(), 0U);
}

TEST_F(SimulatedRenderThreadsTest, ShowNoFrameTwiceWhenTheRateChangesMeanwhile) {
  scheduler.restart(true);
  std::promise<void> hasFired, mayGoOn;
  std::atomic<int> frames = 0;
  const auto link = threads.makeDisplayLink([&](DisplayLink &) {
    if (++frames > 1) return;
    hasFired.set_value();
    mayGoOn.get_future().wait();
  });
  startThreadOf(link, 10);
  EXPECT_TRUE(scheduler.settle());  // the thread is in its run loop
  scheduler.advance(kSecond / 10);
  hasFired.get_future().wait();
  scheduler.advance(kSecond / 10);  // the second frame waits behind the first
  link->setPreferredFrameRateRange({.minimum = 1, .maximum = 10});
  mayGoOn.set_value();
  for (int i = 0; i < 10; ++i) {
    EXPECT_TRUE(scheduler.settle());
    scheduler.advance(kSecond / 10);
  }
  EXPECT_TRUE(scheduler.settle());
  EXPECT_EQ(frames, 1 + 10);
  link->invalidate();
}

TEST_F(SimulatedRenderThreadsTest, LinksOfTheMainThreadFireThere) {
  int frames = 0;
  const auto link = threads.makeDisplayLink([&](DisplayLink &) {
    EXPECT_EQ(Scheduler::currentRole(), Role::main);
    ++frames;
  });
  link->addToCurrentRunLoop(RunLoopMode::defaultMode);
  link->setPreferredFrameRateRange({.minimum = 10, .maximum = 30});
  EXPECT_TRUE(scheduler.settle());  // frames are periodic
  EXPECT_EQ(frames, 0);
  scheduler.advance(kSecond);
  EXPECT_EQ(frames, 30);
  link->invalidate();
  scheduler.advance(kSecond);
  EXPECT_EQ(frames, 30);
}

}  // namespace
}  // namespace vantorel
