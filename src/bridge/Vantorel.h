#pragma once

#include <string>

namespace vantorel {

/// The facade: every exported function calls exactly one of these. It moves set-up and teardown to the main
/// queue and forwards the rest to the one controller on the caller's thread.
class Vantorel {
 public:
  Vantorel() = delete;

  // Lifecycle
  static void prepareResources();
  /// Queues the set-up on the main queue; ignored there while the controller is present. Any thread.
  static void initialize();
  /// Queues the teardown on the main queue; not guarded. Any thread.
  static void dispose();
  /// `session` is the platform's ARSession object, retained.
  static void setARSession(void *session);

  // Flags: stored, without any other effect
  static void isCustomXREnabled(bool value);
  static void isDefaultScanEnabled(bool value);
  static void isDefaultMiniatureModelEnabled(bool value);
  static void isDefaultScanDataTransferEnabled(bool value);
  static void isCoachingEnabled(bool value);
  static void isInstructionEnabled(bool value);
  static void isMultiRoomEnabled(bool value);
  static void isARWorldMapEnabled(bool value);
  static void nativeScreenshot(bool value);
  static void nativeScreenshotPreview(bool value);
  static void nativeScreenRecorder(bool value);
  static void nativeScreenRecorderPreview(bool value);

  // Capture session
  static void startCaptureSession();
  static void runCaptureSession();
  static void stopCaptureSession();
  static void stopCaptureSessionWithPause(bool pauseARSession);
  static void pauseCaptureSessionScanning();
  static void resumeCaptureSessionScanning();
  static void createNewRoomCaptureSession();
  static void startCaptureSessionWithARWorldMap(const std::string &path);
  static void stopCaptureSessionWithARWorldMap(const std::string &path);

  // Saving and merging. The names of a save stay for later saves.
  static void saveExperience(const std::string &directoryName, const std::string &scanName);
  static bool trySaveExperience(const std::string &directoryName, const std::string &scanName);
  static void mergeScans(const std::string &data, const std::string &directoryName,
                         const std::string &scanName);

  // Media, sharing, torch
  static void setFlashlightStatus(bool value);
  static void quickLook(const std::string &path);
  static void shareText(const std::string &text);  // no exported function reaches these two yet
  static void shareLink(const std::string &text);
  static void shareFolder(const std::string &folderPath);
  static void shareFile(const std::string &filePath);
  static void screenshot();
  static void screenshotShare();
  static void startScreenRecorder();
  static void stopScreenRecorder();

  // Queries
  static std::string getNativeScreenshotOutputURL();
  static std::string getNativeScreenRecorderOutputURL();
  static std::string getVersion();
  static std::string getVTLARCameraMatrixRuntime();
  static std::string getVTLARCameraProjectionMatrixRuntime();
  static bool getVantorelSupport();
  static bool getMultiRoomSupport();
  static bool getARWorldMapSupport();

 private:
  static void setupScene();
};

}  // namespace vantorel
