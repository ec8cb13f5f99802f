// Views and the host's window, as far as the core decides about them. Main thread, except where a method says
// more.
#pragma once

#include "base/Geometry.h"
#include "base/Guarded.h"
#include "platform/ARSession.h"
#include "platform/RoomCaptureSession.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace vantorel {

class View {
 public:
  virtual ~View() = default;
  /// Nothing happens when it is in no view. Any thread: the platform hops to main if it must.
  virtual void removeFromSuperview() = 0;
};

/// The scan view's own questions, on the platform's thread.
class RoomCaptureViewDelegate {
 public:
  virtual ~RoomCaptureViewDelegate() = default;
  /// Whether the platform should process the scan and show its own result screen.
  virtual bool captureViewShouldPresent() = 0;
  virtual void captureViewDidPresent() = 0;
};

struct RoomCaptureViewSettings {
  Rect frame;
  bool isModelEnabled = true;
  std::weak_ptr<RoomCaptureViewDelegate> delegate;
};

/// The platform's own scan view.
class RoomCaptureView : public View {
 public:
  /// The view's own session, never null.
  virtual std::shared_ptr<RoomCaptureSession> captureSession() = 0;
  virtual std::size_t subviewCount() = 0;
  /// `index` is below subviewCount.
  virtual void hideSubview(std::size_t index) = 0;
};

/// Draws nothing itself: the role that a camera view's delegate has.
class ARSCNViewDelegate {
 public:
  virtual ~ARSCNViewDelegate() = default;
};

struct ARSCNViewSettings {
  Rect frame;
  std::shared_ptr<ARSession> session;
  std::weak_ptr<ARSCNViewDelegate> delegate;
  int antialiasingMode = 0;  ///< the platform's number; 0 is none
  bool automaticallyUpdatesLighting = false;
  bool rendersCameraGrain = false;
  bool rendersMotionBlur = false;
  int preferredFramesPerSecond = 30;
};

/// The plain camera view with an empty scene.
class ARSCNView : public View {};

/// Where the camera view is kept, or null.
using SceneViewSlot = Guarded<std::shared_ptr<ARSCNView>>;

/// The host window's root view controller.
class RootViewController {
 public:
  virtual ~RootViewController() = default;
  /// Makes its view non-opaque with a clear background. False when the view cannot be loaded.
  virtual bool makeViewTransparent() = 0;
};

/// The platform's half of the library's own view controller. Its view is loaded when first asked for.
class ViewController {
 public:
  virtual ~ViewController() = default;
  /// False when the view cannot be loaded; the other methods are then not called.
  virtual bool loadView() = 0;
  virtual Rect bounds() = 0;
  /// Behind every other subview.
  virtual void insertAtBack(View &view) = 0;
  /// Touches then reach the host's view.
  virtual void ignoreTouches() = 0;
  /// Without animation; nothing happens when the controller is in no navigation controller.
  virtual void dismissNavigationController() = 0;
  /// Lets others read and write the slot by the name "sceneView", where the platform's runtime finds members by name.
  virtual void exposeSceneView(std::weak_ptr<SceneViewSlot> slot) = 0;
};

class Window {
 public:
  virtual ~Window() = default;
  virtual void clearBackground() = 0;
  /// A view that is already there moves to the front.
  virtual void addSubview(ViewController &controller) = 0;
  /// Exchanges the window's first two subviews; with fewer than two nothing happens.
  virtual void exchangeFirstTwoSubviews() = 0;
  /// Null when the window has none.
  virtual std::shared_ptr<RootViewController> rootViewController() = 0;
};

class Screen {
 public:
  virtual ~Screen() = default;
  /// The first window of the first connected scene; null when that is no window scene or has no window.
  virtual std::shared_ptr<Window> firstWindow() = 0;
  virtual std::shared_ptr<ViewController> makeViewController() = 0;
  /// With the plain initialiser when there are no settings.
  virtual std::shared_ptr<RoomCaptureView> makeRoomCaptureView(
      const std::optional<RoomCaptureViewSettings> &settings) = 0;
  virtual std::shared_ptr<ARSCNView> makeARSCNView(const std::optional<ARSCNViewSettings> &settings) = 0;
  /// The main screen's, in points.
  virtual Rect bounds() = 0;
  /// Of the first window's scene.
  virtual InterfaceOrientation orientation() = 0;
  /// A JPEG of what the first window shows. Throws PlatformError.
  virtual std::string screenshotJpeg() = 0;
};

}  // namespace vantorel
