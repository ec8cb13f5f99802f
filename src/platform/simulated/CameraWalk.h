#pragma once

#include "base/Geometry.h"

#include <vector>

namespace vantorel {

/// The path of a phone held upright by somebody who looks at one thing after the other: smooth and level,
/// between the middle of the things and each in turn, or a step back from one in the middle. Pure and
/// immutable; any thread.
class CameraWalk {
 public:
  struct Sight {
    double share = 0;  ///< when it is looked at, as a share of the walk; ascending
    Float3 centre;     ///< world space, metres
    double pitch = 0;  ///< radians, negative looks down
  };

  /// `floorHeight` is the world's y under the person's feet, in metres.
  CameraWalk(const std::vector<Sight> &sights, double floorHeight);

  /// The camera's pose in ARKit's convention: right-handed, looking along -z, x and y as on the sensor, which
  /// lies on its side in a phone held upright. `share` from 0 to 1.
  Float4x4 poseAt(double share) const;

 private:
  struct Station {
    double share = 0;
    double x = 0, z = 0;
    double yaw = 0, pitch = 0;  ///< radians; yaw 0 looks along -z and grows to the right
  };

  static Station standBefore(const Sight &sight, double middleX, double middleZ);
  Station stationAt(double share) const;

  std::vector<Station> stations_;  // never empty
  double eyeHeight_;
};

}  // namespace vantorel
