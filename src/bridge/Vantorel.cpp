#include "bridge/Vantorel.h"

#include "bridge/Plugin.h"
#include "controller/VTLViewController.h"
#include "model/CameraText.h"
#include "platform/Platform.h"

namespace vantorel {
namespace {

VTLViewController &controller() { return plugin().viewController(); }

/// On an older system says so and answers false.
bool hasIOS17() {
  if (platform().device().isSystemAtLeast(17)) return true;
  platform().console().print(kNeedsIOS17);
  return false;
}

}  // namespace

// ---- Lifecycle ----

void Vantorel::prepareResources() { controller().PrepareResources(); }

void Vantorel::initialize() {
  platform().mainQueue().async([] {
    if (!controller().isPresent) setupScene();
  });
}

void Vantorel::dispose() {
  platform().mainQueue().async([] {
    controller().dispose();
    controller().viewController().dismissNavigationController();
  });
}

void Vantorel::setupScene() {
  const auto window = platform().screen().firstWindow();
  if (!window) return;
  const bool placesView = !controller().isCustomXREnabled;
  if (placesView) {
    window->clearBackground();
    window->addSubview(controller().loadedView());
    window->exchangeFirstTwoSubviews();  // behind the host's view when that is the only other one
  }
  const auto root = window->rootViewController();
  if (!root) return;
  if (placesView && !root->makeViewTransparent()) platform().stop(kNilImplicitlyUnwrapped);
  controller().rootViewController = root;
  controller().Initialize();
}

void Vantorel::setARSession(void *session) { controller().customARSession = platform().arSession(session); }

// ---- Flags ----

void Vantorel::isCustomXREnabled(bool value) { controller().isCustomXREnabled = value; }
void Vantorel::isDefaultScanEnabled(bool value) { controller().isDefaultScanEnabled = value; }
void Vantorel::isDefaultMiniatureModelEnabled(bool value) {
  controller().isDefaultMiniatureModelEnabled = value;
}
void Vantorel::isDefaultScanDataTransferEnabled(bool value) {
  controller().isDefaultScanDataTransferEnabled = value;
}
void Vantorel::isCoachingEnabled(bool value) { controller().isCoachingEnabled = value; }
void Vantorel::isInstructionEnabled(bool value) { controller().isInstructionEnabled = value; }
void Vantorel::isMultiRoomEnabled(bool value) { controller().isMultiRoomEnabled = value; }
void Vantorel::isARWorldMapEnabled(bool value) { controller().isARWorldMapEnabled = value; }
void Vantorel::nativeScreenshot(bool value) { controller().nativeScreenshot = value; }
void Vantorel::nativeScreenshotPreview(bool value) { controller().nativeScreenshotPreview = value; }
void Vantorel::nativeScreenRecorder(bool value) { controller().nativeScreenRecorder = value; }
void Vantorel::nativeScreenRecorderPreview(bool value) { controller().nativeScreenRecorderPreview = value; }

// ---- Capture session ----

void Vantorel::startCaptureSession() { controller().startCaptureSession(); }
void Vantorel::runCaptureSession() { controller().runCaptureSession(); }
void Vantorel::stopCaptureSession() { controller().stopCaptureSession(); }
void Vantorel::stopCaptureSessionWithPause(bool pauseARSession) {
  controller().stopCaptureSessionWithPause(pauseARSession);
}
void Vantorel::pauseCaptureSessionScanning() { controller().pauseCaptureSessionScanning(); }
void Vantorel::resumeCaptureSessionScanning() { controller().resumeCaptureSessionScanning(); }
void Vantorel::createNewRoomCaptureSession() { controller().createNewRoomCaptureSession(); }
void Vantorel::startCaptureSessionWithARWorldMap(const std::string &path) {
  controller().startCaptureSessionWithARWorldMap(path);
}
void Vantorel::stopCaptureSessionWithARWorldMap(const std::string &path) {
  controller().stopCaptureSessionWithARWorldMap(path);
}

// ---- Saving and merging ----

void Vantorel::saveExperience(const std::string &directoryName, const std::string &scanName) {
  controller().directoryName = directoryName;
  controller().scanName = scanName;
  controller().SaveExperience();
}

bool Vantorel::trySaveExperience(const std::string &directoryName, const std::string &scanName) {
  controller().directoryName = directoryName;
  controller().scanName = scanName;
  return controller().TrySaveExperience();
}

void Vantorel::mergeScans(const std::string &data, const std::string &directoryName,
                          const std::string &scanName) {
  if (hasIOS17()) controller().MergeScans(data, directoryName, scanName);
}

// ---- Media, sharing, torch ----

void Vantorel::setFlashlightStatus(bool value) { controller().SetFlashlightStatus(value); }
void Vantorel::quickLook(const std::string &path) { controller().QuickLook(path); }
void Vantorel::shareText(const std::string &text) { controller().ShareText(text); }
void Vantorel::shareLink(const std::string &text) { controller().ShareLink(text); }
void Vantorel::shareFolder(const std::string &folderPath) { controller().ShareFolder(folderPath); }
void Vantorel::shareFile(const std::string &filePath) { controller().ShareFile(filePath); }
void Vantorel::screenshot() { controller().Screenshot(); }
void Vantorel::screenshotShare() { controller().ScreenshotShare(); }
void Vantorel::startScreenRecorder() { controller().startScreenRecorder(); }
void Vantorel::stopScreenRecorder() { controller().stopScreenRecorder(); }

// ---- Queries ----

std::string Vantorel::getNativeScreenshotOutputURL() { return controller().nativeScreenshotOutputURL; }
std::string Vantorel::getNativeScreenRecorderOutputURL() {
  return controller().nativeScreenRecorderOutputURL;
}
std::string Vantorel::getVersion() { return "Vantorel 1.3.0"; }

std::string Vantorel::getVTLARCameraMatrixRuntime() {
  if (!controller().isScanning) return "";
  controller().getARCameraMatrixArray();
  return cameraPoseText(controller().arCameraMatrix);
}

std::string Vantorel::getVTLARCameraProjectionMatrixRuntime() {
  if (!controller().isScanning) return "";
  controller().getARCameraProjectionMatrixArray();
  return cameraProjectionText(controller().arCameraProjectionMatrix);
}

bool Vantorel::getVantorelSupport() { return platform().device().supportsSceneReconstruction(); }
bool Vantorel::getMultiRoomSupport() { return hasIOS17() && getVantorelSupport(); }
bool Vantorel::getARWorldMapSupport() { return hasIOS17() && getVantorelSupport(); }

}  // namespace vantorel
