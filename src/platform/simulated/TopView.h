#pragma once

#include "platform/simulated/Canvas.h"
#include "rooms/RoomDocument.h"

#include <optional>

namespace vantorel {

/// A room seen from above, the world's x to the right and its z towards the bottom, as large as fits: floors,
/// furniture, walls, and in them openings, windows and doors; the camera looks along its wedge. The bar at the
/// bottom is 1, 2 or 5 metres long, in as many parts, or that times a power of ten. Curved walls are drawn
/// straight. `room` may be null. Pure; any thread.
Picture topView(const RoomDocument *room, const std::optional<Float4x4> &camera, int width, int height);

}  // namespace vantorel
