#include "support/DeviceTest.h"

namespace vantorel::testing {
namespace {

using Camera = DeviceTest;

const char *const kCounting = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16";

TEST_F(Camera, IsEmptyUnlessScanning) {
  initialize();
  option("camera", kCounting);
  EXPECT_EQ(taken(getVTLARCameraMatrixRuntime()), "");
  start();
  EXPECT_NE(taken(getVTLARCameraMatrixRuntime()), "");
  EXPECT_NE(taken(getVTLARCameraProjectionMatrixRuntime()), "");
  stopCaptureSession();
  EXPECT_EQ(taken(getVTLARCameraMatrixRuntime()), "");
  EXPECT_EQ(taken(getVTLARCameraProjectionMatrixRuntime()), "");
}

TEST_F(Camera, IsZeroBeforeTheFirstFrame) {
  initialize();
  startCaptureSession();
  EXPECT_EQ(taken(getVTLARCameraMatrixRuntime()),
            "[-0.0, -0.0, -0.0, 0.0, -0.0, -0.0, -0.0, 0.0, 0.0, 0.0, 0.0, -0.0, 0.0, 0.0, 0.0, 0.0]");
  EXPECT_EQ(taken(getVTLARCameraProjectionMatrixRuntime()),
            "[0.0, -0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0]");
}

TEST_F(Camera, SamplesTheFrameOfTheMoment) {
  initialize();
  start();
  option("camera", kCounting);
  option("projection", kCounting);
  EXPECT_EQ(taken(getVTLARCameraMatrixRuntime()),
            "[-1.0, -5.0, -9.0, 13.0, -2.0, -6.0, -10.0, 14.0, 3.0, 7.0, 11.0, -15.0, 4.0, 8.0, 12.0, 16.0]");
  EXPECT_EQ(taken(getVTLARCameraProjectionMatrixRuntime()),
            "[5.0, -1.0, 9.0, 13.0, 6.0, 2.0, 10.0, 14.0, 7.0, 3.0, 11.0, 15.0, 8.0, 4.0, 12.0, 16.0]");
  const std::string sampled = "[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16]";
  option("camera", "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0");
  EXPECT_EQ(state("arCameraMatrix"), sampled) << "the last sample";
  EXPECT_EQ(state("arCameraProjectionMatrix"), sampled);
}

}  // namespace
}  // namespace vantorel::testing
