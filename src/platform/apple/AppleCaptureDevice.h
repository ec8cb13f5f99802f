#pragma once

#include "platform/CaptureDevice.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {

class AppleCaptureDevice final : public CaptureDevice {
 public:
  explicit AppleCaptureDevice(Handle camera) : camera_(std::move(camera)) {}

  bool hasTorch() override { return vantorel_swift_camera_has_torch(camera_.get()); }
  void lockForConfiguration() override {
    orThrow([&](void *error) { return vantorel_swift_camera_lock(camera_.get(), error); });
  }
  void setTorch(bool on) override { vantorel_swift_camera_set_torch(camera_.get(), on); }
  void unlockForConfiguration() override { vantorel_swift_camera_unlock(camera_.get()); }

 private:
  Handle camera_;
};

}  // namespace vantorel::apple
