#include "platform/simulated/SimulatedStructure.h"

#include "platform/simulated/SimulatedRoom.h"
#include "rooms/BuildStructure.h"
#include "rooms/MetadataPlist.h"
#include "rooms/RoomWriter.h"

#include <cstdio>

namespace vantorel {
namespace {

constexpr Scheduler::Time kFixedTime = Scheduler::kSecond, kTimePerRoom = Scheduler::kSecond / 2;

std::shared_ptr<CapturedStructure> built(const std::vector<std::shared_ptr<CapturedRoom>> &rooms,
                                         DeviceParts &device) {
  std::vector<std::shared_ptr<const RoomDocument>> documents;
  documents.reserve(rooms.size());
  for (const auto &room : rooms) documents.push_back(dynamic_cast<const SimulatedRoom &>(*room).document());
  try {
    return std::make_shared<SimulatedStructure>(buildStructure(std::move(documents)), device);
  } catch (const StructureError &error) {
    std::fprintf(stderr, "vantorel: the rooms cannot be merged: %s\n",
                 error.what());  // the library does not ask
    return nullptr;
  }
}

}  // namespace

std::string SimulatedStructure::jsonText() const {
  device_.faults.check("encodeStructure");
  return writeStructure(document_);  // its numbers are finite, or it would not have been built
}

void SimulatedStructure::writeUsdz(const std::string &path, const std::string &metadataPath) const {
  device_.faults.check("exportStructure");
  exportUsdz(document_.elements, path, device_.files);
  device_.files.exportFile(metadataPath, writeMetadataPlist(document_));
}

void SimulatedStructureBuilder::capturedStructure(
    std::vector<std::shared_ptr<CapturedRoom>> rooms,
    std::function<void(std::shared_ptr<CapturedStructure>)> completion) {
  const auto time = kFixedTime + static_cast<Scheduler::Time>(rooms.size()) * kTimePerRoom;
  const bool fails = device_.faults.hits("buildStructure") || !device_.options.get().hasLidar;
  device_.scheduler.post(
      {.role = Role::completion,
       .work = [rooms = std::move(rooms), completion = std::move(completion), fails,
                &device = device_] { completion(fails ? nullptr : built(rooms, device)); }},
      device_.scheduler.now() + time);
}

}  // namespace vantorel
