// The scheduler's threads: each waits for its inbox, runs, and tells that it is idle again.
#include "platform/PluginAccess.h"
#include "platform/simulated/SchedulerThread.h"

#include <algorithm>
#include <cstdio>

namespace vantorel {
namespace {

thread_local std::shared_ptr<Scheduler::Thread> callingThread;
thread_local int insideWork = 0;

}  // namespace

const char *nameOf(Role role) {
  switch (role) {
    case Role::delegate:
      return "delegate";
    case Role::completion:
      return "completion";
    case Role::main:
      return "main";
    case Role::render:
      return "render";
  }
  return "";
}

void runContained(const Scheduler::Work &work) {
  try {
    if (work) work();
  } catch (const PluginStopped &) {
  }
}

InsideWork::InsideWork() { ++insideWork; }
InsideWork::~InsideWork() { --insideWork; }

bool Scheduler::isInsideWork() { return insideWork > 0; }

Role Scheduler::currentRole() { return callingThread ? callingThread->role : Role::main; }

std::shared_ptr<Scheduler::Thread> Scheduler::currentThread() {
  return currentRole() == Role::render ? callingThread : nullptr;
}

// ---- Starting and ending ----

void Scheduler::startThread(Work entry) {
  Lock lock(mutex_);
  if (isShutDown_) return;
  const auto thread = launch(Role::render, std::move(entry));
  if (!isFreeRunning_) waitUntil(lock, *thread, [&] { return thread->isIdle(); });
}

std::shared_ptr<Scheduler::Thread> Scheduler::launch(Role role, Work entry) {
  auto thread = std::make_shared<Thread>(role);
  thread->system = std::thread([this, thread, entry = std::move(entry)]() mutable {
    callingThread = thread;
    const InsideWork inside;
    runContained(entry);
    entry = nullptr;
    finish(*thread);
  });
  threads_.push_back(thread);
  return thread;
}

void Scheduler::finish(Thread &thread) {
  Lock lock(mutex_);
  while (!thread.inbox.empty()) {
    std::deque<Work> unread;
    unread.swap(thread.inbox);
    lock.unlock();
    unread.clear();
    lock.lock();
  }
  callingThread = nullptr;
  thread.isFinished = true;
  changed_.notify_all();
}

/// Null when the event's thread has ended, or nothing may start any more.
std::shared_ptr<Scheduler::Thread> Scheduler::workerOf(const Event &event) {
  if (event.thread) return event.thread->isFinished ? nullptr : event.thread;
  auto &worker = event.role == Role::delegate ? delegateThread_ : completionThread_;
  if (!worker && !isShutDown_) {
    worker = launch(event.role, [this] {
      Lock lock(mutex_);
      runInbox(lock, *callingThread);
    });
  }
  return worker;
}

/// Joins the threads that have ended.
void Scheduler::reap(Lock &lock) {
  std::list<std::shared_ptr<Thread>> ended;
  for (auto thread = threads_.begin(); thread != threads_.end();) {
    const auto next = std::next(thread);
    if ((*thread)->isFinished) ended.splice(ended.end(), threads_, thread);
    thread = next;
  }
  lock.unlock();
  for (const auto &thread : ended) thread->system.join();
  ended.clear();
  lock.lock();
}

void Scheduler::waitForAll(Lock &lock) {
  for (const auto &thread : threads_) waitUntil(lock, *thread, [&] { return thread->isFinished; });
  reap(lock);
  delegateThread_.reset();
  completionThread_.reset();
}

// ---- Running ----

void Scheduler::runLoop() {
  if (currentRole() != Role::render) return;
  const auto thread = callingThread;
  Lock lock(mutex_);
  if (thread->sources > 0) runInbox(lock, *thread);
}

/// Until shut down, or a render thread's last source is gone. Leaves the thread as running, since its entry
/// goes on.
void Scheduler::runInbox(Lock &lock, Thread &thread) {
  const bool endsWithSources = thread.role == Role::render;
  for (;;) {
    thread.isRunning = false;
    changed_.notify_all();
    changed_.wait(lock, [&] { return isShutDown_ || !thread.inbox.empty(); });
    thread.isRunning = true;
    if (isShutDown_) return;
    Work work = std::move(thread.inbox.front());
    thread.inbox.pop_front();
    sleepAtHandover(lock);
    lock.unlock();
    runContained(work);
    work = nullptr;
    lock.lock();
    if (endsWithSources && thread.sources == 0) return;
  }
}

void Scheduler::waitUntil(Lock &lock, const Thread &thread, const std::function<bool()> &isDone) {
  if (changed_.wait_for(lock, patience_, isDone)) return;
  std::fprintf(stderr,
               "vantorel: still waiting for a callback on the %s thread; does it wait for this one?\n",
               nameOf(thread.role));
  changed_.wait(lock, isDone);
}

/// A thread that is not idle, if there is one.
std::shared_ptr<Scheduler::Thread> Scheduler::busyThread() const {
  const auto busy =
      std::find_if(threads_.begin(), threads_.end(), [](const auto &thread) { return !thread->isIdle(); });
  return busy == threads_.end() ? nullptr : *busy;
}

// ---- Run loops' sources ----

void Scheduler::addSource(const std::shared_ptr<Thread> &thread) {
  Lock lock(mutex_);
  ++thread->sources;
}

void Scheduler::removeSource(const std::shared_ptr<Thread> &thread) {
  {
    Lock lock(mutex_);
    --thread->sources;
  }
  post({.role = Role::render, .work = nullptr, .thread = thread});  // wakes it
}

std::size_t Scheduler::renderThreadCount() const {
  Lock lock(mutex_);
  return static_cast<std::size_t>(std::count_if(threads_.begin(), threads_.end(), [](const auto &thread) {
    return thread->role == Role::render && !thread->isFinished;
  }));
}

}  // namespace vantorel
