// The C entry points, as a table: convert the arguments, call one facade operation, convert the result.
#include "vantorel/vantorel.h"

#include "bridge/Plugin.h"
#include "bridge/Vantorel.h"
#include "bridge/VantorelBridging.h"
#include "platform/PluginAccess.h"

using vantorel::copyForHost;
using vantorel::flagForHost;
using vantorel::flagFromHost;
using vantorel::plugin;
using vantorel::textFromHost;
using vantorel::Vantorel;

namespace {

/// One operation of the facade; nothing where the plug-in has stopped.
template <typename Operation, typename... Arguments>
auto call(Operation operation, const Arguments &...arguments) -> decltype(operation(arguments...)) {
  try {
    if (!plugin().hasStopped) return operation(arguments...);
  } catch (const vantorel::PluginStopped &) {
  }
  return decltype(operation(arguments...))();
}

}  // namespace

// clang-format off
extern "C" {

// extern: a const object would otherwise be internal to this file. The layout of the text is Apple's for frameworks.
extern const double VantorelVersionNumber = 1.3;
extern const unsigned char VantorelVersionString[] = "@(#)PROGRAM:Vantorel  PROJECT:Vantorel-1.3.0\n";

// Lifecycle and flags
void prepareVTLResources() noexcept { call(Vantorel::prepareResources); }
void initializeVTL() noexcept { call(Vantorel::initialize); }
void disposeVTL() noexcept { call(Vantorel::dispose); }
void setVantorelXRSession(void *arSession) noexcept { call(Vantorel::setARSession, arSession); }
void isVTLCustomXREnabled(vantorelBool value) noexcept { call(Vantorel::isCustomXREnabled, flagFromHost(value)); }
void isVTLDefaultScanEnabled(vantorelBool value) noexcept { call(Vantorel::isDefaultScanEnabled, flagFromHost(value)); }
void isVTLDefaultMiniatureModelEnabled(vantorelBool value) noexcept { call(Vantorel::isDefaultMiniatureModelEnabled, flagFromHost(value)); }
void isVTLDefaultScanDataTransferEnabled(vantorelBool value) noexcept { call(Vantorel::isDefaultScanDataTransferEnabled, flagFromHost(value)); }
void isVTLCoachingEnabled(vantorelBool value) noexcept { call(Vantorel::isCoachingEnabled, flagFromHost(value)); }
void isVTLInstructionEnabled(vantorelBool value) noexcept { call(Vantorel::isInstructionEnabled, flagFromHost(value)); }
void isVTLMultiRoomEnabled(vantorelBool value) noexcept { call(Vantorel::isMultiRoomEnabled, flagFromHost(value)); }
void isVTLARWorldMapEnabled(vantorelBool value) noexcept { call(Vantorel::isARWorldMapEnabled, flagFromHost(value)); }

// Capture session
void startCaptureSession() noexcept { call(Vantorel::startCaptureSession); }
void runCaptureSession() noexcept { call(Vantorel::runCaptureSession); }
void stopCaptureSession() noexcept { call(Vantorel::stopCaptureSession); }
void stopCaptureSessionWithPause(vantorelBool pauseARSession) noexcept { call(Vantorel::stopCaptureSessionWithPause, flagFromHost(pauseARSession)); }
void pauseCaptureSessionScanning() noexcept { call(Vantorel::pauseCaptureSessionScanning); }
void resumeCaptureSessionScanning() noexcept { call(Vantorel::resumeCaptureSessionScanning); }
void createNewRoomCaptureSession() noexcept { call(Vantorel::createNewRoomCaptureSession); }
void startCaptureSessionWithARWorldMap(const char *path) noexcept { call(Vantorel::startCaptureSessionWithARWorldMap, textFromHost(path)); }
void stopCaptureSessionWithARWorldMap(const char *path) noexcept { call(Vantorel::stopCaptureSessionWithARWorldMap, textFromHost(path)); }

// Saving and merging. Initialiser lists, because arguments are converted in their order.
void saveRoomPlanExperience(const char *directoryName, const char *scanName) noexcept {
  const std::string names[]{textFromHost(directoryName), textFromHost(scanName)};
  call(Vantorel::saveExperience, names[0], names[1]);
}
vantorelBool trySaveRoomPlanExperience(const char *directoryName, const char *scanName) noexcept {
  const std::string names[]{textFromHost(directoryName), textFromHost(scanName)};
  return flagForHost(call(Vantorel::trySaveExperience, names[0], names[1]));
}
void mergeScans(const char *data, const char *directoryName, const char *scanName) noexcept {
  const std::string texts[]{textFromHost(data), textFromHost(directoryName), textFromHost(scanName)};
  call(Vantorel::mergeScans, texts[0], texts[1], texts[2]);
}

// Media, sharing, torch
void setFlashlightStatus(vantorelBool value) noexcept { call(Vantorel::setFlashlightStatus, flagFromHost(value)); }
void vtl_QuickLook(const char *path) noexcept { call(Vantorel::quickLook, textFromHost(path)); }
void vtl_shareFolder(const char *path) noexcept { call(Vantorel::shareFolder, textFromHost(path)); }
void vtl_shareFile(const char *path) noexcept { call(Vantorel::shareFile, textFromHost(path)); }
void screenshotVTL() noexcept { call(Vantorel::screenshot); }
void isNativeScreenshot(vantorelBool value) noexcept { call(Vantorel::nativeScreenshot, flagFromHost(value)); }
void isNativeScreenshotPreview(vantorelBool value) noexcept { call(Vantorel::nativeScreenshotPreview, flagFromHost(value)); }
char *getVTLNativeScreenshotOutputURL() noexcept { return copyForHost(call(Vantorel::getNativeScreenshotOutputURL)); }
void screenshotShareVTL() noexcept { call(Vantorel::screenshotShare); }
void startScreenRecorderVTL() noexcept { call(Vantorel::startScreenRecorder); }
void stopScreenRecorderVTL() noexcept { call(Vantorel::stopScreenRecorder); }
void isNativeScreenRecorder(vantorelBool value) noexcept { call(Vantorel::nativeScreenRecorder, flagFromHost(value)); }
void isNativeScreenRecorderPreview(vantorelBool value) noexcept { call(Vantorel::nativeScreenRecorderPreview, flagFromHost(value)); }
char *getVTLNativeScreenRecorderOutputURL() noexcept { return copyForHost(call(Vantorel::getNativeScreenRecorderOutputURL)); }

// Queries
char *getVantorelVersion() noexcept { return copyForHost(call(Vantorel::getVersion)); }
char *getVTLARCameraMatrixRuntime() noexcept { return copyForHost(call(Vantorel::getVTLARCameraMatrixRuntime)); }
char *getVTLARCameraProjectionMatrixRuntime() noexcept { return copyForHost(call(Vantorel::getVTLARCameraProjectionMatrixRuntime)); }
vantorelBool VantorelSupport() noexcept { return flagForHost(call(Vantorel::getVantorelSupport)); }
vantorelBool MultiRoomSupport() noexcept { return flagForHost(call(Vantorel::getMultiRoomSupport)); }
vantorelBool ARWorldMapSupport() noexcept { return flagForHost(call(Vantorel::getARWorldMapSupport)); }

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
