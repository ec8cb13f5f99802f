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
    if (!resumes()) beginScan();
    if (!isEnding_) sentAt_.reset();
    canResume_ = false;
    isRunning_ = true;
    isCoaching_ = configuration.isCoachingEnabled;
    start_ = device_.scheduler.now() - elapsed_;
    run_ = device_.scheduler.newGroup();
    arSession_->beginWalk(scan_, elapsed_);
    recorded_ = device_.recorder.begin(scan_ ? scan_->cameraAt(elapsed_) : arSession_->restingPose());
    postStart();
    postSteps();
  }
  device_.options.forgetFrame();
  device_.sessions.ran(shared_from_this());
}

/// Whether a run goes on with the room whose scan an end interrupted. With the lock held.
bool SimulatedSession::resumes() const {
  if (!canResume_ || !scan_ || scan_->isRecorded()) return false;
  // Inside the end that a delegate answers with a new run, a room set for later stays for later.
  return isEnding_ || !device_.sessions.hasNextScan();
}

/// After an end the last update stands until the next one, whether a room is scanned or a recording played.
void SimulatedSession::beginScan() {
  scan_ = device_.sessions.takeNextScan();
  nextStep_ = 0;
  elapsed_ = 0;
  if (!canResume_) seen_ = nullptr;
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

/// Those that come at once are played with the step before or the start. None overtakes one that was sent.
void SimulatedSession::postSteps() {
  if (!scan_) return;
  const auto &steps = scan_->steps();
  bool isLast = false;
  for (std::size_t step = nextStep_; step < steps.size(); ++step) {
    const bool isFirst = step == nextStep_, isAtOnce = steps[step].isAtOnce;
    const bool isFirstOfTime = isFirst || steps[step].due != steps[step - 1].due;
    isLast = (steps[step].isSent && !(isFirst && isAtOnce)) || (isLast && !isFirstOfTime);
    if (isFirst || !isAtOnce) postStep(step, isLast);
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
void SimulatedSession::play(Scheduler::Group run, std::size_t number) {
  for (bool goesOn = true; goesOn; ++number) {
    std::shared_ptr<const Playback> scan;
    {
      const std::lock_guard lock(mutex_);
      if (!isRunning_ || run != run_) return;
      nextStep_ = number + 1;
      if (isHeard(scan_->steps()[number])) scan = scan_;
      goesOn = nextStep_ < scan_->steps().size() && scan_->steps()[nextStep_].isAtOnce;
    }
    if (!scan) continue;
    const Playback::Step &step = scan->steps()[number];
    deliver(step,
            std::holds_alternative<Playback::Update>(step.event) ? scan->seenAt(number) : Playback::Seen{});
    if (scan->isRecorded()) device_.sessions.countPlayed();
  }
}

/// A session without coaching has no instructions of its own. With the lock held.
bool SimulatedSession::isHeard(const Playback::Step &step) const {
  return isCoaching_ || step.isSent || !std::holds_alternative<Instruction>(step.event);
}

// ---- Events ----

void SimulatedSession::send(Playback::Event event, const Playback::Seen &seen) {
  Playback::Step step{.event = std::move(event), .isSent = true};
  {
    const std::lock_guard lock(mutex_);
    const auto advances = device_.scheduler.advances();
    if (isRunning_) step.isAtOnce = std::exchange(sentAt_, advances) == advances;
  }
  deliver(step, seen);
}

/// At this moment, whatever the step's time.
void SimulatedSession::deliver(const Playback::Step &step, const Playback::Seen &seen) {
  record(step, seen);
  if (std::holds_alternative<Playback::Update>(step.event)) {
    update(seen);
  } else if (const auto *ending = std::get_if<Playback::End>(&step.event)) {
    end(ending->description);
  } else if (const auto delegate = delegate_.load().lock()) {
    delegate->captureSessionDidProvide(std::get<Instruction>(step.event));
  }
}

/// What happens in a run, before the delegate hears of it.
void SimulatedSession::record(const Playback::Step &step, const Playback::Seen &seen) {
  const std::lock_guard lock(mutex_);
  if (!isRunning_ || recorded_ == 0) return;
  const auto time = device_.scheduler.now() - start_ - elapsed_;
  device_.recorder.record(recorded_, {time, step.event, step.isSent, step.isAtOnce},
                          arSession_->cameraTransform(), seen);
}

/// Before the update what was added, changed and removed since the last one, as rooms of those elements alone.
void SimulatedSession::update(const Playback::Seen &seen) {
  const auto before = [&] {
    const std::lock_guard lock(mutex_);
    return std::exchange(seen_, seen.room);
  }();
  const auto delegate = delegate_.load().lock();
  if (!delegate) return;
  const auto captured = [&](std::shared_ptr<const RoomDocument> document) {
    return std::make_shared<SimulatedRoom>(std::move(document), seen.identifier, device_);
  };
  const auto part = [&](RoomDocument &document) {
    return captured(std::make_shared<RoomDocument>(std::move(document)));
  };
  RoomDifference difference = differenceOf(before.get(), *seen.room);
  if (!difference.added.isEmpty()) delegate->captureSessionDidAdd(part(difference.added));
  if (!difference.changed.isEmpty()) delegate->captureSessionDidChange(part(difference.changed));
  if (!difference.removed.isEmpty()) delegate->captureSessionDidRemove(part(difference.removed));
  delegate->captureSessionDidUpdate(captured(seen.room));
}

/// Also stops the session.
void SimulatedSession::end(const std::optional<std::string> &errorDescription) {
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
