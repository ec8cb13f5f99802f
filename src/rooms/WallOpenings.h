#pragma once

#include "rooms/Lattice.h"
#include "rooms/RoomDocument.h"

#include <span>
#include <vector>

namespace vantorel {

class WallArc;

/// The holes of a wall: each as wide and as high as its opening, upright in the wall, about the place in the wall
/// nearest to the opening's centre. Sides that all but meet the wall's box, or those of an opening before, are
/// laid together, so that no sliver stays between. `arc`: of a curved wall, whose x then are lengths along it.
/// Throws std::runtime_error for a NaN or infinite number.
std::vector<LatticeRect> wallOpenings(const Surface &wall, std::span<const Surface *const> openings,
                                      const LatticeRect &box, const WallArc *arc);

}  // namespace vantorel
