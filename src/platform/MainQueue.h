#pragma once

#include <chrono>
#include <functional>

namespace vantorel {

class MainQueue {
 public:
  virtual ~MainQueue() = default;
  /// Runs `work` later on the main thread, in order of arrival, never inside this call; even when called on
  /// the main thread. Any thread.
  virtual void async(std::function<void()> work) = 0;
  /// The same, no earlier than `delay` from now.
  virtual void after(std::chrono::nanoseconds delay, std::function<void()> work) = 0;
};

}  // namespace vantorel
