#pragma once

#include "platform/RoomCaptureSession.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {

class AppleRoomCaptureSession final : public RoomCaptureSession {
 public:
  explicit AppleRoomCaptureSession(Handle session) : session_(std::move(session)) {}

  void run(const RoomCaptureSessionConfiguration &configuration) override;
  void stop() override;
  void stop(bool pauseARSession) override;
  std::shared_ptr<ARSession> arSession() override;
  void setDelegate(std::weak_ptr<RoomCaptureSessionDelegate> delegate) override;

 private:
  Handle session_;
};

}  // namespace vantorel::apple
