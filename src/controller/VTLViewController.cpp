#include "controller/VTLViewController.h"

#include "media/Torch.h"
#include "storage/SaveScan.h"

namespace vantorel {

VTLViewController::VTLViewController(Platform &platform, const CallbackRegistry &callbacks)
    : platform_(platform), callbacks_(callbacks), viewController_(platform.screen().makeViewController()) {}

ViewController &VTLViewController::loadedView() {
  if (!viewController_->loadView()) platform_.stop(kNilImplicitlyUnwrapped);
  return *viewController_;
}

bool VTLViewController::requireIOS17() {
  if (platform_.device().isSystemAtLeast(17)) return true;
  platform_.console().print(kNeedsIOS17);
  return false;
}

// ---- Camera ----

void VTLViewController::getARCameraMatrixArray() {
  if (const auto pose = session()->arSession()->cameraTransform()) arCameraMatrix = *pose;
}

void VTLViewController::getARCameraProjectionMatrixArray() {
  const Rect viewport = platform_.screen().bounds();
  const ProjectionRequest request{platform_.screen().orientation(), viewport.width, viewport.height, 0.01,
                                  1000};
  if (const auto projection = session()->arSession()->projectionMatrix(request))
    arCameraProjectionMatrix = *projection;
}

// ---- Saving ----

void VTLViewController::SaveExperience() { TrySaveExperience(); }

bool VTLViewController::TrySaveExperience() {
  if (capturedRoomsData.size() > 1 && platform_.device().isSystemAtLeast(17)) {
    MergeScansInCapturedRoomSession();
    return true;
  }
  return saveScan(platform_, directoryName, scanName, finalResults.get());
}

// ---- Torch ----

void VTLViewController::SetFlashlightStatus(bool status) {
  if (setTorch(platform_, status)) isTorchEnabled = status;
}

}  // namespace vantorel
