#include "platform/simulated/SimulatedSession.h"

#include "platform/simulated/RoomDifference.h"
#include "platform/simulated/SimulatedRoom.h"

#include <utility>

namespace vantorel {

SimulatedSession::SimulatedSession(DeviceParts &device, std::shared_ptr<SimulatedARSession> arSession)
    : device_(device), arSession_(std::move(arSession)) {}

std::shared_ptr<SimulatedSession> SimulatedSession::make(DeviceParts &device,
                                                         std::shared_ptr<SimulatedARSession> arSession) {
  if (!arSession) arSession = std::make_shared<SimulatedARSession>(device);
  std::shared_ptr<SimulatedSession> session(new SimulatedSession(device, std::move(arSession)));
  device.sessions.created(session);
  return session;
}

SimulatedSession::~SimulatedSession() { device_.scheduler.cancel(run_); }

bool SimulatedSession::isRunning() const {
  const std::lock_guard lock(mutex_);
  return isRunning_;
}

std::shared_ptr<const RoomDocument> SimulatedSession::seen() const {
  const std::lock_guard lock(mutex_);
  return seen_;
}

// ---- Running ----

void SimulatedSession::run(const RoomCaptureSessionConfiguration &configuration) {
  {
    const std::lock_guard lock(mutex_);
    device_.scheduler.cancel(run_);
    const bool goesOn = resumes();
    if (!goesOn) beginScan();
    canResume_ = false;
    isRunning_ = true;
    isCoaching_ = configuration.isCoachingEnabled;
    start_ = device_.scheduler.now() - elapsed_;
    run_ = device_.scheduler.newGroup();
    arSession_->beginWalk(scan_, elapsed_);
    if (goesOn) record(Playback::Resume{}, false);
    postStart();
    postSteps();
  }
  device_.options.forgetFrame();
  device_.sessions.ran(shared_from_this());
}

/// Whether a run goes on with the scan that an end interrupted. With the lock held.
bool SimulatedSession::resumes() const {
  if (!canResume_) return false;
  const bool hasNext = device_.sessions.hasNextScan(), hasNew = device_.sessions.hasNewScan();
  if (!scan_) return !hasNext;
  const bool isOver = nextStep_ == scan_->steps().size();
  if (isOver && hasNext && !hasNew) return false;  // the recording's next run
  // Inside the end that a delegate answers with a new run, a room set for later stays for later.
  return isEnding_ || !hasNew;
}

void SimulatedSession::beginScan() {
  scan_ = device_.sessions.takeNextScan();
  nextStep_ = 0;
  elapsed_ = 0;
  seen_ = nullptr;
  sentAt_.reset();
  recorded_ = device_.recorder.begin(scan_ ? scan_->cameraAt(0) : arSession_->restingPose());
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
  canResume_ = true;
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

/// Those that come at once are played with the step before. None overtakes one that was sent.
void SimulatedSession::postSteps() {
  if (!scan_) return;
  const auto &steps = scan_->steps();
  bool isLast = false;
  for (std::size_t step = nextStep_; step < steps.size(); ++step) {
    const bool isFirstOfTime = step == nextStep_ || steps[step].due != steps[step - 1].due;
    isLast = steps[step].isSent || (isLast && !isFirstOfTime);
    if (step == nextStep_ || !steps[step].isAtOnce) postStep(step, isLast);
  }
}

void SimulatedSession::postStep(std::size_t step, bool isLast) {
  device_.scheduler.post({.role = Role::delegate,
                          .work =
                              [weak = weak_from_this(), run = run_, step] {
                                if (const auto self = weak.lock()) self->play(run, step);
                              },
                          .group = run_,
                          .isLast = isLast},
                         start_ + scan_->steps()[step].due);
}

/// Work that was handed over before its run was stopped finds another run, or none.
void SimulatedSession::play(Scheduler::Group run, std::size_t step) {
  for (bool goesOn = true; goesOn; ++step) {
    std::shared_ptr<const Playback> scan;
    bool isCoaching = false;
    {
      const std::lock_guard lock(mutex_);
      if (!isRunning_ || run != run_) return;
      nextStep_ = step + 1;
      scan = scan_;
      if (scan->steps()[step].isAtOnce) sentAt_ = device_.scheduler.progress();  // nothing came between
      isCoaching = isCoaching_;
    }
    if (deliverStep(*scan, step, isCoaching) && scan->isRecorded()) device_.sessions.countPlayed();
    goesOn = step + 1 < scan->steps().size() && scan->steps()[step + 1].isAtOnce;
  }
}

/// False for a step that brings no event.
bool SimulatedSession::deliverStep(const Playback &scan, std::size_t number, bool isCoaching) {
  const Playback::Step &step = scan.steps()[number];
  if (const auto *instruction = std::get_if<Instruction>(&step.event)) {
    if (!isCoaching && !step.isSent) return false;
    deliverInstruction(*instruction, step.isSent);
  } else if (const auto *end = std::get_if<Playback::End>(&step.event)) {
    deliverEnd(end->description, step.isSent);
  } else if (std::holds_alternative<Playback::Update>(step.event)) {
    const auto [room, identifier] = scan.seenAt(number);
    deliverUpdate(room, identifier, step.isSent);
  } else {
    return false;
  }
  return true;
}

// ---- Events ----

/// What happens in a run, before the delegate hears of it. With the lock held.
void SimulatedSession::record(const Playback::Event &event, bool isSent, const Playback::Seen &seen) {
  if (!isRunning_) return;
  const bool isAtOnce = isSent && isSentAtOnce();
  device_.recorder.record(recorded_, {device_.scheduler.now() - start_, event, isSent, isAtOnce},
                          arSession_->cameraTransform(), seen);
}

/// Whether nothing else has run since the last event was sent.
bool SimulatedSession::isSentAtOnce() {
  const auto progress = device_.scheduler.progress();
  return std::exchange(sentAt_, progress) == progress;
}

void SimulatedSession::deliverUpdate(const std::shared_ptr<const RoomDocument> &room, const Uuid &identifier,
                                     bool isSent) {
  std::shared_ptr<const RoomDocument> before;
  {
    const std::lock_guard lock(mutex_);
    record(Playback::Update{}, isSent, {room, identifier});
    before = std::exchange(seen_, room);
  }
  const auto delegate = delegate_.load().lock();
  if (!delegate) return;
  const auto captured = [&](std::shared_ptr<const RoomDocument> document) {
    return std::make_shared<SimulatedRoom>(std::move(document), identifier, device_);
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

void SimulatedSession::deliverInstruction(Instruction instruction, bool isSent) {
  {
    const std::lock_guard lock(mutex_);
    record(instruction, isSent);
  }
  if (const auto delegate = delegate_.load().lock()) delegate->captureSessionDidProvide(instruction);
}

void SimulatedSession::deliverEnd(const std::optional<std::string> &errorDescription, bool isSent) {
  {
    const std::lock_guard lock(mutex_);
    record(Playback::End{errorDescription}, isSent);
    interrupt();
    isEnding_ = true;
  }
  if (const auto delegate = delegate_.load().lock()) delegate->captureSessionDidEnd(errorDescription);
  const std::lock_guard lock(mutex_);
  isEnding_ = false;
}

}  // namespace vantorel
