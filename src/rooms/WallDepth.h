#pragma once

namespace vantorel {

/// Metres that a wall goes away from the room. A scan does not tell; RoomPlan's own models have this.
inline constexpr double kWallDepth = 0.16;

}  // namespace vantorel
