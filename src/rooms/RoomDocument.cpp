#include "rooms/RoomDocument.h"

#include "rooms/ContentHash.h"
#include "rooms/RoomWriter.h"

namespace vantorel {

bool RoomDocument::isEmpty() const {
  return walls.empty() && doors.empty() && windows.empty() && openings.empty() && objects.empty();
}

Uuid identifierOf(const RoomDocument &room) {
  if (room.identifier) return *room.identifier;
  ContentHash hash;
  hash.add(writeVisibleValues(room));
  return hash.uuid();
}

}  // namespace vantorel
