#pragma once

#include <functional>

namespace vantorel {

class MainQueue {
 public:
  virtual ~MainQueue() = default;
  /// Runs `work` later on the main thread, in order of arrival, never inside this call; even when called on
  /// the main thread. Any thread.
  virtual void async(std::function<void()> work) = 0;
};

}  // namespace vantorel
