// The two paths a host waits for: a room update from the delegate's event to the host's callback, and a save.
// Beside each stands the least that any library would do for the same bytes.
#include "vantorel/simulated_device.h"

#include "Rooms.h"
#include "bridge/Plugin.h"
#include "controller/VTLViewController.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/SimulatedRoom.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"
#include "rooms/UsdzWriter.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;
using vantorel::benchmarks::Room;

/// A folder in memory where there is one, so that the disk does not drown the rest.
fs::path freshFolder() {
  fs::path folder = fs::is_directory("/dev/shm") ? "/dev/shm" : fs::temp_directory_path();
  folder /= "vantorel-benchmark";
  fs::remove_all(folder);
  fs::create_directories(folder);
  return folder;
}

std::shared_ptr<vantorel::CapturedRoom> capturedRoom(const std::string &text) {
  static vantorel::DeviceParts device;
  auto document = std::make_shared<const vantorel::RoomDocument>(vantorel::readRoom(text));
  return std::make_shared<vantorel::SimulatedRoom>(document, vantorel::identifierOf(*document), device);
}

void freeText(const char *text) { std::free(const_cast<char *>(text)); }

void startHost() {
  vantorelDevicePowerCycle();
  setVTLRoomSnapshot(freeText);
  setVTLCaptureSessionDidUpdate([] {});
  initializeVTL();
  vantorelDeviceAdvance(0);
  startCaptureSession();
  vantorelDeviceAdvance(0);
}

void update(benchmark::State &state, const Room &room) {
  startHost();
  const auto captured = capturedRoom(room.text);
  auto &controller = vantorel::plugin().viewController();
  for (auto _ : state) {
    controller.captureSessionDidUpdate(captured);
    vantorelDeviceAdvance(0);
  }
}

/// Encode once, copy once.
void encodeAndCopy(benchmark::State &state, const Room &room) {
  const auto document = vantorel::readRoom(room.text);
  for (auto _ : state) freeText(strdup(vantorel::writeRoom(document).c_str()));
}

void save(benchmark::State &state, const Room &room) {
  startHost();
  const fs::path folder = freshFolder();
  vantorelDeviceSetDocumentsDirectory(folder.c_str());
  vantorel::plugin().viewController().captureSessionDidUpdate(capturedRoom(room.text));
  vantorelDeviceAdvance(0);
  std::size_t count = 0;
  for (auto _ : state)
    if (!trySaveRoomPlanExperience("scans", std::to_string(count++).c_str()))
      state.SkipWithError("not saved");
  fs::remove_all(folder);
}

/// The same folders and bytes, nothing encoded.
void writeFiles(benchmark::State &state, const Room &room) {
  const auto document = vantorel::readRoom(room.text);
  const std::string json = vantorel::writeRoom(document), usdz = vantorel::writeUsdz(document, "scan");
  const fs::path folder = freshFolder();
  std::size_t count = 0;
  for (auto _ : state) {
    const fs::path scan = folder / "scans" / std::to_string(count++);
    fs::create_directories(scan);
    std::ofstream(scan / "scan.json", std::ios::binary)
        .write(json.data(), static_cast<std::streamsize>(json.size()));
    std::ofstream(scan / "scan.usdz", std::ios::binary)
        .write(usdz.data(), static_cast<std::streamsize>(usdz.size()));
  }
  fs::remove_all(folder);
}

[[maybe_unused]] const bool kRegistered = [] {
  for (const Room &room : vantorel::benchmarks::rooms()) {
    const auto add = [&](const char *name, void (*run)(benchmark::State &, const Room &)) {
      return benchmark::RegisterBenchmark(std::string(name).append("/").append(room.name).c_str(), run, room);
    };
    add("update", update);
    add("update-encode-and-copy", encodeAndCopy);
    add("save", save)->Iterations(300);
    add("save-write-files", writeFiles)->Iterations(300);
  }
  return true;
}();

}  // namespace
