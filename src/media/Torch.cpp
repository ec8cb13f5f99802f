#include "media/Torch.h"

#include "platform/PlatformError.h"

namespace vantorel {

bool setTorch(Platform &platform, bool on) {
  const auto camera = platform.defaultCamera();
  if (!camera || !camera->hasTorch()) return false;
  try {
    camera->lockForConfiguration();
  } catch (const PlatformError &) {
    return false;
  }
  camera->setTorch(on);
  camera->unlockForConfiguration();
  return true;
}

}  // namespace vantorel
