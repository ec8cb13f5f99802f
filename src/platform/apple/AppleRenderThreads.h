#pragma once

#include "platform/RenderThreads.h"

namespace vantorel::apple {

class AppleRenderThreads final : public RenderThreads {
 public:
  std::shared_ptr<DisplayLink> makeDisplayLink(std::function<void(DisplayLink &)> action) override;
  void startThread(std::function<void()> entry) override;
  void runCurrentRunLoop() override;
};

}  // namespace vantorel::apple
