#include "Crossing.h"
#include "platform/simulated/DeviceJson.h"

using namespace vantorel;
using namespace vantorel::device;

namespace {

/// Never acts; settings tell only whether there is one.
template <typename Delegate>
std::weak_ptr<Delegate> someDelegate(bool isThere, std::shared_ptr<Delegate> delegate) {
  static const auto kept = std::move(delegate);
  return isThere ? kept : nullptr;
}

struct ScanViewDelegate final : RoomCaptureViewDelegate {
  bool captureViewShouldPresent() override { return false; }
  void captureViewDidPresent() override {}
};

/// Likewise.
std::shared_ptr<ARSession> someSession() {
  return simulatedPlatform().arSession(simulatedPlatform().hostARSession());
}

Screen &screen() { return simulatedPlatform().screen(); }
ViewController &controller(void *controller) { return *taken<ViewController>(controller); }
RoomCaptureView &scanView(void *view) { return dynamic_cast<RoomCaptureView &>(*taken<View>(view)); }
Rect rect(const device_rect &from) { return {from.x, from.y, from.width, from.height}; }

}  // namespace

// ---- The window ----

void *device_window() { return given(screen().firstWindow()); }
bool device_window_has_root(void *window) { return taken<Window>(window)->rootViewController() != nullptr; }
void device_window_clear(void *window) { taken<Window>(window)->clearBackground(); }
void device_window_add(void *window, void *controller) {
  taken<Window>(window)->addSubview(::controller(controller));
}
void device_window_exchange(void *window) { taken<Window>(window)->exchangeFirstTwoSubviews(); }

// ---- The library's view controller ----

void *device_controller_create() { return given(screen().makeViewController()); }
bool device_controller_load_view(void *controller) { return ::controller(controller).loadView(); }
void device_controller_insert_at_back(void *controller, void *view) {
  ::controller(controller).insertAtBack(*taken<View>(view));
}
void device_controller_ignore_touches(void *controller) { ::controller(controller).ignoreTouches(); }
void device_controller_dismiss(void *controller) { ::controller(controller).dismissNavigationController(); }

// ---- Views ----

void *device_camera_view_create() { return given<View>(screen().makeARSCNView(std::nullopt)); }

void device_camera_view_note(const device_camera_view *view) {
  ARSCNViewSettings settings{
      .frame = rect(view->frame),
      .session = view->hasSession ? someSession() : nullptr,
      .delegate = someDelegate(view->hasDelegate, std::make_shared<ARSCNViewDelegate>()),
      .antialiasingMode = view->antialiasingMode,
      .automaticallyUpdatesLighting = view->automaticallyUpdatesLighting,
      .rendersCameraGrain = view->rendersCameraGrain,
      .rendersMotionBlur = view->rendersMotionBlur,
      .preferredFramesPerSecond = view->preferredFramesPerSecond};
  parts().notes.set("sceneView.settings", jsonOf(std::optional(settings)));
}

void *device_scan_view_create() { return given<View>(screen().makeRoomCaptureView(std::nullopt)); }

void device_scan_view_note(device_rect frame, bool isModelEnabled, bool hasDelegate) {
  const std::shared_ptr<RoomCaptureViewDelegate> delegate = std::make_shared<ScanViewDelegate>();
  const RoomCaptureViewSettings settings{rect(frame), isModelEnabled, someDelegate(hasDelegate, delegate)};
  parts().notes.set("roomCaptureView.settings", jsonOf(std::optional(settings)));
}

void *device_scan_view_session(void *view) { return given(scanView(view).captureSession()); }
size_t device_scan_view_subview_count(void *view) { return scanView(view).subviewCount(); }
void device_scan_view_hide_subview(void *view, size_t index) { scanView(view).hideSubview(index); }
void device_view_remove(void *view) { taken<View>(view)->removeFromSuperview(); }

// ---- The screen ----

device_rect device_screen_bounds() {
  const Rect bounds = screen().bounds();
  return {bounds.x, bounds.y, bounds.width, bounds.height};
}

int32_t device_screen_orientation() { return static_cast<int32_t>(screen().orientation()); }

device_bytes device_screenshot() {
  device_bytes picture{};
  std::free(errorOf([&] { picture = copied(screen().screenshotJpeg()); }));
  return picture;
}
