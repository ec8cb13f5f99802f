#include "rooms/SlimScan.h"

#include "rooms/ContentHash.h"
#include "rooms/RoomWriter.h"

#include <map>

namespace vantorel {
namespace {

/// Calls `change` with every identifier of a room, in one order for all rooms.
template <typename Change>
void changeIdentifiers(RoomDocument &room, const Change &change) {
  const auto changeOf = [&](auto &element) {
    change(element.identifier);
    if (element.parentIdentifier && *element.parentIdentifier) change(**element.parentIdentifier);
  };
  if (room.identifier) change(*room.identifier);
  for (auto *surfaces : {&room.walls, &room.doors, &room.windows, &room.openings})
    for (Surface &surface : *surfaces) changeOf(surface);
  for (RoomObject &object : room.objects) changeOf(object);
  if (room.floors)
    for (Surface &floor : *room.floors) changeOf(floor);
}

/// Every room of a scan, with a structure's elements first.
template <typename Change>
void changeRooms(ScanDocument &scan, const Change &change) {
  if (auto *room = std::get_if<RoomDocument>(&scan)) return change(*room);
  auto &structure = std::get<StructureDocument>(scan);
  change(structure.elements);
  for (auto &shared : structure.rooms) {
    auto room = std::make_shared<RoomDocument>(*shared);
    change(*room);
    shared = std::move(room);
  }
}

Uuid numbered(std::size_t number) {
  Uuid uuid;
  for (std::size_t i = 0; i < 8; ++i) uuid.bytes[15 - i] = static_cast<std::uint8_t>(number >> 8 * i);
  return uuid;
}

/// Numbers in the order in which identifiers are met.
void number(ScanDocument &scan) {
  std::map<Uuid, std::size_t> numbers;
  changeRooms(scan, [&](RoomDocument &room) {
    room.coreModel.reset();
    changeIdentifiers(
        room, [&](Uuid &uuid) { uuid = numbered(numbers.emplace(uuid, numbers.size()).first->second); });
  });
}

}  // namespace

ScanDocument slimmed(ScanDocument scan) {
  number(scan);
  ContentHash content;
  content.add(writeScan(scan));
  const std::string salt = content.uuid().text();
  changeRooms(scan, [&](RoomDocument &room) {
    changeIdentifiers(room, [&](Uuid &uuid) {
      ContentHash hash;
      hash.add(salt);
      hash.add(uuid.text());
      uuid = hash.uuid();
    });
  });
  return scan;
}

std::string writeScan(const ScanDocument &scan) {
  const auto *structure = std::get_if<StructureDocument>(&scan);
  return structure ? writeStructure(*structure) : writeRoom(std::get<RoomDocument>(scan));
}

}  // namespace vantorel
