#include "platform/simulated/SimulatedRenderThreads.h"

#include <gtest/gtest.h>

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

  Scheduler scheduler;
  SimulatedRenderThreads threads{scheduler};
};

TEST_F(SimulatedRenderThreadsTest, FireAtThePreferredRateAndNotAboveTheDisplays) {
  EXPECT_EQ(framesAt(59), 590);
  EXPECT_EQ(framesAt(120), 590);
  EXPECT_EQ(framesAt(10), 100);
  EXPECT_EQ(framesAt(0), 590);
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
