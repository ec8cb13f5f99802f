// How an element of a room looks while it is still being found.
#pragma once

#include "rooms/RoomDocument.h"

namespace vantorel {

/// `progress` from 0 (first seen) to 1 (as given). A wall grows along its width from its left end and upwards
/// from its foot; a curved one has its size at once. Nothing shrinks as progress rises.
Surface grownWall(Surface wall, double progress);
/// A door, window or opening has its size at once.
Surface grownInWall(Surface surface, double progress);
/// Furniture grows where it stands.
RoomObject grownObject(RoomObject object, double progress);

}  // namespace vantorel
