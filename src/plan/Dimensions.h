// Which lengths a plan gives: chains along its four sides, and the clear size of each room.
#pragma once

#include "plan/Board.h"
#include "plan/RoomAreas.h"
#include "plan/Storey.h"

#include <vector>

namespace vantorel::plan {

enum class Side { top, left, bottom, right };

/// A place where a chain is divided, and where on the house that is.
struct ChainPoint {
  double at;    ///< along the side, metres
  double from;  ///< across it: where its extension line begins
};

/// What somebody sees who looks at the house from that side: the corners of walls along it and the edges of what
/// lies in them, from end to end. A corner within 0.35 m of another point is left out, an edge within 12 cm of one;
/// what is nearer to that side goes first. Fewer than two: nothing to measure.
std::vector<ChainPoint> chainOf(const Storey &storey, const std::vector<Polygon> &floors, Side side);

/// A straight line between two faces of walls.
struct ClearSize {
  Point from, to;
  bool isSquare;  ///< meets both faces at a right angle
};

/// From the point to both sides until a wall, or what closes a gap in one; nothing where there is none.
std::optional<ClearSize> clearSize(const std::vector<Polygon> &barriers, Point point, bool isVertical);

/// Walls with their gaps closed.
std::vector<Polygon> barriersOf(const Storey &storey);

}  // namespace vantorel::plan
