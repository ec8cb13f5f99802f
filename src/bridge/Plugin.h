#pragma once

#include "bridge/CallbackRegistry.h"

#include <atomic>
#include <memory>
#include <mutex>

namespace vantorel {

class VTLViewController;

/// All that is static in the core: the host's callbacks and the one controller.
class Plugin {
 public:
  CallbackRegistry callbacks;
  std::atomic<bool> hasStopped = false;  ///< where the platform's stop leaves the process alive

  /// Made on first use, from any thread, and kept: a dispose and a later initialise meet the same object.
  VTLViewController &viewController();

 private:
  std::once_flag made_;
  std::shared_ptr<VTLViewController> viewController_;
};

Plugin &plugin();

}  // namespace vantorel
