// One thread of the scheduler; all members but `system` are guarded by the scheduler's lock.
#pragma once

#include "platform/simulated/Scheduler.h"

#include <deque>
#include <thread>

namespace vantorel {

struct Scheduler::Thread {
  explicit Thread(Role ofRole) : role(ofRole) {}

  const Role role;
  std::deque<Work> inbox;
  int sources = 0;          ///< a render thread's run loop ends without any
  bool isRunning = true;    ///< inside work, not waiting for the inbox
  bool isFinished = false;  ///< nothing of it runs any more; to be joined
  std::thread system;

  bool isIdle() const { return isFinished || (!isRunning && inbox.empty()); }
};

/// Runs work, if there is any; a plug-in that stops in it ends the work alone.
void runContained(const Scheduler::Work &work);

/// Marks the calling thread as inside work for as long as it lives.
class InsideWork {
 public:
  InsideWork();
  ~InsideWork();
  InsideWork(const InsideWork &) = delete;
};

}  // namespace vantorel
