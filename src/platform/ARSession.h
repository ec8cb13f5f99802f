#pragma once

#include "base/Geometry.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// The controller takes this role, because a session has one delegate and the platform's views expect theirs;
/// it acts on none of the events.
class ARSessionDelegate {
 public:
  virtual ~ARSessionDelegate() = default;
};

/// How the interface is turned.
enum class InterfaceOrientation { unknown, portrait, portraitUpsideDown, landscapeLeft, landscapeRight };

struct ProjectionRequest {
  InterfaceOrientation orientation = InterfaceOrientation::unknown;
  double viewportWidth = 0, viewportHeight = 0;  ///< points
  double zNear = 0, zFar = 0;                    ///< metres
};

/// What an AR session knows of a space, so that another one can find itself in it. Opaque and immutable; any
/// thread.
class WorldMap {
 public:
  virtual ~WorldMap() = default;
  /// The bytes that Platform::unarchiveWorldMap reads. Throws PlatformError.
  virtual std::string archivedData() const = 0;
};

/// An AR session, shared between a capture session and the view that shows it. Any thread.
class ARSession {
 public:
  virtual ~ARSession() = default;
  /// Held weakly by the platform.
  virtual void setDelegate(std::weak_ptr<ARSessionDelegate> delegate) = 0;
  /// The current frame's camera pose in world space; nothing before the first frame.
  virtual std::optional<Float4x4> cameraTransform() = 0;
  /// The current frame's projection; nothing before the first frame.
  virtual std::optional<Float4x4> projectionMatrix(const ProjectionRequest &request) = 0;
  /// Whether there is a current frame and its camera's tracking is normal.
  virtual bool isTrackingNormal() = 0;
  /// World tracking, from a map (iOS 17) or, when null, without one. Neither tracking nor anchors are reset.
  virtual void run(std::shared_ptr<WorldMap> initialWorldMap) = 0;
  /// Calls `completion` once, later, on a thread of the platform's; with null when there is no map.
  virtual void getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)> completion) = 0;
};

}  // namespace vantorel
