#include "platform/simulated/SimulatedARSession.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace vantorel {
namespace {

/// The simulated lens: an image of 4 to 3 with this angle along its long side.
constexpr double kImageAspect = 4.0 / 3;
constexpr double kLongFieldOfView = 67 * std::numbers::pi / 180;

constexpr Float4x4 kIdentity = {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};

bool isLandscape(InterfaceOrientation orientation) {
  return orientation == InterfaceOrientation::landscapeLeft ||
         orientation == InterfaceOrientation::landscapeRight;
}

}  // namespace

std::optional<Float4x4> SimulatedARSession::cameraTransform() {
  const auto chosen = options_.get().camera;
  const std::lock_guard lock(mutex_);
  if (!hasFrame_) return std::nullopt;
  if (chosen) return chosen;
  return scan_ ? scan_->cameraAt(elapsed()) : kIdentity;
}

std::optional<Float4x4> SimulatedARSession::projectionMatrix(const ProjectionRequest &request) {
  const auto chosen = options_.get().projection;
  const std::lock_guard lock(mutex_);
  if (!hasFrame_) return std::nullopt;
  return chosen ? *chosen : lensProjection(request);
}

bool SimulatedARSession::isTrackingNormal() { return false; }

void SimulatedARSession::run(std::shared_ptr<WorldMap>) {}

void SimulatedARSession::getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)>) {}

void SimulatedARSession::beginWalk(std::shared_ptr<const RoomPlayback> scan, Scheduler::Time elapsed) {
  const std::lock_guard lock(mutex_);
  scan_ = std::move(scan);
  start_ = scheduler_.now() - elapsed;
  stopped_.reset();
}

void SimulatedARSession::endWalk() {
  const std::lock_guard lock(mutex_);
  stopped_ = elapsed();
}

void SimulatedARSession::showFirstFrame() {
  const std::lock_guard lock(mutex_);
  hasFrame_ = true;
}

Scheduler::Time SimulatedARSession::elapsed() const { return stopped_.value_or(scheduler_.now() - start_); }

Float4x4 lensProjection(const ProjectionRequest &request) {
  const double longSide = 1 / std::tan(kLongFieldOfView / 2), shortSide = longSide * kImageAspect;
  const bool lies = isLandscape(request.orientation);
  const double imageAspect = lies ? kImageAspect : 1 / kImageAspect;
  const double viewAspect = request.viewportWidth / request.viewportHeight;
  double scaleX = lies ? longSide : shortSide, scaleY = lies ? shortSide : longSide;
  if (viewAspect > imageAspect) {
    scaleY = scaleX * viewAspect;  // above and below are cut off
  } else {
    scaleX = scaleY / viewAspect;
  }
  const double depth = request.zFar / (request.zNear - request.zFar);
  Float4x4 matrix;
  matrix.elements[0] = static_cast<float>(scaleX);
  matrix.elements[5] = static_cast<float>(scaleY);
  matrix.elements[10] = static_cast<float>(depth);
  matrix.elements[11] = -1;
  matrix.elements[14] = static_cast<float>(depth * request.zNear);
  return matrix;
}

}  // namespace vantorel
