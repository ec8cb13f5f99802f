#include "platform/simulated/Scheduler.h"

#include "platform/simulated/SchedulerThread.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace vantorel {

Scheduler::~Scheduler() { shutDown(); }

// ---- Power ----

void Scheduler::halt() {
  std::map<Key, Event> dropped;  // released without the lock: what work holds may come back here
  Lock lock(mutex_);
  isShutDown_ = true;
  changed_.notify_all();
  dropped.swap(events_);
  finiteEvents_ = 0;
  lock.unlock();
}

void Scheduler::shutDown() {
  halt();
  Lock lock(mutex_);
  waitForAll(lock);
}

void Scheduler::restart(bool freeRunning) {
  shutDown();
  Lock lock(mutex_);
  now_ = 0;
  isFreeRunning_ = freeRunning;
  isShutDown_ = false;
}

// ---- Time ----

Scheduler::Time Scheduler::now() const {
  Lock lock(mutex_);
  return now_;
}

std::uint64_t Scheduler::advances() const {
  Lock lock(mutex_);
  return advances_;
}

void Scheduler::advance(Time duration) {
  Lock lock(mutex_);
  const Time end = timeAfter(duration);
  ++advances_;
  while (step(lock, end)) {
  }
  now_ = std::max(now_, end);
  reap(lock);
}

bool Scheduler::settle() {
  Lock lock(mutex_);
  const Time end = timeAfter(kSettleLimit);
  ++advances_;
  for (;;) {
    if (finiteEvents_ > 0) {
      if (step(lock, end)) continue;
      now_ = end;
      return false;
    }
    const auto thread = busyThread();
    if (!thread) break;
    waitUntil(lock, *thread, [&] { return thread->isIdle() || finiteEvents_ > 0; });
  }
  reap(lock);
  return true;
}

Scheduler::Time Scheduler::timeAfter(Time duration) const { return now_ + std::min(duration, kEnd - now_); }

/// Runs the first event that is due up to `end`; false when there is none.
bool Scheduler::step(Lock &lock, Time end) {
  const auto first = events_.begin();
  if (first == events_.end() || std::get<Time>(first->first) > end) return false;
  now_ = std::max(now_, std::get<Time>(first->first));
  Event event = std::move(first->second);
  if (!event.isPeriodic) --finiteEvents_;
  events_.erase(first);
  dispatch(lock, std::move(event));
  return true;
}

// ---- Work ----

void Scheduler::post(Event event, Time due) {
  Lock lock(mutex_);
  if (isShutDown_) return;
  if (!event.isPeriodic) ++finiteEvents_;
  const Key key(std::max(due, now_), event.isLast, event.role, arrivals_++);
  events_.emplace(key, std::move(event));
  if (isFreeRunning_) changed_.notify_all();  // settle may be waiting
}

void Scheduler::handOver(Role role, Work work) {
  Lock lock(mutex_);
  dispatch(lock, {.role = role, .work = std::move(work)});
}

Scheduler::Group Scheduler::newGroup() {
  Lock lock(mutex_);
  return ++groups_;
}

void Scheduler::cancel(Group group) {
  std::vector<Event> dropped;  // as in shutDown
  Lock lock(mutex_);
  for (auto event = events_.begin(); event != events_.end();) {
    if (group == 0 || event->second.group != group) {
      ++event;
      continue;
    }
    if (!event->second.isPeriodic) --finiteEvents_;
    dropped.push_back(std::move(event->second));
    event = events_.erase(event);
  }
}

void Scheduler::dispatch(Lock &lock, Event event) {
  const auto thread = event.role == Role::main ? nullptr : workerOf(event);
  if (thread) return give(lock, thread, std::move(event.work));
  lock.unlock();
  {
    const InsideWork inside;
    if (event.role == Role::main) runContained(event.work);
    event = {};
  }
  lock.lock();
}

void Scheduler::give(Lock &lock, const std::shared_ptr<Thread> &thread, Work work) {
  sleepAtHandover(lock);
  thread->inbox.push_back(std::move(work));
  changed_.notify_all();
  if (!isFreeRunning_) waitUntil(lock, *thread, [&] { return thread->isIdle(); });
}

void Scheduler::sleepAtHandover(Lock &lock) {
  if (sleepLimit_ == 0) return;
  const std::chrono::microseconds time(sleeps_() % (sleepLimit_ + std::uint64_t{1}));
  lock.unlock();
  std::this_thread::sleep_for(time);
  lock.lock();
}

void Scheduler::setHandoverSleep(std::uint32_t microseconds, std::uint32_t seed) {
  Lock lock(mutex_);
  sleepLimit_ = microseconds;
  sleeps_.seed(seed);
}

}  // namespace vantorel
