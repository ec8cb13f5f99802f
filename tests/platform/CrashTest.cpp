// What stops the process of an app, on a device that keeps such crashes to itself.
#include "support/DeviceTest.h"

#include <filesystem>
#include <functional>

namespace vantorel::testing {
namespace {

int notASession;

class CrashTest : public DeviceTest {
 protected:
  CrashTest() { vantorelDeviceSetCrashContained(1); }
  ~CrashTest() override {
    vantorelDeviceSetCrashContained(0);
    powerCycle();
  }

  /// Ends a scan with a map, on the completion thread; an older one is there.
  void stopWithMap() const {
    start();
    std::filesystem::create_directories(file("WorldMap"));
    writeFile(file("WorldMap/scan"), "older");
    stopCaptureSessionWithARWorldMap(file("").c_str());
    advance(0.5);
  }

  /// The device has crashed, does nothing any more, and works again after a power cycle.
  void expectCrash(const std::string &message) {
    EXPECT_NE(state("device.crash"), "null");
    const std::string crashed = "the device has crashed: " + message;
    EXPECT_EQ(taken(vantorelDeviceAdvance(1)), crashed);
    EXPECT_EQ(taken(vantorelDeviceSettle()), crashed);
    EXPECT_EQ(taken(vantorelDeviceDeliverInstruction("normal")), crashed);
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
  const std::string loading = "Unexpectedly found nil while implicitly unwrapping an Optional value",
                    older = file("WorldMap/scan");
  const struct {
    const char *fault;
    std::function<void()> run;
    std::string message;
  } table[] = {
      {"loadView", initialize, loading},
      {"loadRootView", initialize, loading},
      {"loadView", startCaptureSession, loading},
      {"", [] { disposeVTL(), advance(); },  // before any initialise there is no display link
       "Unexpectedly found nil while unwrapping an Optional value"},
      {"", [] { setVTLDidStart([] { setVantorelXRSession(&notASession); }), initialize(); },
       "The AR session is none of the simulated device's; vantorelDeviceARSession gives one."},
      {"writeFile", [&] { stopWithMap(); }, "Can't write to url"},
      {"removeFile", [&] { stopWithMap(); }, "Can't remove " + older},
      {"archive", [&] { stopWithMap(); }, "Can't encode map"},
  };
  for (const auto &[fault, run, message] : table) {
    SCOPED_TRACE(message);
    if (*fault) fail(fault);
    run();
    expectCrash(message);
  }
  EXPECT_EQ(readFile(older), "older") << "it goes once there is something to write";
}

}  // namespace
}  // namespace vantorel::testing
