#pragma once

#include "vantorel/simulated_device.h"

#include "platform/Console.h"

#include <atomic>

namespace vantorel {

/// Lines go to the host's observer, or to standard output without one.
class SimulatedConsole : public Console {
 public:
  void setObserver(vantorelDeviceObserver observer) { observer_ = observer; }
  void print(std::string_view line) override;

 private:
  std::atomic<vantorelDeviceObserver> observer_ = nullptr;
};

}  // namespace vantorel
