#include "support/DeviceTest.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace vantorel::testing {
namespace {

namespace fs = std::filesystem;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define IS_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define IS_SANITIZED 1
#endif
#endif

long entriesOf(const char *folder) {
  return std::distance(fs::directory_iterator(folder), fs::directory_iterator());
}

/// In kilobytes.
long residentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;)
    if (long kilobytes = 0; word == "VmRSS:" && status >> kilobytes) return kilobytes;
  return -1;
}

class Soak : public DeviceTest {
 protected:
  Soak() { configure(); }

  static void configure() {
    setVTLRoomSnapshot([](const char *text) { std::free(const_cast<char *>(text)); });
    isVTLMultiRoomEnabled(1);
    setVantorelXRSession(vantorelDeviceARSession());
  }

  void scanARoom(std::size_t walls) {
    for (std::size_t updates = 0; updates < 5; ++updates) update(walledRoom(walls));
    instruction("slowDown");
    advance(0.1);
  }

  /// In the midst of a scan.
  void cutThePower() {
    initialize();
    start();
    scanARoom(1);
    powerCycle();
    configure();
  }

  /// From start to dispose: two rooms merged, a world map written, and every other time a scan from it.
  void runSession(int number) {
    isVTLDefaultScanEnabled(number % 2);
    isVTLCustomXREnabled(number % 5 != 0);  // only the others render frames, which takes most of the time
    initialize();
    if (number % 4 == 3) {
      startCaptureSessionWithARWorldMap(file("maps/WorldMap/scan").c_str());
      advance(2);
    } else {
      startCaptureSession();
    }
    for (std::size_t walls = 1; walls <= 2; ++walls) {
      scanARoom(walls);
      createNewRoomCaptureSession();
    }
    std::free(getVTLARCameraMatrixRuntime());
    EXPECT_EQ(trySaveRoomPlanExperience("home", "merged"), 1);
    advance(2.5);
    fs::create_directories(file("maps/WorldMap"));
    stopCaptureSessionWithARWorldMap(file("maps/").c_str());
    advance(0.5);
    disposeVTL();
    advance();
    EXPECT_EQ(heard().back(), "main VTLDidEnd");
    EXPECT_EQ(files().size(), 8U) << "a merge of three files in two folders, a map in two";
    fs::remove_all(file("home"));
  }
};

TEST_F(Soak, AThousandSessionsLeaveNothingBehind) {
#ifdef IS_SANITIZED
  GTEST_SKIP() << "a sanitizer keeps memory of its own";
#endif
  if (!fs::exists("/proc/self/status")) GTEST_SKIP() << "this system does not tell what a process holds";
  long memory = 0, threads = 0, openFiles = 0;
  for (int session = 1; session <= 1000; ++session) {
    if (session % 10 == 1) cutThePower();
    runSession(session);
    if (session != 100) continue;
    memory = residentMemory();
    threads = entriesOf("/proc/self/task");
    openFiles = entriesOf("/proc/self/fd");
  }
  const long growth = residentMemory() - memory;
  RecordProperty("growthInKilobytes", std::to_string(growth));
  EXPECT_LT(growth, 1024);
  EXPECT_EQ(entriesOf("/proc/self/task"), threads);
  EXPECT_EQ(entriesOf("/proc/self/fd"), openFiles);
}

}  // namespace
}  // namespace vantorel::testing
