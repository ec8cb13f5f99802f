#pragma once

#include <functional>
#include <optional>
#include <string>

namespace vantorel {

/// Films the screen. Main thread.
class ScreenRecorder {
 public:
  /// Called once, later, on a thread of the platform's; with a description when it failed.
  using Completion = std::function<void(std::optional<std::string> error)>;

  virtual ~ScreenRecorder() = default;
  /// Fails while a recording runs, and when the person declines.
  virtual void start(Completion completion) = 0;
  /// Ends the recording and writes it to a file ending in ".mp4", in place of one that is there. Fails when none
  /// runs.
  virtual void stop(const std::string &path, Completion completion) = 0;
};

}  // namespace vantorel
