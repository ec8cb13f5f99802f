// Any text either is refused or becomes a room whose text reads back as the same room.
#include "base/JsonWriter.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"

#include <cstdlib>
#include <optional>

namespace {

using namespace vantorel;

std::optional<RoomDocument> readIfPossible(std::string_view text) {
  try {
    return readRoom(text);
  } catch (const RoomReadError &error) {
    if (error.line == 0 || error.column == 0) std::abort();
    return std::nullopt;
  }
}

void require(bool condition) {
  if (!condition) std::abort();
}

bool isSame(const RoomDocument &a, const RoomDocument &b) {
  return a.version == b.version && a.identifier == b.identifier && a.walls == b.walls && a.doors == b.doors &&
         a.windows == b.windows && a.openings == b.openings && a.objects == b.objects &&
         a.floors == b.floors && a.sections == b.sections && a.story == b.story &&
         a.referenceOriginTransform == b.referenceOriginTransform && !a.coreModel == !b.coreModel &&
         (!a.coreModel || *a.coreModel == *b.coreModel);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  auto room = readIfPossible({reinterpret_cast<const char *>(data), size});
  if (!room) return 0;
  const std::string written = writeRoom(*room);
  const RoomDocument again = readRoom(written);
  require(isSame(*room, again));
  require(writeRoom(again) == written);
  require(identifierOf(again) == identifierOf(*room));
  return 0;
}
