#include "support/DeviceTest.h"

namespace vantorel::testing {
namespace {

using ControllerState = DeviceTest;

TEST_F(ControllerState, BeginsWithTheDefaultsInTheirOrder) {
  const std::string zeros = "[0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0]";
  EXPECT_EQ(
      state(nullptr),
      R"({"isScanning":false,"isPresent":false,"isCoachingEnabled":true,"isDefaultScanEnabled":false,)"
      R"("isDefaultMiniatureModelEnabled":true,"isDefaultScanDataTransferEnabled":false,)"
      R"("isInstructionEnabled":true,"isTorchEnabled":false,"isCustomXREnabled":false,)"
      R"("isMultiRoomEnabled":false,"capturedRoomsData":[],"isARWorldMapEnabled":false,)"
      R"("isRoomPlanSessionScanningPaused":false,"arCameraMatrix":)" +
          zeros + R"(,"arCameraProjectionMatrix":)" + zeros +
          R"(,"directoryName":"model-viewer","scanName":"My new scan","finalResults":null,"delegate":null,)"
          R"("captureSession":null,"roomCaptureView":null,"rootViewController":null,)"
          R"("roomCaptureSessionConfig":"RoomCaptureSession.Configuration","sceneView":null,)"
          R"("customARSession":null,"nativeScreenshot":false,"nativeScreenshotPreview":false,)"
          R"("nativeScreenshotOutputURL":"","nativeScreenshotActivityItems":[],"nativeScreenRecorder":false,)"
          R"("nativeScreenRecorderPreview":false,"nativeScreenRecorderOutputURL":"",)"
          R"("roomFinalStringResults":"","roomInstructionStringResults":"","displayLink":null,)"
          R"("QLModelViewerURL":null})");
  EXPECT_EQ(state("roomCaptureSessionConfig.isCoachingEnabled"), "true");
  EXPECT_EQ(state("noSuchProperty"), "no such name");
}

TEST_F(ControllerState, OutlivesDisposeAndANewInitialize) {
  isVTLCoachingEnabled(0);
  isVTLMultiRoomEnabled(1);
  setFlashlightStatus(1);
  initialize();
  disposeVTL();
  initialize();
  EXPECT_EQ(state("isCoachingEnabled"), "false");
  EXPECT_EQ(state("isMultiRoomEnabled"), "true");
  EXPECT_EQ(state("isTorchEnabled"), "true");
}

}  // namespace
}  // namespace vantorel::testing
