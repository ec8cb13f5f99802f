#pragma once

#include "base/Geometry.h"
#include "base/Guarded.h"
#include "platform/CapturedRoom.h"
#include "platform/RenderThreads.h"
#include "platform/RoomCaptureSession.h"
#include "platform/Screen.h"

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The controller's stored properties in their order, with their defaults. Nothing resets them after
/// construction but the operations that say so. Members that the platform's threads touch are atomic or
/// guarded; all others belong to the main thread.
struct ControllerState {
  std::atomic<bool> isScanning{false};
  bool isPresent = false;
  bool isCoachingEnabled = true;
  std::atomic<bool> isDefaultScanEnabled{false};
  bool isDefaultMiniatureModelEnabled = true;
  bool isDefaultScanDataTransferEnabled = false;
  std::atomic<bool> isInstructionEnabled{true};
  bool isTorchEnabled = false;
  std::atomic<bool> isCustomXREnabled{false};
  bool isMultiRoomEnabled = false;
  std::vector<std::string> capturedRoomsData;  ///< a room text per closed room, "" when no update had come
  bool isARWorldMapEnabled = false;
  std::atomic<bool> isRoomPlanSessionScanningPaused{false};
  Float4x4 arCameraMatrix;
  Float4x4 arCameraProjectionMatrix;
  std::string directoryName = "model-viewer";
  std::string scanName = "My new scan";
  std::shared_ptr<CapturedRoom> finalResults;                   ///< the last room that was not empty
  std::weak_ptr<RoomCaptureViewDelegate> delegate;              ///< never set, only shown
  Guarded<std::shared_ptr<RoomCaptureSession>> captureSession;  ///< read through VTLViewController::session
  Guarded<std::shared_ptr<RoomCaptureView>> roomCaptureView;
  std::shared_ptr<RootViewController> rootViewController;
  Guarded<RoomCaptureSessionConfiguration> roomCaptureSessionConfig;
  SceneViewSlot sceneView;
  std::shared_ptr<ARSession> customARSession;
  bool nativeScreenshot = false;
  bool nativeScreenshotPreview = false;
  std::string nativeScreenshotOutputURL;
  std::vector<std::string> nativeScreenshotActivityItems;
  bool nativeScreenRecorder = false;
  bool nativeScreenRecorderPreview = false;
  std::string nativeScreenRecorderOutputURL;
  std::string roomFinalStringResults;                 ///< room text of the last update
  Guarded<std::string> roomInstructionStringResults;  ///< the last instruction's word
  std::shared_ptr<DisplayLink> displayLink;
  std::optional<std::string> QLModelViewerURL;
};

/// Compact JSON of one property, of "roomCaptureSessionConfig.isCoachingEnabled", or with an empty name of
/// all properties in their order. Nothing for an unknown name. Objects appear as null or a short text. Main
/// thread; it creates nothing.
std::optional<std::string> stateJson(const ControllerState &state, std::string_view name);

}  // namespace vantorel
