#include "support/DeviceTest.h"

#include "rooms/RoomWriter.h"
#include "support/TestRooms.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <utility>

namespace vantorel::testing {
namespace {

namespace fs = std::filesystem;

/// Callbacks are plain pointers, so what they bring is kept here.
struct Ears {
  std::mutex mutex;
  Lines lines, snapshots;

  void hear(const std::string &line) {
    std::lock_guard lock(mutex);
    lines.push_back(std::string(vantorelDeviceThread()) + " " + line);
  }
};

Ears ears;

void hearInstruction(const char *text) {
  ears.hear("VTLCaptureSessionInstruction " + taken(const_cast<char *>(text)));
}

void hearSnapshot(const char *text) {
  ears.hear("VTLRoomSnapshot");
  std::lock_guard lock(ears.mutex);
  ears.snapshots.push_back(taken(const_cast<char *>(text)));
}

void observe(const char *kind, const char *name, const char *value) {
  ears.hear(std::string(kind) + " " + (name ? std::string(name) + " " : "") + value);
}

void registerAll() {
  setVTLDidStart([] { ears.hear("VTLDidStart"); });
  setVTLDidEnd([] { ears.hear("VTLDidEnd"); });
  setVTLCaptureSessionDidStart([] { ears.hear("VTLCaptureSessionDidStart"); });
  setVTLCaptureSessionDidEnd([] { ears.hear("VTLCaptureSessionDidEnd"); });
  setVTLCaptureSessionDidAdd([] { ears.hear("VTLCaptureSessionDidAdd"); });
  setVTLCaptureSessionDidUpdate([] { ears.hear("VTLCaptureSessionDidUpdate"); });
  setVTLCaptureSessionDidChange([] { ears.hear("VTLCaptureSessionDidChange"); });
  setVTLCaptureSessionDidRemove([] { ears.hear("VTLCaptureSessionDidRemove"); });
  setVTLCaptureSessionInstruction(hearInstruction);
  setVTLRoomSnapshot(hearSnapshot);
}

/// The device's answer to something that it must not refuse.
void expectNoRefusal(char *answer) {
  EXPECT_EQ(answer, nullptr) << answer;
  std::free(answer);
}

}  // namespace

std::string taken(char *text) {
  std::string copy = text;
  std::free(text);
  return copy;
}

RoomDocument walledRoom(std::size_t walls) {
  RoomDocument room;
  for (std::uint32_t i = 1; i <= walls; ++i) room.walls.push_back(wall(i, {static_cast<float>(i), 0, 0}, 2));
  return room;
}

DeviceTest::DeviceTest() {
  vantorelDeviceSetObserver(observe);
  expectNoRefusal(vantorelDeviceSetDocumentsDirectory(documents_.path().c_str()));
  powerCycle();
}

DeviceTest::~DeviceTest() {
  vantorelDevicePowerCycle();
  vantorelDeviceSetObserver(nullptr);
}

void DeviceTest::powerCycle() {
  vantorelDevicePowerCycle();
  ears.lines.clear();
  ears.snapshots.clear();
  registerAll();
}

Lines DeviceTest::heard() {
  std::lock_guard lock(ears.mutex);
  return std::exchange(ears.lines, {});
}

Lines DeviceTest::snapshots() {
  std::lock_guard lock(ears.mutex);
  return ears.snapshots;
}

std::string DeviceTest::state(const char *name) {
  char *text = vantorelDeviceState(name);
  return text ? taken(text) : "no such name";
}

std::string DeviceTest::phase() {
  const auto is = [](const char *name) { return state(name) == "true"; };
  const std::string flags = is("isScanning") ? "scanning" : "idle";
  return flags + (is("isRoomPlanSessionScanningPaused") ? ", paused" : "") +
         (is("captureSession.isRunning") ? " running" : "");
}

void DeviceTest::option(const char *name, const char *value) {
  expectNoRefusal(vantorelDeviceSetOption(name, value));
}

void DeviceTest::fail(const char *call, std::uint32_t count, std::uint32_t skip) {
  expectNoRefusal(vantorelDeviceFail(call, count, skip));
}

void DeviceTest::advance(double seconds) { expectNoRefusal(vantorelDeviceAdvance(seconds)); }

void DeviceTest::update(const RoomDocument &room) {
  const std::string path = rooms_.path() + "/room.json";
  writeFile(path, writeRoom(room));
  expectNoRefusal(vantorelDeviceDeliverUpdate(path.c_str()));
}

void DeviceTest::instruction(const char *name) { expectNoRefusal(vantorelDeviceDeliverInstruction(name)); }

void DeviceTest::end(const char *description) { expectNoRefusal(vantorelDeviceDeliverEnd(description)); }

void DeviceTest::initialize() {
  initializeVTL();
  advance();
  heard();
}

void DeviceTest::start() {
  startCaptureSession();
  advance();
  heard();
}

Lines DeviceTest::files() const {
  Lines found;
  for (const auto &entry : fs::recursive_directory_iterator(documents_.path()))
    found.push_back(entry.path().lexically_relative(documents_.path()).generic_string() +
                    (entry.is_directory() ? "/" : ""));
  std::sort(found.begin(), found.end());
  return found;
}

void DeviceTest::removeFiles() const {
  for (const auto &entry : fs::directory_iterator(documents_.path())) fs::remove_all(entry);
}

}  // namespace vantorel::testing
