#pragma once

#include "plan/Storey.h"

#include <vector>

namespace vantorel::plan {

/// A leaf that stands open at a right angle, and where it swings.
struct DoorLeaf {
  Point hinge, tip, latch;  ///< the tip swings to the latch
  double width() const { return length(tip - hinge); }
  bool isClockwise() const { return cross(tip - hinge, latch - hinge) > 0; }
  Polygon swing() const;
};

/// How the doors of a storey open: one leaf, two from 1.3 m on, none from 2.4 m on, which slide. A scan does not
/// tell on which side a door hinges: of the ways it could, the one that meets the least walls, furniture and other
/// doors, then into the room that its wall was seen from, then at the jamb that is nearer to the wall's end. An
/// entry for each hole, empty for what is no door.
std::vector<std::vector<DoorLeaf>> openDoors(const Storey &storey);

}  // namespace vantorel::plan
