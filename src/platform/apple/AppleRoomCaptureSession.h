#pragma once

#include "platform/RoomCaptureSession.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {

class AppleARSession final : public ARSession {
 public:
  explicit AppleARSession(Handle session) : session_(std::move(session)) {}

  /// The role has no events: the session gets a delegate that acts on nothing.
  void setDelegate(std::weak_ptr<ARSessionDelegate> delegate) override;
  std::optional<Float4x4> cameraTransform() override;
  std::optional<Float4x4> projectionMatrix(const ProjectionRequest &request) override;
  bool isTrackingNormal() override;
  void run(std::shared_ptr<WorldMap> initialWorldMap) override;
  void getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)> completion) override;

  vantorel_swift_handle handle() const { return session_.get(); }

 private:
  Handle session_;
};

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
