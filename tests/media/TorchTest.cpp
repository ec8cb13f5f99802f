#include "support/DeviceTest.h"

namespace vantorel::testing {
namespace {

using Torch = DeviceTest;

TEST_F(Torch, KeepsTheStateThatTheDeviceAccepted) {
  setFlashlightStatus(1);
  EXPECT_EQ(state("isTorchEnabled"), "true");
  EXPECT_EQ(state("device.torch"), "\"on\"");
  for (const char *trouble : {"absent", "refused", "nodevice"}) {
    option("torch", trouble);
    setFlashlightStatus(0);
    EXPECT_EQ(state("isTorchEnabled"), "true") << trouble;
  }
  option("torch", "present");
  setFlashlightStatus(0);
  setFlashlightStatus(0);
  EXPECT_EQ(state("isTorchEnabled"), "false");
  EXPECT_EQ(state("device.torch"), "\"off\"");
  EXPECT_EQ(heard(), Lines());
}

}  // namespace
}  // namespace vantorel::testing
