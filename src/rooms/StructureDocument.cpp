#include "rooms/StructureDocument.h"

#include "rooms/ContentHash.h"

namespace vantorel {

Uuid structureIdentifier(const std::vector<Uuid> &rooms) {
  ContentHash hash;
  for (const Uuid &room : rooms) hash.add(room.text());
  return hash.uuid();
}

}  // namespace vantorel
