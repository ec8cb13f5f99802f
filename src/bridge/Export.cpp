// The C entry points, as a table: convert the arguments, call one facade operation, convert the result.
#include "vantorel/vantorel.h"

#include "bridge/Plugin.h"
#include "bridge/Vantorel.h"
#include "bridge/VantorelBridging.h"

using vantorel::copyForHost;
using vantorel::flagForHost;
using vantorel::flagFromHost;
using vantorel::plugin;
using vantorel::textFromHost;
using vantorel::Vantorel;

// clang-format off
extern "C" {

// extern: a const object would otherwise be internal to this file. The layout of the text is Apple's for frameworks.
extern const double VantorelVersionNumber = 1.3;
extern const unsigned char VantorelVersionString[] = "@(#)PROGRAM:Vantorel  PROJECT:Vantorel-1.3.0\n";

// Lifecycle and flags
void prepareVTLResources() noexcept { Vantorel::prepareResources(); }
void initializeVTL() noexcept { Vantorel::initialize(); }
void disposeVTL() noexcept { Vantorel::dispose(); }
void setVantorelXRSession(void *arSession) noexcept { Vantorel::setARSession(arSession); }
void isVTLCustomXREnabled(vantorelBool value) noexcept { Vantorel::isCustomXREnabled(flagFromHost(value)); }
void isVTLDefaultScanEnabled(vantorelBool value) noexcept { Vantorel::isDefaultScanEnabled(flagFromHost(value)); }
void isVTLDefaultMiniatureModelEnabled(vantorelBool value) noexcept { Vantorel::isDefaultMiniatureModelEnabled(flagFromHost(value)); }
void isVTLDefaultScanDataTransferEnabled(vantorelBool value) noexcept { Vantorel::isDefaultScanDataTransferEnabled(flagFromHost(value)); }
void isVTLCoachingEnabled(vantorelBool value) noexcept { Vantorel::isCoachingEnabled(flagFromHost(value)); }
void isVTLInstructionEnabled(vantorelBool value) noexcept { Vantorel::isInstructionEnabled(flagFromHost(value)); }
void isVTLMultiRoomEnabled(vantorelBool value) noexcept { Vantorel::isMultiRoomEnabled(flagFromHost(value)); }
void isVTLARWorldMapEnabled(vantorelBool value) noexcept { Vantorel::isARWorldMapEnabled(flagFromHost(value)); }

// Capture session
void startCaptureSession() noexcept { Vantorel::startCaptureSession(); }
void runCaptureSession() noexcept { Vantorel::runCaptureSession(); }
void stopCaptureSession() noexcept { Vantorel::stopCaptureSession(); }
void stopCaptureSessionWithPause(vantorelBool pauseARSession) noexcept { Vantorel::stopCaptureSessionWithPause(flagFromHost(pauseARSession)); }
void pauseCaptureSessionScanning() noexcept { Vantorel::pauseCaptureSessionScanning(); }
void resumeCaptureSessionScanning() noexcept { Vantorel::resumeCaptureSessionScanning(); }
void createNewRoomCaptureSession() noexcept { Vantorel::createNewRoomCaptureSession(); }
void startCaptureSessionWithARWorldMap(const char *path) noexcept { Vantorel::startCaptureSessionWithARWorldMap(textFromHost(path)); }
void stopCaptureSessionWithARWorldMap(const char *path) noexcept { Vantorel::stopCaptureSessionWithARWorldMap(textFromHost(path)); }

// Saving and merging. Initialiser lists, because arguments are converted in their order.
void saveRoomPlanExperience(const char *directoryName, const char *scanName) noexcept {
  const std::string names[]{textFromHost(directoryName), textFromHost(scanName)};
  Vantorel::saveExperience(names[0], names[1]);
}
vantorelBool trySaveRoomPlanExperience(const char *directoryName, const char *scanName) noexcept {
  const std::string names[]{textFromHost(directoryName), textFromHost(scanName)};
  return flagForHost(Vantorel::trySaveExperience(names[0], names[1]));
}
void mergeScans(const char *data, const char *directoryName, const char *scanName) noexcept {
  const std::string texts[]{textFromHost(data), textFromHost(directoryName), textFromHost(scanName)};
  Vantorel::mergeScans(texts[0], texts[1], texts[2]);
}

// Media, sharing, torch
void setFlashlightStatus(vantorelBool value) noexcept { Vantorel::setFlashlightStatus(flagFromHost(value)); }
void vtl_QuickLook(const char *path) noexcept { Vantorel::quickLook(textFromHost(path)); }
void vtl_shareFolder(const char *path) noexcept { Vantorel::shareFolder(textFromHost(path)); }
void vtl_shareFile(const char *path) noexcept { Vantorel::shareFile(textFromHost(path)); }
void screenshotVTL() noexcept { Vantorel::screenshot(); }
void isNativeScreenshot(vantorelBool value) noexcept { Vantorel::nativeScreenshot(flagFromHost(value)); }
void isNativeScreenshotPreview(vantorelBool value) noexcept { Vantorel::nativeScreenshotPreview(flagFromHost(value)); }
char *getVTLNativeScreenshotOutputURL() noexcept { return copyForHost(Vantorel::getNativeScreenshotOutputURL()); }
void screenshotShareVTL() noexcept { Vantorel::screenshotShare(); }
void startScreenRecorderVTL() noexcept { Vantorel::startScreenRecorder(); }
void stopScreenRecorderVTL() noexcept { Vantorel::stopScreenRecorder(); }
void isNativeScreenRecorder(vantorelBool value) noexcept { Vantorel::nativeScreenRecorder(flagFromHost(value)); }
void isNativeScreenRecorderPreview(vantorelBool value) noexcept { Vantorel::nativeScreenRecorderPreview(flagFromHost(value)); }
char *getVTLNativeScreenRecorderOutputURL() noexcept { return copyForHost(Vantorel::getNativeScreenRecorderOutputURL()); }

// Queries
char *getVantorelVersion() noexcept { return copyForHost(Vantorel::getVersion()); }
char *getVTLARCameraMatrixRuntime() noexcept { return copyForHost(Vantorel::getVTLARCameraMatrixRuntime()); }
char *getVTLARCameraProjectionMatrixRuntime() noexcept { return copyForHost(Vantorel::getVTLARCameraProjectionMatrixRuntime()); }
vantorelBool VantorelSupport() noexcept { return flagForHost(Vantorel::getVantorelSupport()); }
vantorelBool MultiRoomSupport() noexcept { return flagForHost(Vantorel::getMultiRoomSupport()); }
vantorelBool ARWorldMapSupport() noexcept { return flagForHost(Vantorel::getARWorldMapSupport()); }

// Callbacks
void setVTLDidStart(vantorelCallback callback) noexcept { plugin().callbacks.VTLDidStart.set(callback); }
void setVTLDidEnd(vantorelCallback callback) noexcept { plugin().callbacks.VTLDidEnd.set(callback); }
void setVTLCaptureSessionDidStart(vantorelCallback callback) noexcept { plugin().callbacks.VTLCaptureSessionDidStart.set(callback); }
void setVTLCaptureSessionDidEnd(vantorelCallback callback) noexcept { plugin().callbacks.VTLCaptureSessionDidEnd.set(callback); }
void setVTLCaptureSessionDidAdd(vantorelCallback callback) noexcept { plugin().callbacks.VTLCaptureSessionDidAdd.set(callback); }
void setVTLCaptureSessionDidUpdate(vantorelCallback callback) noexcept { plugin().callbacks.VTLCaptureSessionDidUpdate.set(callback); }
void setVTLCaptureSessionDidChange(vantorelCallback callback) noexcept { plugin().callbacks.VTLCaptureSessionDidChange.set(callback); }
void setVTLCaptureSessionDidRemove(vantorelCallback callback) noexcept { plugin().callbacks.VTLCaptureSessionDidRemove.set(callback); }
void setVTLCaptureSessionInstruction(vantorelTextCallback callback) noexcept { plugin().callbacks.VTLCaptureSessionInstruction.set(callback); }
void setVTLRoomSnapshot(vantorelTextCallback callback) noexcept { plugin().callbacks.VTLRoomSnapshot.set(callback); }

}  // extern "C"
// clang-format on
