#pragma once

#include "rooms/RoomDocument.h"

namespace vantorel {

/// Rooms that hold only the elements that are new, other than before, or gone, by identifier.
struct RoomDifference {
  RoomDocument added, changed, removed;
};

/// Between two states of one scan; `before` may be null. Pure; any thread.
RoomDifference differenceOf(const RoomDocument *before, const RoomDocument &after);

}  // namespace vantorel
