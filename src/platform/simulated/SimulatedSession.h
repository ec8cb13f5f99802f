#pragma once

#include "platform/RoomCaptureSession.h"
#include "platform/simulated/DeviceParts.h"
#include "platform/simulated/Playback.h"
#include "platform/simulated/SimulatedARSession.h"

#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace vantorel {

/// Plays the device's next scan when it is run.
class SimulatedSession : public RoomCaptureSession, public std::enable_shared_from_this<SimulatedSession> {
 public:
  /// `device` outlives the session.
  static std::shared_ptr<SimulatedSession> make(DeviceParts &device,
                                                std::shared_ptr<SimulatedARSession> arSession);
  ~SimulatedSession() override;

  /// The start event and the first frame come later, on the delegate thread. After an end that was delivered,
  /// a run goes on with the room that was being scanned; a recording has a run of its own for it.
  void run(const RoomCaptureSessionConfiguration &configuration) override;
  void stop() override { stop(true); }
  /// The plain end event comes later. The camera stays where it is either way.
  void stop(bool pauseARSession) override;
  std::shared_ptr<ARSession> arSession() override { return arSession_; }
  void setDelegate(std::weak_ptr<RoomCaptureSessionDelegate> delegate) override {
    delegate_.store(std::move(delegate));
  }

  bool isRunning() const;
  /// What the current scan has seen of its room so far; null: nothing.
  std::shared_ptr<const RoomDocument> seen() const;
  bool hasARDelegate() const { return arSession_->hasDelegate(); }

  /// An event from outside, on the delegate thread, whether the session runs or not. `seen` is for updates.
  void send(Playback::Event event, const Playback::Seen &seen = {});

 private:
  SimulatedSession(DeviceParts &device, std::shared_ptr<SimulatedARSession> arSession);

  void postStart();
  void postEnd();
  void postSteps();
  void postStep(std::size_t step, bool isLast);
  void play(Scheduler::Group run, std::size_t step);
  bool interrupt();
  bool resumes() const;
  void beginScan();
  bool isHeard(const Playback::Step &step) const;
  void deliver(const Playback::Step &step, const Playback::Seen &seen);
  void record(const Playback::Step &step, const Playback::Seen &seen);
  void update(const Playback::Seen &seen);
  void end(const std::optional<std::string> &errorDescription);

  DeviceParts &device_;
  const std::shared_ptr<SimulatedARSession> arSession_;
  Guarded<std::weak_ptr<RoomCaptureSessionDelegate>> delegate_;

  mutable std::mutex mutex_;
  bool isRunning_ = false;
  bool isEnding_ = false;   // inside end()
  bool canResume_ = false;  // ended by end(), so that the scan may go on
  bool isCoaching_ = true;
  Scheduler::Group run_ = 0;  // the pending steps of the current run
  std::shared_ptr<const Playback> scan_;
  SessionRecorder::Run recorded_ = 0;
  std::optional<std::uint64_t> sentAt_;       // the scheduler's advances at the last event sent in this run
  std::shared_ptr<const RoomDocument> seen_;  // by the last update of this scan
  std::size_t nextStep_ = 0;
  Scheduler::Time elapsed_ = 0;  // of the scan, when it was interrupted before this run
  Scheduler::Time start_ = 0;    // of the scan, in the device's time
};

}  // namespace vantorel
