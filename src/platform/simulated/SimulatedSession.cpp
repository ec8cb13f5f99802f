#include "platform/simulated/SimulatedSession.h"

#include "platform/simulated/RoomDifference.h"
#include "platform/simulated/SimulatedRoom.h"

#include <utility>

namespace vantorel {

SimulatedSession::SimulatedSession(DeviceParts &device, std::shared_ptr<SimulatedARSession> arSession)
    : device_(device), arSession_(std::move(arSession)) {}

std::shared_ptr<SimulatedSession> SimulatedSession::make(DeviceParts &device,
                                                         std::shared_ptr<SimulatedARSession> arSession) {
  if (!arSession) arSession = std::make_shared<SimulatedARSession>(device.scheduler, device.options);
  std::shared_ptr<SimulatedSession> session(new SimulatedSession(device, std::move(arSession)));
  device.sessions.created(session);
  return session;
}

SimulatedSession::~SimulatedSession() { device_.scheduler.cancel(run_); }

bool SimulatedSession::isRunning() const {
  const std::lock_guard lock(mutex_);
  return isRunning_;
}

// ---- Running ----

void SimulatedSession::run(const RoomCaptureSessionConfiguration &configuration) {
  {
    const std::lock_guard lock(mutex_);
    device_.scheduler.cancel(run_);
    // Inside the end that a delegate answers with a new run, a room set for later stays for later.
    const bool resumes = canResume_ && (isEnding_ || !device_.sessions.hasNextScan());
    if (!resumes) {
      scan_ = device_.sessions.takeNextScan();
      nextStep_ = 0;
      elapsed_ = 0;
      seen_ = nullptr;
    }
    canResume_ = false;
    isRunning_ = true;
    isCoaching_ = configuration.isCoachingEnabled;
    start_ = device_.scheduler.now() - elapsed_;
    run_ = device_.scheduler.newGroup();
    arSession_->beginWalk(scan_, elapsed_);
    postStart();
    postSteps();
  }
  device_.options.forgetFrame();
  device_.sessions.ran(shared_from_this());
}

void SimulatedSession::stop(bool) {
  {
    const std::lock_guard lock(mutex_);
    if (!isEnding_) canResume_ = false;
    if (!interrupt()) return;
    canResume_ = false;
  }
  postEnd();
}

/// Stops without an event; false when the session did not run. With the lock held.
bool SimulatedSession::interrupt() {
  if (!isRunning_) return false;
  isRunning_ = false;
  elapsed_ = device_.scheduler.now() - start_;
  canResume_ = scan_ != nullptr;
  device_.scheduler.cancel(run_);
  arSession_->endWalk();
  return true;
}

void SimulatedSession::postStart() {
  device_.scheduler.post({.role = Role::delegate, .work = [weak = weak_from_this()] {
                            const auto self = weak.lock();
                            if (!self) return;
                            self->arSession_->showFirstFrame();
                            if (const auto delegate = self->delegate_.load().lock())
                              delegate->captureSessionDidStart(self);
                          }});
}

void SimulatedSession::postEnd() {
  device_.scheduler.post({.role = Role::delegate, .work = [weak = weak_from_this()] {
                            const auto self = weak.lock();
                            if (!self) return;
                            if (const auto delegate = self->delegate_.load().lock())
                              delegate->captureSessionDidEnd(std::nullopt);
                          }});
}

void SimulatedSession::postSteps() {
  if (!scan_) return;
  for (std::size_t step = nextStep_; step < scan_->steps().size(); ++step)
    device_.scheduler.post({.role = Role::delegate,
                            .work =
                                [weak = weak_from_this(), run = run_, step] {
                                  if (const auto self = weak.lock()) self->play(run, step);
                                },
                            .group = run_},
                           start_ + scan_->steps()[step].due);
}

/// Work that was handed over before its run was stopped finds another run, or none.
void SimulatedSession::play(Scheduler::Group run, std::size_t step) {
  std::shared_ptr<const RoomPlayback> scan;
  bool isCoaching = false;
  {
    const std::lock_guard lock(mutex_);
    if (!isRunning_ || run != run_) return;
    nextStep_ = step + 1;
    scan = scan_;
    isCoaching = isCoaching_;
  }
  const auto &[due, instruction] = scan->steps()[step];
  if (!instruction) {
    deliverUpdate(scan->roomAt(due), scan->identifier());
  } else if (isCoaching) {
    deliverInstruction(*instruction);
  }
}

// ---- Events ----

void SimulatedSession::deliverUpdate(const std::shared_ptr<const RoomDocument> &room,
                                     const Uuid &identifier) {
  std::shared_ptr<const RoomDocument> before;
  {
    const std::lock_guard lock(mutex_);
    before = std::exchange(seen_, room);
  }
  const auto delegate = delegate_.load().lock();
  if (!delegate) return;
  const auto captured = [&](std::shared_ptr<const RoomDocument> document) {
    return std::make_shared<SimulatedRoom>(std::move(document), identifier, device_.faults);
  };
  const auto part = [&](RoomDocument &document) {
    return captured(std::make_shared<RoomDocument>(std::move(document)));
  };
  RoomDifference difference = differenceOf(before.get(), *room);
  if (!difference.added.isEmpty()) delegate->captureSessionDidAdd(part(difference.added));
  if (!difference.changed.isEmpty()) delegate->captureSessionDidChange(part(difference.changed));
  if (!difference.removed.isEmpty()) delegate->captureSessionDidRemove(part(difference.removed));
  delegate->captureSessionDidUpdate(captured(room));
}

void SimulatedSession::deliverInstruction(Instruction instruction) {
  if (const auto delegate = delegate_.load().lock()) delegate->captureSessionDidProvide(instruction);
}

void SimulatedSession::deliverEnd(const std::optional<std::string> &errorDescription) {
  {
    const std::lock_guard lock(mutex_);
    interrupt();
    isEnding_ = true;
  }
  if (const auto delegate = delegate_.load().lock()) delegate->captureSessionDidEnd(errorDescription);
  const std::lock_guard lock(mutex_);
  isEnding_ = false;
}

}  // namespace vantorel
