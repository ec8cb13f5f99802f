// Everything the core asks of a device, handed out in one place. The build links exactly one platform.
#pragma once

#include "platform/CaptureDevice.h"
#include "platform/CapturedStructure.h"
#include "platform/Console.h"
#include "platform/Device.h"
#include "platform/FileManager.h"
#include "platform/MainQueue.h"
#include "platform/Presenter.h"
#include "platform/RenderThreads.h"
#include "platform/RoomCaptureSession.h"
#include "platform/Screen.h"
#include "platform/ScreenRecorder.h"

#include <memory>
#include <string_view>

namespace vantorel {

class Platform {
 public:
  virtual ~Platform() = default;

  virtual Console &console() = 0;
  virtual Device &device() = 0;
  virtual FileManager &fileManager() = 0;
  virtual MainQueue &mainQueue() = 0;
  virtual Presenter &presenter() = 0;
  virtual RenderThreads &renderThreads() = 0;
  virtual Screen &screen() = 0;
  virtual ScreenRecorder &screenRecorder() = 0;

  /// The default camera; null when the device has none.
  virtual std::shared_ptr<CaptureDevice> defaultCamera() = 0;
  /// On the given AR session (iOS 17), or with one of its own when null.
  virtual std::shared_ptr<RoomCaptureSession> makeRoomCaptureSession(
      std::shared_ptr<ARSession> arSession) = 0;
  /// Wraps and retains the host's ARSession object.
  virtual std::shared_ptr<ARSession> arSession(void *object) = 0;

  /// The room of a room text. Throws PlatformError when the text is none.
  virtual std::shared_ptr<CapturedRoom> decodeRoom(std::string_view text) = 0;
  /// With the option to beautify objects (iOS 17).
  virtual std::shared_ptr<StructureBuilder> makeStructureBuilder() = 0;
  /// Throws PlatformError when the bytes are no archive; null when the archive holds no map.
  virtual std::shared_ptr<WorldMap> unarchiveWorldMap(std::string_view bytes) = 0;

  /// Ends the process with a message for the developer on standard error. Does not return and does not throw.
  [[noreturn]] virtual void stop(std::string_view message) = 0;
};

/// The linked platform. Only the bridge calls this; everything below gets a `Platform &`.
Platform &platform();

}  // namespace vantorel
