#pragma once

#include "platform/RenderThreads.h"
#include "platform/simulated/Scheduler.h"

namespace vantorel {

class SimulatedRenderThreads : public RenderThreads {
 public:
  /// `scheduler` outlives this and all display links.
  explicit SimulatedRenderThreads(Scheduler &scheduler) : scheduler_(scheduler) {}

  std::shared_ptr<DisplayLink> makeDisplayLink(std::function<void(DisplayLink &)> action) override;
  void startThread(std::function<void()> entry) override { scheduler_.startThread(std::move(entry)); }
  void runCurrentRunLoop() override { scheduler_.runLoop(); }

 private:
  Scheduler &scheduler_;
};

}  // namespace vantorel
