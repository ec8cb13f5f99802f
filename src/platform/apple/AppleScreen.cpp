#include "platform/apple/AppleScreen.h"

#include "platform/apple/AppleRoomCaptureSession.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {
namespace {

/// The half that all views share, whichever port they fill.
class NativeView {
 public:
  explicit NativeView(Handle view) : view_(std::move(view)) {}
  virtual ~NativeView() = default;
  vantorel_swift_handle handle() const { return view_.get(); }

 private:
  Handle view_;
};

class AppleARSCNView final : public ARSCNView, public NativeView {
 public:
  using NativeView::NativeView;
  void removeFromSuperview() override { vantorel_swift_view_remove_from_superview(handle()); }
};

class AppleRootViewController final : public RootViewController {
 public:
  explicit AppleRootViewController(Handle controller) : controller_(std::move(controller)) {}
  bool makeViewTransparent() override {
    return vantorel_swift_view_controller_make_transparent(controller_.get());
  }

 private:
  Handle controller_;
};

class AppleViewController final : public ViewController {
 public:
  bool loadView() override { return vantorel_swift_view_controller_load_view(handle()); }
  Rect bounds() override {
    const auto [x, y, width, height] = vantorel_swift_view_controller_bounds(handle());
    return {x, y, width, height};
  }
  void insertAtBack(View &view) override {
    vantorel_swift_view_controller_insert_at_back(handle(), dynamic_cast<NativeView &>(view).handle());
  }
  void ignoreTouches() override { vantorel_swift_view_controller_ignore_touches(handle()); }
  void dismissNavigationController() override { vantorel_swift_view_controller_dismiss_navigation(handle()); }
  vantorel_swift_handle handle() const { return controller_.get(); }

 private:
  Handle controller_{vantorel_swift_view_controller_create()};
};

class AppleWindow final : public Window {
 public:
  explicit AppleWindow(Handle window) : window_(std::move(window)) {}

  void clearBackground() override { vantorel_swift_window_clear_background(window_.get()); }
  void addSubview(ViewController &controller) override {
    vantorel_swift_window_add_subview(window_.get(), static_cast<AppleViewController &>(controller).handle());
  }
  void exchangeFirstTwoSubviews() override {
    vantorel_swift_window_exchange_first_two_subviews(window_.get());
  }
  std::shared_ptr<RootViewController> rootViewController() override {
    Handle root(vantorel_swift_window_root_view_controller(window_.get()));
    return root ? std::make_shared<AppleRootViewController>(std::move(root)) : nullptr;
  }

 private:
  Handle window_;
};

vantorel_swift_camera_view_settings crossing(const ARSCNViewSettings &settings) {
  const Rect &frame = settings.frame;
  return {.frame = {frame.x, frame.y, frame.width, frame.height},
          .antialiasingMode = settings.antialiasingMode,
          .automaticallyUpdatesLighting = settings.automaticallyUpdatesLighting,
          .rendersCameraGrain = settings.rendersCameraGrain,
          .rendersMotionBlur = settings.rendersMotionBlur,
          .preferredFramesPerSecond = settings.preferredFramesPerSecond};
}

vantorel_swift_handle makeCameraView(const std::optional<ARSCNViewSettings> &settings) {
  if (!settings) return vantorel_swift_camera_view_create();
  const auto values = crossing(*settings);
  return vantorel_swift_camera_view_create_on(static_cast<AppleARSession &>(*settings->session).handle(),
                                              &values);
}

}  // namespace

std::shared_ptr<Window> AppleScreen::firstWindow() {
  Handle window(vantorel_swift_first_window());
  return window ? std::make_shared<AppleWindow>(std::move(window)) : nullptr;
}

std::shared_ptr<ViewController> AppleScreen::makeViewController() {
  return std::make_shared<AppleViewController>();
}

std::shared_ptr<RoomCaptureView> AppleScreen::makeRoomCaptureView(
    const std::optional<RoomCaptureViewSettings> &) {
  stopProcess("RoomCaptureView is not built for the iPhone yet.");
}

std::shared_ptr<ARSCNView> AppleScreen::makeARSCNView(const std::optional<ARSCNViewSettings> &settings) {
  return std::make_shared<AppleARSCNView>(Handle(makeCameraView(settings)));
}

Rect AppleScreen::bounds() { stopProcess("The screen's bounds are not built for the iPhone yet."); }

std::string AppleScreen::screenshotJpeg() {
  stopProcess("Screenshots are not built for the iPhone yet.");
}

InterfaceOrientation AppleScreen::orientation() {
  stopProcess("The interface orientation is not built for the iPhone yet.");
}

}  // namespace vantorel::apple
