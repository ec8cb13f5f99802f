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
  return saveScan(platform_, directoryName, scanName, finalResults.get());
}

// ---- Torch ----

void VTLViewController::SetFlashlightStatus(bool status) {
  if (setTorch(platform_, status)) isTorchEnabled = status;
}

// ---- Operations of which this version has only the entry point ----

void VTLViewController::notYetAvailable(std::string_view operation) {
  platform_.console().print(std::string(operation) + " is not available in this version.");
}

void VTLViewController::MergeScans(const std::string &, const std::string &, const std::string &) {
  notYetAvailable("mergeScans");
}
void VTLViewController::startCaptureSessionWithARWorldMap(const std::string &) {
  if (!isScanning && requireIOS17()) notYetAvailable("startCaptureSessionWithARWorldMap");
}
void VTLViewController::stopCaptureSessionWithARWorldMap(const std::string &) {
  if (isScanning && requireIOS17()) notYetAvailable("stopCaptureSessionWithARWorldMap");
}
void VTLViewController::QuickLook(const std::string &) { notYetAvailable("vtl_QuickLook"); }
void VTLViewController::ShareText(const std::string &) { notYetAvailable("shareText"); }
void VTLViewController::ShareLink(const std::string &) { notYetAvailable("shareLink"); }
void VTLViewController::ShareFolder(const std::string &) { notYetAvailable("vtl_shareFolder"); }
void VTLViewController::ShareFile(const std::string &) { notYetAvailable("vtl_shareFile"); }
void VTLViewController::Screenshot() { notYetAvailable("screenshotVTL"); }
void VTLViewController::ScreenshotShare() { notYetAvailable("screenshotShareVTL"); }
void VTLViewController::startScreenRecorder() { notYetAvailable("startScreenRecorderVTL"); }
void VTLViewController::stopScreenRecorder() { notYetAvailable("stopScreenRecorderVTL"); }

}  // namespace vantorel
