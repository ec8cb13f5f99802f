// The simulated device's clock and threads.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <tuple>
#include <vector>

namespace vantorel {

/// In the order in which work of equal time runs.
enum class Role { delegate, completion, main, render };

const char *nameOf(Role role);

/// Virtual time in integer nanoseconds and the work due in it. Main work runs inside advance and settle, on
/// the host's thread; delegate and completion work on one real thread each, render work on the thread it
/// belongs to. The threads go hand over hand, so that two runs give the same events in the same order; in the
/// free-running mode nobody waits for a hand-over. The lock is never held while work runs or is destroyed:
/// both may post, cancel and start threads. Any thread, except where a method says main.
class Scheduler {
 public:
  using Work = std::function<void()>;
  using Time = std::int64_t;
  /// Names work that is cancelled together; 0: none.
  using Group = std::uint64_t;
  struct Thread;

  struct Event {
    Role role = Role::main;
    Work work;
    Group group = 0;
    bool isPeriodic = false;           ///< settle does not wait for it
    bool isLast = false;               ///< after all other work of its time, whatever the role
    std::shared_ptr<Thread> thread{};  ///< of render work
  };

  static constexpr Time kSecond = 1'000'000'000;
  static constexpr Time kSettleLimit = 600 * kSecond;
  /// Time goes no farther, so that sums of two times fit.
  static constexpr Time kEnd = 1'000'000'000 * kSecond;

  /// A callback that takes longer than `patience` (real time) while others wait for it is named on standard
  /// error: one that waits for the main thread would hang here and not on an iPhone.
  explicit Scheduler(std::chrono::milliseconds patience = std::chrono::seconds(5)) : patience_(patience) {}
  ~Scheduler();
  Scheduler(const Scheduler &) = delete;

  // ---- Power ----

  /// Drops all work that waits, and ends the threads once they come back from what they are in. Until restart
  /// no thread starts and no work is taken. Any thread, inside work too.
  void halt();
  /// Halts, and joins the threads. Main.
  void shutDown();
  /// At time 0 with nothing to do. Main, after shutDown.
  void restart(bool freeRunning);

  // ---- Time ----

  Time now() const;
  /// Runs what is due up to now + `duration`, which must not be negative, or up to kEnd. Main.
  void advance(Time duration);
  /// Advances until only periodic work is left. False when that took longer than kSettleLimit or came to kEnd.
  /// Main.
  bool settle();

  /// Grows with every advance and settle.
  std::uint64_t advances() const;

  // ---- Work ----

  /// Times that have passed mean now.
  void post(Event event, Time due = 0);
  /// Gives work to the delegate or completion thread at once, before anything that waits for time. Main.
  void handOver(Role role, Work work);
  Group newGroup();
  /// Drops the group's work that has not been handed over yet.
  void cancel(Group group);

  // ---- Threads ----

  /// Runs `entry` on a new render thread, up to its run loop before this returns.
  void startThread(Work entry);
  /// The calling render thread; null on every other.
  static std::shared_ptr<Thread> currentThread();
  static Role currentRole();
  /// Whether the caller is inside work that a scheduler runs.
  static bool isInsideWork();
  /// Runs the calling render thread's work until its last source is gone; on other threads returns at once.
  void runLoop();
  /// What keeps a run loop going. The thread notices its last source's end when it is next handed work.
  void addSource(const std::shared_ptr<Thread> &thread);
  void removeSource(const std::shared_ptr<Thread> &thread);
  std::size_t renderThreadCount() const;

  /// Sleeps up to this long in real time at each hand-over; 0: never.
  void setHandoverSleep(std::uint32_t microseconds, std::uint32_t seed);

 private:
  using Lock = std::unique_lock<std::mutex>;
  using Key = std::tuple<Time, bool, Role, std::uint64_t>;  // due, last, role, order of arrival

  Time timeAfter(Time duration) const;
  bool step(Lock &lock, Time end);
  void dispatch(Lock &lock, Event event);
  void give(Lock &lock, const std::shared_ptr<Thread> &thread, Work work);
  std::shared_ptr<Thread> workerOf(const Event &event);
  std::shared_ptr<Thread> launch(Role role, Work entry);
  void runInbox(Lock &lock, Thread &thread);
  void finish(Thread &thread);
  /// Waits for something that `thread` is to do, and names the thread when it takes suspiciously long.
  void waitUntil(Lock &lock, const Thread &thread, const std::function<bool()> &isDone);
  void waitForAll(Lock &lock);
  void reap(Lock &lock);
  std::shared_ptr<Thread> busyThread() const;
  void sleepAtHandover(Lock &lock);

  const std::chrono::milliseconds patience_;
  mutable std::mutex mutex_;
  std::condition_variable changed_;  // any thread's state, or new work
  std::map<Key, Event> events_;
  std::size_t finiteEvents_ = 0;  // those that are not periodic
  std::list<std::shared_ptr<Thread>> threads_;
  std::shared_ptr<Thread> delegateThread_, completionThread_;  // made on first use
  Time now_ = 0;
  std::uint64_t arrivals_ = 0;
  std::uint64_t advances_ = 0;
  Group groups_ = 0;
  bool isFreeRunning_ = false;
  bool isShutDown_ = false;
  std::uint32_t sleepLimit_ = 0;
  std::minstd_rand sleeps_;
};

}  // namespace vantorel
