#pragma once

#include <functional>
#include <memory>

namespace vantorel {

enum class RunLoopMode { defaultMode, commonModes };

/// Frames a second.
struct FrameRateRange {
  float minimum = 0, maximum = 0;
  float preferred = 0;  ///< 0: unset
};

/// A timer at the display's pace. It fires on the run loop it was added to and holds its action until
/// invalidated.
class DisplayLink {
 public:
  virtual ~DisplayLink() = default;
  virtual void addToCurrentRunLoop(RunLoopMode mode) = 0;
  virtual void setPreferredFrameRateRange(const FrameRateRange &range) = 0;
  /// Ends it for good; again: nothing. Any thread.
  virtual void invalidate() = 0;
  /// Of the last frame and of the next one, in seconds.
  virtual double timestamp() = 0;
  virtual double targetTimestamp() = 0;
};

class RenderThreads {
 public:
  virtual ~RenderThreads() = default;
  virtual std::shared_ptr<DisplayLink> makeDisplayLink(std::function<void(DisplayLink &)> action) = 0;
  /// Runs `entry` on a new thread of its own, which ends with it.
  virtual void startThread(std::function<void()> entry) = 0;
  /// Runs the calling thread's run loop; returns when nothing is left that could fire.
  virtual void runCurrentRunLoop() = 0;
};

}  // namespace vantorel
