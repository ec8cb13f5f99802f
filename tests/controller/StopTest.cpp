// Where something that must exist is missing, the process stops. No folder is made here: nothing could remove
// it.
#include "vantorel/simulated_device.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vantorel::testing {
namespace {

void initializeWithout(const char *view) {
  std::free(vantorelDeviceFail(view, 1, 0));
  initializeVTL();
  vantorelDeviceAdvance(0);
}

TEST(StopDeathTest, SaysWhichValueWasMissing) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  vantorelDevicePowerCycle();
  const char *loading = "Unexpectedly found nil while implicitly unwrapping an Optional value";
  EXPECT_DEATH(initializeWithout("loadView"), loading);
  EXPECT_DEATH(initializeWithout("loadRootView"), loading);
  EXPECT_DEATH(
      {
        disposeVTL();  // before any initialise there is no display link
        vantorelDeviceAdvance(0);
      },
      "Unexpectedly found nil while unwrapping an Optional value");
}

}  // namespace
}  // namespace vantorel::testing
