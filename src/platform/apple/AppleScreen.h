#pragma once

#include "platform/Screen.h"

namespace vantorel::apple {

class AppleScreen final : public Screen {
 public:
  std::shared_ptr<Window> firstWindow() override;
  std::shared_ptr<ViewController> makeViewController() override;
  std::shared_ptr<RoomCaptureView> makeRoomCaptureView(
      const std::optional<RoomCaptureViewSettings> &settings) override;
  std::shared_ptr<ARSCNView> makeARSCNView(const std::optional<ARSCNViewSettings> &settings) override;
  Rect bounds() override;
  InterfaceOrientation orientation() override;
  std::string screenshotJpeg() override;
};

}  // namespace vantorel::apple
