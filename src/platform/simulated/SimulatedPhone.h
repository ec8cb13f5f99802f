// The small ports: what the phone is, its main queue and its torch.
#pragma once

#include "platform/CaptureDevice.h"
#include "platform/Device.h"
#include "platform/MainQueue.h"
#include "platform/PlatformError.h"
#include "platform/simulated/DeviceParts.h"

#include <atomic>

namespace vantorel {

class SimulatedPhone : public Device {
 public:
  explicit SimulatedPhone(const DeviceOptions &options) : options_(options) {}
  bool isSystemAtLeast(int majorVersion) override { return options_.get().systemMajor >= majorVersion; }
  bool supportsSceneReconstruction() override { return options_.get().hasLidar; }

 private:
  const DeviceOptions &options_;
};

class SimulatedMainQueue : public MainQueue {
 public:
  explicit SimulatedMainQueue(Scheduler &scheduler) : scheduler_(scheduler) {}
  void async(std::function<void()> work) override {
    scheduler_.post({.role = Role::main, .work = std::move(work)});
  }
  /// The library waits only to poll, so settle does not wait for it.
  void after(std::chrono::nanoseconds delay, std::function<void()> work) override {
    scheduler_.post({.role = Role::main, .work = std::move(work), .isPeriodic = true},
                    scheduler_.now() + delay.count());
  }

 private:
  Scheduler &scheduler_;
};

class SimulatedCamera : public CaptureDevice {
 public:
  explicit SimulatedCamera(const DeviceOptions &options) : options_(options) {}
  bool hasTorch() override { return options_.get().torch != DeviceTraits::Torch::absent; }
  void lockForConfiguration() override {
    if (options_.get().torch == DeviceTraits::Torch::refused)
      throw PlatformError("the camera refuses its configuration lock");
  }
  void setTorch(bool on) override { isLit_ = on; }
  void unlockForConfiguration() override {}

  bool isLit() const { return isLit_; }

 private:
  const DeviceOptions &options_;
  std::atomic<bool> isLit_ = false;
};

}  // namespace vantorel
