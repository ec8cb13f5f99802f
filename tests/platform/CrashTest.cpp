// What stops the process of an app, on a device that keeps such crashes to itself.
#include "support/DeviceTest.h"

#include <filesystem>

namespace vantorel::testing {
namespace {

constexpr const char *kLoading = "Unexpectedly found nil while implicitly unwrapping an Optional value";
int notASession;
constexpr const char *kForeignSession =
    "The AR session is none of the simulated device's; vantorelDeviceARSession gives one.";

class CrashTest : public DeviceTest {
 protected:
  CrashTest() { vantorelDeviceSetCrashContained(1); }
  ~CrashTest() override {
    vantorelDeviceSetCrashContained(0);
    powerCycle();
  }

  /// The device has crashed, does nothing any more, and works again after a power cycle.
  void expectCrash(const std::string &message) {
    EXPECT_EQ(taken(vantorelDeviceAdvance(1)), "the device has crashed: " + message);
    EXPECT_EQ(taken(vantorelDeviceSettle()), "the device has crashed: " + message);
    EXPECT_EQ(taken(vantorelDeviceDeliverInstruction("normal")), "the device has crashed: " + message);
    heard();
    startCaptureSession();
    EXPECT_EQ(trySaveRoomPlanExperience("scans", "from beyond"), 0);
    EXPECT_EQ(taken(getVantorelVersion()), "");
    EXPECT_EQ(heard(), Lines());
    powerCycle();
    EXPECT_EQ(state("device.crash"), "null");
    initialize();
    start();
    EXPECT_EQ(phase(), "scanning running");
    powerCycle();
  }
};

TEST_F(CrashTest, EndsTheDeviceAloneWhereverItHappens) {
  fail("loadView");
  initializeVTL();
  advance(0);
  EXPECT_EQ(state("device.crash"), std::string("\"") + kLoading + '"') << "on the main queue";
  expectCrash(kLoading);

  fail("loadView");
  startCaptureSession();
  expectCrash(kLoading);

  setVTLDidStart([] { setVantorelXRSession(&notASession); });
  initializeVTL();
  advance(0);
  expectCrash(kForeignSession);

  for (const char *call : {"archive", "writeFile"}) {
    initialize();
    start();
    std::filesystem::create_directories(file("maps/WorldMap"));
    fail(call);
    stopCaptureSessionWithARWorldMap(file("maps/").c_str());
    advance(0.5);  // on the completion thread
    expectCrash(std::string(call) == "archive" ? "Can't encode map" : "Can't write to url");
  }
}

}  // namespace
}  // namespace vantorel::testing
