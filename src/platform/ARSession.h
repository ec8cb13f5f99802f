#pragma once

#include "base/Geometry.h"

#include <memory>
#include <optional>

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
};

}  // namespace vantorel
