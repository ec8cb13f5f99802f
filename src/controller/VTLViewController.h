#pragma once

#include "bridge/CallbackRegistry.h"
#include "controller/ControllerState.h"
#include "platform/Platform.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

inline constexpr const char *kNeedsIOS17 = "This feature is only available for iOS 17+.";

// What Swift prints when a forced value is missing.
inline constexpr const char *kNilImplicitlyUnwrapped =
    "Unexpectedly found nil while implicitly unwrapping an Optional value";
inline constexpr const char *kNilUnwrapped = "Unexpectedly found nil while unwrapping an Optional value";

/// The one controller: it owns the room-capture session, its views and its render thread, and turns the
/// platform's events into the host's callbacks. Operations run on the thread that calls them, the main thread
/// in practice; the session's events come on the platform's delegate thread. No operation waits for another,
/// and no callback runs under a lock.
///
/// Where something that must exist is missing (a root view, a display link), the process stops.
class VTLViewController final : public ControllerState,
                                public RoomCaptureSessionDelegate,
                                public RoomCaptureViewDelegate,
                                public ARSessionDelegate,
                                public ARSCNViewDelegate,
                                public std::enable_shared_from_this<VTLViewController> {
 public:
  /// Both must outlive the controller. Hold it by a shared_ptr: the platform keeps weak references.
  VTLViewController(Platform &platform, const CallbackRegistry &callbacks);

  // ---- Scene set-up and render loop ----

  /// Fires VTLDidStart, starts the render thread unless the host renders, and marks the controller present.
  void Initialize();
  /// Builds both views once and throws them away, so that the platform loads their resources.
  void PrepareResources();
  /// The per-frame hook, on the render thread. Its body is empty: the pacing is there for work to come.
  void render(DisplayLink &link);
  /// Another pacing, on the current run loop, that nothing starts yet.
  void createDisplayLink();
  void step(DisplayLink &link);

  /// The platform's half of this controller.
  ViewController &viewController() { return *viewController_; }
  /// The same, with its view loaded; stops the process if that fails.
  ViewController &loadedView();

  // ---- Capture session ----

  void createCaptureSession();
  void startCaptureSession();
  void stopCaptureSession();
  void stopCaptureSessionWithPause(bool pauseARSession);
  void runCaptureSession();
  void pauseCaptureSessionScanning();
  void resumeCaptureSessionScanning();
  void createNewRoomCaptureSession();
  /// Runs the session again after a tracking failure; to the host it is invisible. Delegate thread.
  void forceReloadCaptureSession();
  void addCapturedRoomToArray();
  void dispose();
  /// Runs the session that createCaptureSession built, and tells the host.
  void beginScanning();

  /// The capture session; the first read creates one. Only the main thread can find none.
  std::shared_ptr<RoomCaptureSession> session();

  // ---- The platform's events, on its delegate thread ----

  void captureSessionDidStart(std::shared_ptr<RoomCaptureSession> started) override;
  void captureSessionDidUpdate(std::shared_ptr<CapturedRoom> room) override;
  void captureSessionDidAdd(std::shared_ptr<CapturedRoom>) override {}
  void captureSessionDidChange(std::shared_ptr<CapturedRoom>) override {}
  void captureSessionDidRemove(std::shared_ptr<CapturedRoom>) override {}
  void captureSessionDidProvide(Instruction instruction) override;
  void captureSessionDidEnd(std::optional<std::string> errorDescription) override;
  /// The platform's own result screen is never shown.
  bool captureViewShouldPresent() override { return false; }
  void captureViewDidPresent() override {}

  /// Encodes the room, keeps its text and hands a copy to the host. A room that cannot be encoded changes
  /// nothing.
  void SendRoomSnapshot(const CapturedRoom &room);

  // ---- Camera ----

  /// Samples the current frame's pose; without a frame the stored matrix stays.
  void getARCameraMatrixArray();
  void getARCameraProjectionMatrixArray();

  // ---- Saving, merging, world maps ----

  void SaveExperience();
  /// True when every step was done. With more rooms than one (iOS 17) a merge begins instead: true at once.
  bool TrySaveExperience();
  /// `data` is room texts, joined by kRoomSeparator. Files are all that comes of it.
  void MergeScans(const std::string &data, const std::string &directory, const std::string &scan);
  /// Merges the rooms of this session, the current one included.
  void MergeScansInCapturedRoomSession();
  /// `path` is the map's file. The scan begins once the session has found itself in the map's space.
  void startCaptureSessionWithARWorldMap(const std::string &path);
  /// Writes the map to `path` + "WorldMap/scan", later, and then ends the scan.
  void stopCaptureSessionWithARWorldMap(const std::string &path);

  // ---- Media, sharing, torch ----

  void SetFlashlightStatus(bool status);
  void QuickLook(const std::string &path);
  void ShareText(const std::string &text);
  void ShareLink(const std::string &text);
  void ShareFolder(const std::string &path);
  void ShareFile(const std::string &path);
  void Screenshot();
  void ScreenshotShare();
  void startScreenRecorder();
  void stopScreenRecorder();

 private:
  void buildCustomSession();
  void buildScanView();
  void buildCameraView();
  void runSession();
  void removeScanningView();
  void closeRoom(bool pauseARSession);
  void endWithWorldMap(const std::string &path, const WorldMap *map);
  bool requireIOS17();
  void startRenderThread();
  static void runOnBackgroundThread(Platform &platform, DisplayLink &link);
  void handleUpdate(const std::shared_ptr<CapturedRoom> &room);
  void shareWords(Presentation kind, const std::string &text);
  void screenRecorderDidWrite(const std::string &path);

  Platform &platform_;
  const CallbackRegistry &callbacks_;
  std::shared_ptr<ViewController> viewController_;
  int screenRecordings_ = 0;  // that were to be written
};

}  // namespace vantorel
