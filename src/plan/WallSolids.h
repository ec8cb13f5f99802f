#pragma once

#include "plan/Storey.h"

namespace vantorel::plan {

/// Gives each wall its depth, its corners, and the gaps for what lies in it.
/// - A wall is kWallDepth deep. Where another wall stands back to back with it, up to twice that behind it, each
///   reaches to the middle between both faces.
/// - Ends of walls that lie within 0.12 m of each other become a mitred corner; an end that close to the middle
///   of another wall is drawn up to it.
/// - A door, window or opening lies in its wall and in what stands back to back with that; without a wall of
///   its own in the nearest parallel one, else it stands alone.
/// The storey must not move afterwards: bands point to its walls.
void raiseWalls(Storey &storey);

}  // namespace vantorel::plan
