#pragma once

#include "vantorel/simulated_device.h"

#include "platform/Console.h"

#include <atomic>
#include <string>

namespace vantorel {

/// Lines go to the host's observer, or to standard output without one.
class SimulatedConsole : public Console {
 public:
  void setObserver(vantorelDeviceObserver observer) { observer_ = observer; }
  /// Nothing is printed while muted: what a dying process would still say, nobody hears.
  void setMuted(bool value) { isMuted_ = value; }
  void print(std::string_view line) override;
  /// Tells the observer alone what the device shows: `kind` as in vantorelDeviceObserver.
  void present(const char *kind, const std::string &content);

 private:
  std::atomic<vantorelDeviceObserver> observer_ = nullptr;
  std::atomic<bool> isMuted_ = false;
};

}  // namespace vantorel
