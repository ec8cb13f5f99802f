#pragma once

namespace vantorel {

/// What the phone is. Any thread.
class Device {
 public:
  virtual ~Device() = default;
  virtual bool isSystemAtLeast(int majorVersion) = 0;
  /// Whether world tracking can reconstruct meshes, that is, the device has LiDAR.
  virtual bool supportsSceneReconstruction() = 0;
};

}  // namespace vantorel
