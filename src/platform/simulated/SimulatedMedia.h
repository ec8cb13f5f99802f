// What the device shows over the host's view, and its screen recorder.
#pragma once

#include "platform/Presenter.h"
#include "platform/ScreenRecorder.h"
#include "platform/simulated/DeviceParts.h"
#include "platform/simulated/SimulatedConsole.h"

namespace vantorel {

/// Tells the observer, and closes at once.
class SimulatedPresenter : public Presenter {
 public:
  explicit SimulatedPresenter(SimulatedConsole &console) : console_(console) {}
  void present(Presentation kind, const std::string &content) override;

 private:
  SimulatedConsole &console_;
};

/// Nothing can be seen on a desktop, so a recording is a stand-in file that says so.
class SimulatedScreenRecorder : public ScreenRecorder {
 public:
  explicit SimulatedScreenRecorder(DeviceParts &device) : device_(device) {}
  void start(Completion completion) override;
  void stop(const std::string &path, Completion completion) override;
  void reset() { isRecording_ = false; }

 private:
  DeviceParts &device_;
  bool isRecording_ = false;
};

}  // namespace vantorel
