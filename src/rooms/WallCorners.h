#pragma once

#include "rooms/RoomDocument.h"

#include <optional>
#include <vector>

namespace vantorel {

/// How far the next wall is turned from a wall, in plan, towards the room.
struct Turn {
  double sine, cosine;
};

/// For each wall, the turn at its +x end if it needs a post there: exactly one other wall starts there, and the corner
/// is convex as the room sees it. Turns of less than 1 and of more than 150 degrees count as none; so do corners of
/// walls that lean, stand on their heads, are curved or have no height in common. Pure.
std::vector<std::optional<Turn>> convexCorners(const std::vector<Surface> &walls);

}  // namespace vantorel
