// The solids of a room's elements, each in its element's own frame: metres, x to the right and y up as seen
// from the room, z towards the viewer. All are closed, so that no viewer has to draw back faces. docs/usdz.md
// tells the rules.
#pragma once

#include "rooms/RoomDocument.h"
#include "rooms/Solid.h"
#include "rooms/WallCorners.h"

#include <optional>
#include <span>

namespace vantorel {

// Every mesh keeps a length of at least 1 mm and coordinates within 100 m of its element's origin, but for what a floor
// or a post adds: sizes beyond are held there. Each throws std::runtime_error for a NaN or infinite number.

/// 0.16 m thick, away from the room, the openings (doors and windows too) cut straight through, and a post at
/// the +x end if the wall turns there.
Mesh wallMesh(const Surface &wall, std::span<const Surface *const> openings = {},
              std::optional<Turn> turn = {});
/// A door or a window: 0.08 m thick, away from the room.
Mesh panelMesh(const Surface &surface);
/// 0.16 m larger than its corners on every side, 0.16 m thick, downward.
Mesh floorMesh(const Surface &floor);
/// A box of its dimensions, about its centre. A chair at a table, its parent, ends below the table's top.
Mesh objectMesh(const RoomObject &object, const RoomObject *parent = nullptr);

}  // namespace vantorel
