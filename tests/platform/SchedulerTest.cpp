#include "platform/simulated/Scheduler.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <set>
#include <string>
#include <thread>

namespace vantorel {
namespace {

using Time = Scheduler::Time;
constexpr Time kSecond = Scheduler::kSecond;

/// What ran, in order; hand over hand nothing ever writes at the same time.
struct Log {
  Scheduler scheduler;
  std::string text;

  void post(Role role, const std::string &name, Time due = 0, Scheduler::Group group = 0) {
    scheduler.post({.role = role, .work = [this, name] { text += name; }, .group = group}, due);
  }
};

/// A render thread that calls `frame` every tenth of a second until it says no.
void startFrames(Scheduler &scheduler, std::function<bool()> frame) {
  scheduler.startThread([&scheduler, frame] {
    const auto thread = Scheduler::currentThread();
    scheduler.addSource(thread);
    std::function<void()> tick = [&] {
      if (!frame()) return scheduler.removeSource(thread);
      scheduler.post({.role = Role::render, .work = [&] { tick(); }, .isPeriodic = true, .thread = thread},
                     scheduler.now() + kSecond / 10);
    };
    tick();
    scheduler.runLoop();
  });
}

TEST(Scheduler, RunsByTimeThenRoleThenArrival) {
  Log log;
  log.post(Role::main, "m1 ", kSecond);
  log.post(Role::main, "m2 ", kSecond);
  log.post(Role::completion, "c ", kSecond);
  log.post(Role::delegate, "d ", kSecond);
  log.post(Role::main, "first ", kSecond / 2);
  log.post(Role::main, "later ", kSecond + 1);
  log.scheduler.advance(kSecond);
  EXPECT_EQ(log.text, "first d c m1 m2 ");
  EXPECT_EQ(log.scheduler.now(), kSecond);
  log.post(Role::main, "past ", 1);  // time does not go back
  log.scheduler.advance(0);
  EXPECT_EQ(log.text, "first d c m1 m2 past ");
  log.scheduler.advance(1);
  EXPECT_EQ(log.text, "first d c m1 m2 past later ");
}

TEST(Scheduler, WorkOfEveryRoleMayPostCancelAndStartThreads) {
  Log log;
  auto &scheduler = log.scheduler;
  const auto group = scheduler.newGroup();
  for (const Role role : {Role::delegate, Role::completion, Role::main})
    scheduler.post({.role = role, .work = [&, role] {
                      log.text += nameOf(Scheduler::currentRole()) + std::string(" ");
                      EXPECT_EQ(Scheduler::currentRole(), role);
                      EXPECT_TRUE(Scheduler::isInsideWork());
                      log.post(Role::main, "posted ");
                      log.post(Role::main, "cancelled ", 0, group);
                      scheduler.startThread([&] { log.text += "started "; });
                      scheduler.cancel(group);
                    }});
  scheduler.advance(0);
  EXPECT_EQ(log.text, "delegate started completion started main started posted posted posted ");
  EXPECT_EQ(Scheduler::currentRole(), Role::main);
  EXPECT_FALSE(Scheduler::isInsideWork());
}

TEST(Scheduler, DelegateAndCompletionHaveOneThreadEach) {
  Scheduler scheduler;
  std::set<std::thread::id> ids{std::this_thread::get_id()};
  for (int i = 0; i < 4; ++i)
    for (const Role role : {Role::delegate, Role::completion})
      scheduler.handOver(role, [&] { ids.insert(std::this_thread::get_id()); });
  EXPECT_EQ(ids.size(), 3U);
}

TEST(Scheduler, SettleLeavesPeriodicAndCancelledWorkBehind) {
  Log log;
  const auto group = log.scheduler.newGroup();
  int frames = 0;
  startFrames(log.scheduler, [&] { return ++frames > 0; });
  log.post(Role::main, "due", 3 * kSecond / 2);
  log.post(Role::main, "never", 900 * kSecond, group);
  log.scheduler.cancel(group);
  EXPECT_TRUE(log.scheduler.settle());
  EXPECT_EQ(log.scheduler.now(), 3 * kSecond / 2);
  EXPECT_EQ(log.text, "due");
  EXPECT_EQ(frames, 15);  // at 0, 0.1 ... 1.4: at equal times rendering is last
  log.post(Role::main, "late", log.scheduler.now() + Scheduler::kSettleLimit + 1);
  EXPECT_FALSE(log.scheduler.settle());
  EXPECT_EQ(log.text, "due");
}

TEST(Scheduler, ShutDownReleasesWorkAndEndsThreads) {
  Scheduler scheduler;
  const auto held = std::make_shared<int>();
  for (int cycle = 0; cycle < 50; ++cycle) {
    startFrames(scheduler, [held] { return true; });
    scheduler.post({.role = Role::delegate, .work = [held] { FAIL() << "dropped work ran"; }}, 5 * kSecond);
    scheduler.handOver(Role::completion, [&scheduler, held] {
      scheduler.post({.role = Role::main, .work = [held] { FAIL() << "dropped work ran"; }});
    });
    EXPECT_EQ(held.use_count(), 4);
    scheduler.shutDown();
    EXPECT_EQ(held.use_count(), 1);
    scheduler.startThread([] { FAIL() << "nothing starts while it is off"; });
    scheduler.restart(false);
    EXPECT_EQ(scheduler.now(), 0);
    EXPECT_EQ(scheduler.renderThreadCount(), 0U);
    scheduler.advance(10 * kSecond);
  }
}

TEST(Scheduler, ShutDownReleasesWhatAThreadHasNotRead) {
  Scheduler scheduler;
  scheduler.restart(true);
  std::shared_ptr<Scheduler::Thread> thread;  // kept, as by a display link
  std::promise<void> hasStarted;
  scheduler.startThread([&] {
    thread = Scheduler::currentThread();
    scheduler.addSource(thread);
    hasStarted.set_value();
    scheduler.runLoop();
  });
  hasStarted.get_future().wait();
  const auto sleep = [] { std::this_thread::sleep_for(std::chrono::milliseconds(50)); };
  const auto held = std::make_shared<int>();
  scheduler.post({.role = Role::render, .work = sleep, .thread = thread});
  scheduler.post({.role = Role::render, .work = [held] {}, .thread = thread});
  scheduler.advance(0);
  scheduler.shutDown();
  EXPECT_EQ(held.use_count(), 1);
}

/// Work whose end asks for the scheduler's lock, and would wait for ever if that were held.
Scheduler::Work workThatEnds(Scheduler &scheduler, int &ends) {
  const std::shared_ptr<void> guard(nullptr, [&](void *) { ends += scheduler.now() >= 0; });
  return [guard] {};
}

TEST(Scheduler, DestroysWorkWithoutItsLock) {
  int ends = 0;
  Scheduler scheduler;
  std::shared_ptr<Scheduler::Thread> ended;
  scheduler.startThread([&] { ended = Scheduler::currentThread(); });
  const auto group = scheduler.newGroup();
  for (const Role role : {Role::delegate, Role::main}) {
    scheduler.post({.role = role, .work = workThatEnds(scheduler, ends)});
    scheduler.post({.role = role, .work = workThatEnds(scheduler, ends), .group = group});
  }
  scheduler.cancel(group);
  scheduler.post({.role = Role::render, .work = workThatEnds(scheduler, ends), .thread = ended});
  scheduler.advance(0);
  EXPECT_EQ(ends, 5);
  scheduler.post({.role = Role::main, .work = workThatEnds(scheduler, ends)}, kSecond);
  scheduler.shutDown();
  scheduler.post({.role = Role::main, .work = workThatEnds(scheduler, ends)});
  scheduler.handOver(Role::completion, workThatEnds(scheduler, ends));
  EXPECT_EQ(ends, 8);
}

TEST(Scheduler, RunsFreelyWithoutWaitingForAHandOver) {
  Scheduler scheduler;
  scheduler.restart(true);
  std::promise<void> mainWentOn;
  std::atomic<int> ran = 0;
  scheduler.post({.role = Role::delegate, .work = [&] {
                    mainWentOn.get_future().wait();  // hand over hand this would hang
                    scheduler.post({.role = Role::main, .work = [&] { ++ran; }});
                    ++ran;
                  }});
  scheduler.advance(kSecond);
  EXPECT_EQ(ran, 0);
  mainWentOn.set_value();
  EXPECT_TRUE(scheduler.settle());  // waits for the thread, then runs what it posted
  EXPECT_EQ(ran, 2);
}

TEST(Scheduler, RunsFreelyWithManyThreadsThatEndAtAnyTime) {
  Scheduler scheduler;
  scheduler.restart(true);
  std::atomic<int> frames = 0;
  for (int i = 0; i < 20; ++i)
    startFrames(scheduler, [&, left = 5]() mutable { return ++frames, --left > 0; });
  while (frames < 100) {
    scheduler.advance(kSecond / 10);
    std::this_thread::yield();
  }
  while (scheduler.renderThreadCount() > 0) scheduler.settle();
  EXPECT_EQ(frames, 100);
  scheduler.restart(false);
}

TEST(Scheduler, NamesAThreadWhoseCallbackDoesNotReturn) {
  Scheduler scheduler(std::chrono::milliseconds(100));
  testing::internal::CaptureStderr();
  scheduler.handOver(Role::completion, [] {});
  scheduler.handOver(Role::delegate, [] { std::this_thread::sleep_for(std::chrono::milliseconds(300)); });
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("delegate thread"), std::string::npos) << said;
  EXPECT_EQ(said.find("completion"), std::string::npos) << said;
}

}  // namespace
}  // namespace vantorel
