#pragma once

#include "platform/RenderThreads.h"
#include "platform/simulated/DeviceParts.h"

namespace vantorel {

class SimulatedRenderThreads : public RenderThreads {
 public:
  /// `device` outlives this and all display links.
  explicit SimulatedRenderThreads(DeviceParts &device) : device_(device) {}

  std::shared_ptr<DisplayLink> makeDisplayLink(std::function<void(DisplayLink &)> action) override;
  void startThread(std::function<void()> entry) override { device_.scheduler.startThread(std::move(entry)); }
  void runCurrentRunLoop() override { device_.scheduler.runLoop(); }

 private:
  DeviceParts &device_;
};

}  // namespace vantorel
