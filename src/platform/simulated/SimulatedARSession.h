#pragma once

#include "base/Guarded.h"
#include "platform/ARSession.h"
#include "platform/simulated/DeviceParts.h"
#include "platform/simulated/Playback.h"
#include "platform/simulated/SimulatedWorldMap.h"

#include <memory>
#include <mutex>

namespace vantorel {

/// Its frames show the walk through the room that is being scanned.
class SimulatedARSession : public ARSession, public std::enable_shared_from_this<SimulatedARSession> {
 public:
  using Tracking = DeviceTraits::Tracking;

  /// In a space of its own. `device` outlives the session.
  explicit SimulatedARSession(DeviceParts &device);

  void setDelegate(std::weak_ptr<ARSessionDelegate> delegate) override { delegate_.store(delegate); }
  std::optional<Float4x4> cameraTransform() override;
  std::optional<Float4x4> projectionMatrix(const ProjectionRequest &request) override;
  bool isTrackingNormal() override;
  /// The first frame comes later, on the delegate thread. From a map the session finds itself within 2 s, in the
  /// map's space and where the map left off.
  void run(std::shared_ptr<WorldMap> initialWorldMap) override;
  /// 0.5 s later, on the completion thread. There is no map before the first frame.
  void getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)> completion) override;

  bool hasDelegate() const { return !delegate_.load().expired(); }
  /// Never automatic; nothing before the first frame.
  std::optional<Tracking> tracking() const;
  Uuid space() const;
  /// Whether the last run was from a map.
  bool hasInitialMap() const;

  /// Where the camera stands without a walk: at the origin, or where its world map left off.
  Float4x4 restingPose() const;
  /// From now on the camera walks as in `scan`, `elapsed` after its beginning; null: it stays where the map left
  /// off, at the origin without one.
  void beginWalk(std::shared_ptr<const Playback> scan, Scheduler::Time elapsed);
  /// The camera stays where it is.
  void endWalk();
  void showFirstFrame();

 private:
  Scheduler::Time elapsed() const;
  void enter(const KnownSpace &space);
  std::shared_ptr<WorldMap> currentMap();

  DeviceParts &device_;
  Guarded<std::weak_ptr<ARSessionDelegate>> delegate_;  // has no events to act on
  mutable std::mutex mutex_;
  bool hasFrame_ = false;
  bool hasInitialMap_ = false;
  KnownSpace space_;                // and where the camera is when it does not walk
  Scheduler::Time normalFrom_ = 0;  // of tracking, when nobody has set it
  std::shared_ptr<const Playback> scan_;
  Scheduler::Time start_ = 0;               // of the scan, in the device's time
  std::optional<Scheduler::Time> stopped_;  // elapsed when the walk ended
};

/// Of the device's lens for an upright or lying viewport that the camera image fills: right-handed, looking
/// along -z, depth from 0 to 1.
Float4x4 lensProjection(const ProjectionRequest &request);

}  // namespace vantorel
