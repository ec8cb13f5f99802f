#include "platform/simulated/CameraWalk.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantorel {
namespace {

constexpr double kEyesAboveFloor = 1.5;  // metres
/// How far from the middle towards what is looked at.
constexpr double kApproach = 0.4;
/// Nearer to the middle than this (metres), things are looked at from this far away.
constexpr double kNear = 0.5, kStepBack = 1.5;

double mix(double from, double to, double share) { return from + (to - from) * share; }

/// 0 to 1 without a jolt at either end.
double eased(double share) { return share * share * (3 - 2 * share); }

}  // namespace

CameraWalk::CameraWalk(const std::vector<Sight> &sights, double floorHeight)
    : eyeHeight_(floorHeight + kEyesAboveFloor) {
  if (sights.empty()) {
    stations_.push_back({});
    return;
  }
  double left = sights[0].centre.x, right = left, back = sights[0].centre.z, front = back;
  for (const auto &[share, centre, pitch] : sights) {
    left = std::min<double>(left, centre.x), right = std::max<double>(right, centre.x);
    back = std::min<double>(back, centre.z), front = std::max<double>(front, centre.z);
  }
  for (const Sight &sight : sights) {
    Station next = standBefore(sight, mix(left, right, 0.5), mix(back, front, 0.5));
    if (!stations_.empty())  // turn the shorter way round
      next.yaw = stations_.back().yaw + std::remainder(next.yaw - stations_.back().yaw, 2 * std::numbers::pi);
    stations_.push_back(next);
  }
}

CameraWalk::Station CameraWalk::standBefore(const Sight &sight, double middleX, double middleZ) {
  const double awayX = sight.centre.x - middleX, awayZ = sight.centre.z - middleZ;
  if (std::hypot(awayX, awayZ) < kNear)
    return {sight.share, sight.centre.x, sight.centre.z + kStepBack, 0, sight.pitch};
  return {sight.share, middleX + kApproach * awayX, middleZ + kApproach * awayZ, std::atan2(awayX, -awayZ),
          sight.pitch};
}

CameraWalk::Station CameraWalk::stationAt(double share) const {
  const auto next = std::find_if(stations_.begin(), stations_.end(),
                                 [&](const Station &station) { return station.share > share; });
  if (next == stations_.begin()) return stations_.front();
  if (next == stations_.end()) return stations_.back();
  const Station &from = next[-1];
  const double way = eased((share - from.share) / (next->share - from.share));
  return {share, mix(from.x, next->x, way), mix(from.z, next->z, way), mix(from.yaw, next->yaw, way),
          mix(from.pitch, next->pitch, way)};
}

Float4x4 CameraWalk::poseAt(double share) const {
  const Station at = stationAt(share);
  const double sinYaw = std::sin(at.yaw), cosYaw = std::cos(at.yaw);
  const double sinPitch = std::sin(at.pitch), cosPitch = std::cos(at.pitch);
  const auto f = [](double value) { return static_cast<float>(value); };
  Float4x4 pose;
  pose.elements = {f(sinYaw * sinPitch),
                   f(-cosPitch),
                   f(-cosYaw * sinPitch),
                   0,  // x: down the phone
                   f(cosYaw),
                   0,
                   f(sinYaw),
                   0,  // y: to the right
                   f(-sinYaw * cosPitch),
                   f(-sinPitch),
                   f(cosYaw * cosPitch),
                   0,  // z: back
                   f(at.x),
                   f(eyeHeight_),
                   f(at.z),
                   1};
  return pose;
}

}  // namespace vantorel
