#include "platform/apple/AppleScreen.h"

#include "platform/apple/AppleARSession.h"
#include "platform/apple/AppleRoomCaptureSession.h"
#include "platform/apple/Border.h"
#include "platform/apple/Forwarder.h"

namespace vantorel::apple {
namespace {

Rect rect(const vantorel_swift_rect &from) { return {from.x, from.y, from.width, from.height}; }

vantorel_swift_rect crossing(const Rect &rect) { return {rect.x, rect.y, rect.width, rect.height}; }

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

class AppleRoomCaptureView final : public RoomCaptureView, public NativeView {
 public:
  using NativeView::NativeView;
  std::shared_ptr<RoomCaptureSession> captureSession() override {
    return std::make_shared<AppleRoomCaptureSession>(
        Handle(vantorel_swift_scan_view_capture_session(handle())));
  }
  std::size_t subviewCount() override { return vantorel_swift_view_subview_count(handle()); }
  void hideSubview(std::size_t index) override { vantorel_swift_view_hide_subview(handle(), index); }
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
  Rect bounds() override { return rect(vantorel_swift_view_controller_bounds(handle())); }
  void insertAtBack(View &view) override {
    vantorel_swift_view_controller_insert_at_back(handle(), dynamic_cast<NativeView &>(view).handle());
  }
  void ignoreTouches() override { vantorel_swift_view_controller_ignore_touches(handle()); }
  void dismissNavigationController() override { vantorel_swift_view_controller_dismiss_navigation(handle()); }
  void exposeSceneView(std::weak_ptr<SceneViewSlot> slot) override {
    vantorel_swift_view_controller_expose_scene_view(handle(), carry(std::move(slot)));
  }
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
  return {.frame = crossing(settings.frame),
          .antialiasingMode = settings.antialiasingMode,
          .automaticallyUpdatesLighting = settings.automaticallyUpdatesLighting,
          .rendersCameraGrain = settings.rendersCameraGrain,
          .rendersMotionBlur = settings.rendersMotionBlur,
          .preferredFramesPerSecond = settings.preferredFramesPerSecond};
}

vantorel_swift_handle makeScanView(const std::optional<RoomCaptureViewSettings> &settings) {
  if (!settings) return vantorel_swift_scan_view_create();
  static auto &forwarder = *new Forwarder<RoomCaptureViewDelegate>(vantorel_swift_scan_view_delegate_create);
  return forwarder.with(settings->delegate, [&](vantorel_swift_handle delegate) {
    return vantorel_swift_scan_view_create_framed(crossing(settings->frame), settings->isModelEnabled,
                                                  delegate);
  });
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
    const std::optional<RoomCaptureViewSettings> &settings) {
  return std::make_shared<AppleRoomCaptureView>(Handle(makeScanView(settings)));
}

std::shared_ptr<ARSCNView> AppleScreen::makeARSCNView(const std::optional<ARSCNViewSettings> &settings) {
  return std::make_shared<AppleARSCNView>(Handle(makeCameraView(settings)));
}

Rect AppleScreen::bounds() { return rect(vantorel_swift_screen_bounds()); }

std::string AppleScreen::screenshotJpeg() {
  const Handle window(vantorel_swift_first_window());
  if (!window) throw PlatformError("there is no window");
  return textFrom(
      [&](void *bytes, void *error) { return vantorel_swift_window_jpeg(window.get(), bytes, error); });
}

InterfaceOrientation AppleScreen::orientation() {
  return static_cast<InterfaceOrientation>(vantorel_swift_interface_orientation());
}

}  // namespace vantorel::apple

using namespace vantorel;
using namespace vantorel::apple;

bool vantorel_core_scan_view_should_present(void *context) noexcept {
  const auto delegate = carried<std::weak_ptr<RoomCaptureViewDelegate>>(context).lock();
  return delegate && delegate->captureViewShouldPresent();
}

void vantorel_core_scan_view_did_present(void *context) noexcept {
  if (const auto delegate = carried<std::weak_ptr<RoomCaptureViewDelegate>>(context).lock())
    delegate->captureViewDidPresent();
}

vantorel_swift_handle vantorel_core_scene_view(void *context) noexcept {
  const auto slot = carried<std::weak_ptr<SceneViewSlot>>(context).lock();
  const auto view = slot ? slot->load() : nullptr;
  return view ? vantorel_swift_retain(static_cast<AppleARSCNView &>(*view).handle()) : nullptr;
}

void vantorel_core_set_scene_view(void *context, vantorel_swift_handle view) noexcept {
  const auto kept = view ? std::make_shared<AppleARSCNView>(Handle(view)) : nullptr;
  if (const auto slot = carried<std::weak_ptr<SceneViewSlot>>(context).lock()) slot->store(kept);
}
