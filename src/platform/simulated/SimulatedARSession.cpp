#include "platform/simulated/SimulatedARSession.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace vantorel {
namespace {

/// The simulated lens: an image of 4 to 3 with this angle along its long side.
constexpr double kImageAspect = 4.0 / 3;
constexpr double kLongFieldOfView = 67 * std::numbers::pi / 180;

constexpr Scheduler::Time kRelocalisation = 2 * Scheduler::kSecond, kMapTime = Scheduler::kSecond / 2;

/// The same in every process: of version 8, which leaves the digits to their maker.
Uuid spaceNumbered(std::uint32_t number) {
  Uuid space;
  space.bytes[6] = space.bytes[8] = 0x80;
  for (std::size_t i = 0; i < 4; ++i) space.bytes[15 - i] = static_cast<std::uint8_t>(number >> (8 * i));
  return space;
}

bool isLandscape(InterfaceOrientation orientation) {
  return orientation == InterfaceOrientation::landscapeLeft ||
         orientation == InterfaceOrientation::landscapeRight;
}

}  // namespace

SimulatedARSession::SimulatedARSession(DeviceParts &device)
    : device_(device), space_{spaceNumbered(++device.arSessionCount), kCameraAtOrigin} {}

// ---- Frames ----

std::optional<Float4x4> SimulatedARSession::cameraTransform() {
  const auto chosen = device_.options.get().camera;
  const std::lock_guard lock(mutex_);
  if (!hasFrame_) return std::nullopt;
  if (chosen) return chosen;
  return scan_ ? scan_->cameraAt(elapsed()) : space_.camera;
}

std::optional<Float4x4> SimulatedARSession::projectionMatrix(const ProjectionRequest &request) {
  const auto chosen = device_.options.get().projection;
  const std::lock_guard lock(mutex_);
  if (!hasFrame_) return std::nullopt;
  return chosen ? *chosen : lensProjection(request);
}

bool SimulatedARSession::isTrackingNormal() { return tracking() == Tracking::normal; }

std::optional<SimulatedARSession::Tracking> SimulatedARSession::tracking() const {
  const auto chosen = device_.options.get().tracking;
  const std::lock_guard lock(mutex_);
  if (!hasFrame_) return std::nullopt;
  if (chosen != Tracking::automatic) return chosen;
  return device_.scheduler.now() < normalFrom_ ? Tracking::limited : Tracking::normal;
}

// ---- World maps ----

void SimulatedARSession::run(std::shared_ptr<WorldMap> initialWorldMap) {
  const auto map = std::dynamic_pointer_cast<const SimulatedWorldMap>(initialWorldMap);
  {
    const std::lock_guard lock(mutex_);
    hasInitialMap_ = map != nullptr;
    if (map) enter(map->space());
  }
  device_.options.forgetFrame();
  device_.scheduler.post({.role = Role::delegate, .work = [weak = weak_from_this()] {
                            if (const auto self = weak.lock()) self->showFirstFrame();
                          }});
}

/// With the lock held.
void SimulatedARSession::enter(const KnownSpace &space) {
  space_ = space;
  scan_ = nullptr;
  normalFrom_ = device_.scheduler.now() + kRelocalisation;
}

void SimulatedARSession::getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)> completion) {
  device_.scheduler.post({.role = Role::completion,
                          .work = [self = shared_from_this(),
                                   completion = std::move(completion)] { completion(self->currentMap()); }},
                         device_.scheduler.now() + kMapTime);
}

std::shared_ptr<WorldMap> SimulatedARSession::currentMap() {
  const auto camera = cameraTransform();
  if (!camera || !device_.options.get().hasWorldMap) return nullptr;
  return std::make_shared<SimulatedWorldMap>(KnownSpace{space(), *camera}, device_.faults);
}

Uuid SimulatedARSession::space() const {
  const std::lock_guard lock(mutex_);
  return space_.identifier;
}

Float4x4 SimulatedARSession::restingPose() const {
  const std::lock_guard lock(mutex_);
  return space_.camera;
}

bool SimulatedARSession::hasInitialMap() const {
  const std::lock_guard lock(mutex_);
  return hasInitialMap_;
}

// ---- The walk ----

void SimulatedARSession::beginWalk(std::shared_ptr<const Playback> scan, Scheduler::Time elapsed) {
  const std::lock_guard lock(mutex_);
  scan_ = std::move(scan);
  start_ = device_.scheduler.now() - elapsed;
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

Scheduler::Time SimulatedARSession::elapsed() const {
  return stopped_.value_or(device_.scheduler.now() - start_);
}

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
