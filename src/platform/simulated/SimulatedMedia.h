// What the device shows over the host's view, and its screen recorder.
#pragma once

#include "platform/Presenter.h"
#include "platform/ScreenRecorder.h"
#include "platform/simulated/DeviceParts.h"
#include "platform/simulated/SimulatedConsole.h"

#include <optional>

namespace vantorel {

/// Tells the observer, and closes at once.
class SimulatedPresenter : public Presenter {
 public:
  explicit SimulatedPresenter(SimulatedConsole &console) : console_(console) {}
  void present(Presentation kind, const std::string &content) override;

 private:
  SimulatedConsole &console_;
};

/// Nothing can be seen on a desktop, so a recording is a stand-in file that says so. It is written at once; only
/// the completions come later.
class SimulatedScreenRecorder : public ScreenRecorder {
 public:
  explicit SimulatedScreenRecorder(DeviceParts &device) : device_(device) {}
  void start(Completion completion) override;
  void stop(const std::string &path, Completion completion) override;

  bool isRecording() const { return start_.has_value(); }
  void reset() { start_.reset(); }

 private:
  void complete(Completion completion, std::optional<std::string> error);
  std::optional<std::string> write(const std::string &path);

  DeviceParts &device_;
  std::optional<Scheduler::Time> start_;  // of the recording that runs
};

}  // namespace vantorel
