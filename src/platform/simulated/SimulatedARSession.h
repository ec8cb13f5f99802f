#pragma once

#include "base/Guarded.h"
#include "platform/ARSession.h"
#include "platform/simulated/DeviceOptions.h"
#include "platform/simulated/RoomPlayback.h"
#include "platform/simulated/Scheduler.h"

#include <memory>
#include <mutex>

namespace vantorel {

/// Its frames show the walk through the room that is being scanned.
class SimulatedARSession : public ARSession {
 public:
  /// `scheduler` and `options` outlive the session.
  SimulatedARSession(const Scheduler &scheduler, const DeviceOptions &options)
      : scheduler_(scheduler), options_(options) {}

  void setDelegate(std::weak_ptr<ARSessionDelegate> delegate) override { delegate_.store(delegate); }
  std::optional<Float4x4> cameraTransform() override;
  std::optional<Float4x4> projectionMatrix(const ProjectionRequest &request) override;
  bool isTrackingNormal() override;
  void run(std::shared_ptr<WorldMap> initialWorldMap) override;
  void getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)> completion) override;

  bool hasDelegate() const { return !delegate_.load().expired(); }
  /// From now on the camera walks as in `scan`, `elapsed` after its beginning; null: it stays at the origin.
  void beginWalk(std::shared_ptr<const RoomPlayback> scan, Scheduler::Time elapsed);
  /// The camera stays where it is.
  void endWalk();
  void showFirstFrame();

 private:
  Scheduler::Time elapsed() const;

  const Scheduler &scheduler_;
  const DeviceOptions &options_;
  Guarded<std::weak_ptr<ARSessionDelegate>> delegate_;  // has no events to act on
  mutable std::mutex mutex_;
  bool hasFrame_ = false;
  std::shared_ptr<const RoomPlayback> scan_;
  Scheduler::Time start_ = 0;               // of the scan, in the device's time
  std::optional<Scheduler::Time> stopped_;  // elapsed when the walk ended
};

/// Of the device's lens for an upright or lying viewport that the camera image fills: right-handed, looking
/// along -z, depth from 0 to 1.
Float4x4 lensProjection(const ProjectionRequest &request);

}  // namespace vantorel
