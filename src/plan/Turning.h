#pragma once

#include "plan/Plane.h"
#include "rooms/RoomDocument.h"

namespace vantorel::plan {

/// Turns the world as seen from above (x to the right, z down) on paper.
struct Turning {
  Point east{1, 0};  ///< where the world's x axis goes, of length 1
  Point operator()(Point world) const { return east * world.x + turned(east) * world.y; }
};

/// Most length of walls runs along the paper's edges, and the plan is rather wide than high. Without walls
/// furniture decides. Without trigonometric functions, whose last digits differ between libraries.
Turning turningOf(const RoomDocument &document);

}  // namespace vantorel::plan
