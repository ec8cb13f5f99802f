// Rooms, one text after another with a form feed between, are refused or become a structure that all writers
// take and that can be made again from its rooms.
#include "rooms/BuildStructure.h"
#include "rooms/MetadataPlist.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"
#include "rooms/UsdzWriter.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>

namespace {

using namespace vantorel;

using Rooms = std::vector<std::shared_ptr<const RoomDocument>>;

void require(bool condition) {
  if (!condition) std::abort();
}

Rooms readRooms(std::string_view text) {
  Rooms rooms;
  while (!text.empty() && rooms.size() < 8) {
    const std::string_view piece = text.substr(0, text.find('\f'));
    text.remove_prefix(std::min(text.size(), piece.size() + 1));
    try {
      rooms.push_back(std::make_shared<const RoomDocument>(readRoom(piece)));
    } catch (const RoomReadError &) {
    }
  }
  return rooms;
}

std::optional<StructureDocument> buildIfPossible(const Rooms &rooms) {
  try {
    return buildStructure(rooms);
  } catch (const StructureError &error) {
    require(*error.what() != '\0');
    return std::nullopt;
  }
}

std::set<Uuid> identifiersOf(const RoomDocument &room) {
  std::set<Uuid> identifiers;
  for (const auto *list : {&room.walls, &room.doors, &room.windows, &room.openings})
    for (const Surface &surface : *list) identifiers.insert(surface.identifier);
  if (room.floors)
    for (const Surface &floor : *room.floors) identifiers.insert(floor.identifier);
  for (const RoomObject &object : room.objects) identifiers.insert(object.identifier);
  return identifiers;
}

/// Every element of the rooms is there, or another one for it that is.
void requireComplete(const StructureDocument &structure) {
  const std::set<Uuid> kept = identifiersOf(structure.elements);
  for (const auto &[replaced, standIn] : structure.keptFor)
    require(!kept.contains(replaced) && kept.contains(standIn));
  for (const auto &room : structure.rooms)
    for (const Uuid &identifier : identifiersOf(*room))
      require(kept.contains(identifier) || structure.keptFor.contains(identifier));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  Rooms rooms = readRooms({reinterpret_cast<const char *>(data), size});
  if (rooms.size() == 1) rooms.push_back(rooms[0]);
  const auto structure = buildIfPossible(rooms);
  if (!structure) return 0;
  requireComplete(*structure);
  const std::string text = writeStructure(*structure);
  require(writeUsdz(structure->elements, "scan").size() > 64);
  require(!writeMetadataPlist(*structure).empty());
  require(writeStructure(buildStructure(structure->rooms)) == text);
  return 0;
}
