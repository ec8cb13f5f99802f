#include "model/CameraText.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

/// The element of column c and row r is 10 r + c + 1, so that every number tells its place.
Float4x4 tellingMatrix() {
  Float4x4 matrix;
  for (std::size_t i = 0; i < 16; ++i) matrix.elements[i] = static_cast<float>(10 * (i % 4) + i / 4 + 1);
  return matrix;
}

TEST(CameraText, TurnsThePoseIntoTheHostsConvention) {
  EXPECT_EQ(cameraPoseText(tellingMatrix()),
            "[-1.0, -2.0, -3.0, 4.0, -11.0, -12.0, -13.0, 14.0, 21.0, 22.0, 23.0, -24.0, 31.0, 32.0, 33.0, "
            "34.0]");
}

TEST(CameraText, SwapsTheProjectionsFirstColumnsAndTurnsOneElement) {
  EXPECT_EQ(cameraProjectionText(tellingMatrix()),
            "[2.0, -1.0, 3.0, 4.0, 12.0, 11.0, 13.0, 14.0, 22.0, 21.0, 23.0, 24.0, 32.0, 31.0, 33.0, 34.0]");
}

}  // namespace
}  // namespace vantorel
