#pragma once

#include "platform/ARSession.h"
#include "platform/CapturedRoom.h"

#include <memory>
#include <optional>
#include <string>

namespace vantorel {

class RoomCaptureSession;

/// What the coaching asks of the person scanning; `other` is any case of a later system.
enum class Instruction {
  moveCloseToWall,
  moveAwayFromWall,
  slowDown,
  turnOnLight,
  normal,
  lowTexture,
  other
};

struct RoomCaptureSessionConfiguration {
  bool isCoachingEnabled = true;
};

/// Called by the platform on its delegate thread, in order within one session.
class RoomCaptureSessionDelegate {
 public:
  virtual ~RoomCaptureSessionDelegate() = default;
  virtual void captureSessionDidStart(std::shared_ptr<RoomCaptureSession> session) = 0;
  /// The whole room, at every change.
  virtual void captureSessionDidUpdate(std::shared_ptr<CapturedRoom> room) = 0;
  virtual void captureSessionDidAdd(std::shared_ptr<CapturedRoom> room) = 0;
  virtual void captureSessionDidChange(std::shared_ptr<CapturedRoom> room) = 0;
  virtual void captureSessionDidRemove(std::shared_ptr<CapturedRoom> room) = 0;
  virtual void captureSessionDidProvide(Instruction instruction) = 0;
  /// With the error's localized description, or nothing after a plain stop.
  virtual void captureSessionDidEnd(std::optional<std::string> errorDescription) = 0;
};

/// The platform's room-capture session. None of its calls fails: the session reports by its delegate. Any
/// thread.
class RoomCaptureSession {
 public:
  virtual ~RoomCaptureSession() = default;
  virtual void run(const RoomCaptureSessionConfiguration &configuration) = 0;
  /// Pauses the AR session too.
  virtual void stop() = 0;
  /// iOS 17.
  virtual void stop(bool pauseARSession) = 0;
  /// Never null, the same session for life. Not to be compared by pointer.
  virtual std::shared_ptr<ARSession> arSession() = 0;
  /// Held weakly by the platform.
  virtual void setDelegate(std::weak_ptr<RoomCaptureSessionDelegate> delegate) = 0;
};

}  // namespace vantorel
