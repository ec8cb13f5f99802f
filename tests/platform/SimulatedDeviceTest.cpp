#include "support/DeviceTest.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <limits>

namespace vantorel::testing {
namespace {

std::string refusal(char *answer) { return answer ? taken(answer) : ""; }

void expectRefused(char *answer, const std::string &part) {
  const std::string text = refusal(answer);
  EXPECT_NE(text.find(part), std::string::npos) << "\"" << text << "\" does not tell of \"" << part << "\"";
}

class SimulatedDeviceTest : public DeviceTest {
 protected:
  /// A whole use of the library: scan view, an event of every kind, save, torch, end.
  void useEverything(const std::string &name) {
    initialize();
    isVTLDefaultScanEnabled(1);
    expectRefused(vantorelDeviceSetRoom(sampleRooms().at(0).c_str(), 2, 20), "");
    EXPECT_EQ(state("device.hasNextScan"), "true");
    start();
    EXPECT_EQ(state("device.hasNextScan"), "false");
    advance(0.5);
    taken(getVTLARCameraMatrixRuntime());
    update(walledRoom(3));
    instruction("slowDown");
    end("World tracking failure");
    EXPECT_EQ(refusal(vantorelDeviceSettle()), "");
    end(nullptr);
    setFlashlightStatus(1);
    trySaveRoomPlanExperience("scans", name.c_str());
    stopCaptureSession();
    disposeVTL();
    EXPECT_EQ(refusal(vantorelDeviceSettle()), "");
  }
};

TEST_F(SimulatedDeviceTest, IsNewAfterAPowerCycle) {
  option("ios", "16.0");
  option("window", "empty");
  fail("writeFile", 9);
  useEverything("first");
  expectRefused(vantorelDeviceSetRoom(sampleRooms().at(0).c_str(), 2, 20), "");
  powerCycle();
  EXPECT_EQ(vantorelDeviceTime(), 0);
  EXPECT_EQ(state("device.hasNextScan"), "false");
  EXPECT_EQ(MultiRoomSupport(), 1);
  EXPECT_EQ(state("device.torch"), "\"off\"");
  EXPECT_EQ(state("view.subviews"), "[]");
  expectRefused(vantorelDeviceDeliverEnd(nullptr), "no session");
  initialize();
  EXPECT_EQ(state("window.subviews"), R"(["controller","host"])");
  EXPECT_EQ(state("renderThreads"), "1");
  startCaptureSession();
  EXPECT_EQ(refusal(vantorelDeviceSettle()), "");
  EXPECT_TRUE(snapshots().empty()) << "the next room was forgotten";
  EXPECT_EQ(trySaveRoomPlanExperience("scans", "second"), 1);
}

TEST_F(SimulatedDeviceTest, GivesTheSameEventsWhateverTheTiming) {
  const auto run = [&](const std::string &name, std::uint32_t sleep) {
    powerCycle();
    vantorelDeviceSetHandoverSleep(sleep, 7);
    useEverything(name);
    vantorelDeviceSetHandoverSleep(0, 0);
    return std::pair(heard(), snapshots());
  };
  const auto plain = run("plain", 0);
  EXPECT_FALSE(plain.second.empty());
  EXPECT_EQ(run("slept", 300), plain);
}

TEST_F(SimulatedDeviceTest, RunsEverythingFreelyToo) {
  vantorelDeviceSetFreeRunning(1);
  powerCycle();
  for (int cycle = 0; cycle < 5; ++cycle) {
    useEverything(std::to_string(cycle));
    EXPECT_FALSE(snapshots().empty());
    powerCycle();
  }
  vantorelDeviceSetFreeRunning(0);
}

TEST_F(SimulatedDeviceTest, TellsWhatIsWrongWithARoom) {
  const std::string path = file("broken.json");
  writeFile(path, "{\"version\":2,\n\"walls\":7}");
  expectRefused(vantorelDeviceSetRoom(path.c_str(), 1, 1), path + ": line 2, column ");
  expectRefused(vantorelDeviceSetRoom(file("none.json").c_str(), 1, 1), "cannot read " + file("none.json"));
  initialize();
  start();
  expectRefused(vantorelDeviceDeliverUpdate(path.c_str()), "line 2");
  expectRefused(vantorelDeviceSetRoom(sampleRooms().at(0).c_str(), -1, 1), "seconds");
  expectRefused(vantorelDeviceSetRoom(sampleRooms().at(0).c_str(), 1, 0), "rate");
  expectRefused(vantorelDeviceSetOption("ios", "six"), "device ios: expected a version");
  expectRefused(vantorelDeviceFail("everything", 1, 0), "no platform call is named \"everything\"");
  expectRefused(vantorelDeviceDeliverInstruction(""), "needs a name");
  EXPECT_EQ(vantorelDeviceState("noSuchName"), nullptr);
}

TEST_F(SimulatedDeviceTest, RefusesTimeAndPowerInsideACallback) {
  static std::atomic<int> calls;
  calls = 0;
  initialize();
  start();
  setVTLCaptureSessionInstruction([](const char *text) {
    std::free(const_cast<char *>(text));
    expectRefused(vantorelDeviceSettle(), "vantorelDeviceSettle is not for callbacks");
    expectRefused(vantorelDeviceDeliverEnd(nullptr), "not for callbacks");
    expectRefused(vantorelDeviceAdvance(1), "vantorelDeviceAdvance is not for callbacks");
    vantorelDevicePowerCycle();
    ++calls;
  });
  ::testing::internal::CaptureStderr();
  instruction("normal");
  const std::string said = ::testing::internal::GetCapturedStderr();
  EXPECT_EQ(calls, 1);
  EXPECT_NE(said.find("vantorelDevicePowerCycle is not for callbacks"), std::string::npos) << said;
  EXPECT_EQ(vantorelDeviceTime(), 0);
  EXPECT_EQ(phase(), "scanning running");
}

TEST_F(SimulatedDeviceTest, MovesTimeForwardUntilTheClockEnds) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  for (const double seconds : {-1.0, none}) expectRefused(vantorelDeviceAdvance(seconds), "forward only");
  expectRefused(vantorelDeviceAdvance(1e300), "ends at 1000000000 seconds");
  EXPECT_EQ(vantorelDeviceTime(), 0);
  advance(1e9 - 1);
  expectRefused(vantorelDeviceAdvance(1.5), "ends at");
  expectRefused(vantorelDeviceSetRoom(sampleRooms().at(0).c_str(), 2, 20), "");
  initialize();
  start();
  expectRefused(vantorelDeviceSettle(), "ends at");
  EXPECT_EQ(vantorelDeviceTime(), 1e9);
}

TEST_F(SimulatedDeviceTest, RefusesNullTextsAsEmptyOnes) {
  expectRefused(vantorelDeviceSetOption(nullptr, nullptr), "no such option");
  expectRefused(vantorelDeviceSetOption("ios", nullptr), "device ios: expected a version");
  expectRefused(vantorelDeviceSetDocumentsDirectory(nullptr), "needs a path");
  expectRefused(vantorelDeviceFail(nullptr, 1, 0), "no platform call");
  expectRefused(vantorelDeviceSetRoom(nullptr, 1, 1), "cannot read");
  expectRefused(vantorelDeviceDeliverUpdate(nullptr), "cannot read");
  expectRefused(vantorelDeviceDeliverInstruction(nullptr), "needs a name");
}

}  // namespace
}  // namespace vantorel::testing
