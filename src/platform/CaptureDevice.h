#pragma once

namespace vantorel {

/// The default camera's torch. Any thread.
class CaptureDevice {
 public:
  virtual ~CaptureDevice() = default;
  virtual bool hasTorch() = 0;
  /// Throws PlatformError when the configuration lock is refused; otherwise to be followed by
  /// unlockForConfiguration.
  virtual void lockForConfiguration() = 0;
  virtual void setTorch(bool on) = 0;
  virtual void unlockForConfiguration() = 0;
};

}  // namespace vantorel
