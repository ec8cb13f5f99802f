#include "rooms/StructureDocument.h"

#include "rooms/ContentHash.h"
#include "rooms/RoomWriter.h"

namespace vantorel {

Uuid identifierOf(const StructureDocument &structure) {
  ContentHash hash;
  hash.add("structure");  // one room's structure is not that room
  for (const auto &room : structure.rooms) hash.add(writeVisibleValues(*room));
  return hash.uuid();
}

}  // namespace vantorel
