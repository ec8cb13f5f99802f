#pragma once

#include "platform/Screen.h"
#include "platform/simulated/DeviceParts.h"
#include "platform/simulated/ViewTree.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorel {

/// One window, held upright. Shows nothing; its views can be listed.
class SimulatedScreen : public Screen {
 public:
  explicit SimulatedScreen(DeviceParts &device) : device_(device) { reset(); }

  std::shared_ptr<Window> firstWindow() override;
  std::shared_ptr<ViewController> makeViewController() override;
  std::shared_ptr<RoomCaptureView> makeRoomCaptureView(
      const std::optional<RoomCaptureViewSettings> &settings) override;
  std::shared_ptr<ARSCNView> makeARSCNView(const std::optional<ARSCNViewSettings> &settings) override;
  Rect bounds() override { return {0, 0, 390, 844}; }
  InterfaceOrientation orientation() override;
  std::string screenshotJpeg() override;

  void reset();
  /// The names of the views in the window, in the newest view controller's view and in the newest scan view,
  /// from the back to the front.
  std::vector<std::string> windowSubviews();
  std::vector<std::string> controllerSubviews() const;
  std::vector<std::string> scanViewSubviews() const;

 private:
  void arrangeWindow();

  DeviceParts &device_;
  const std::shared_ptr<ViewTree> tree_ = std::make_shared<ViewTree>();
  ViewTree::Ref window_, hostView_, controllerView_;
  std::weak_ptr<ViewTree::View> scanView_;  // lives as long as it is shown, or somebody else holds it
};

}  // namespace vantorel
