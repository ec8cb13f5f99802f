#pragma once

#include "platform/ARSession.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {

class AppleWorldMap final : public WorldMap {
 public:
  explicit AppleWorldMap(Handle map) : map_(std::move(map)) {}

  std::string archivedData() const override;

  vantorel_swift_handle handle() const { return map_.get(); }

 private:
  Handle map_;
};

/// Throws PlatformError when the bytes are no archive; null when the archive holds no map.
std::shared_ptr<WorldMap> unarchivedWorldMap(std::string_view bytes);

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

}  // namespace vantorel::apple
