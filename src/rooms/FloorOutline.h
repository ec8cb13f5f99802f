#pragma once

#include "rooms/Lattice.h"

namespace vantorel {

/// The outline with each side moved outward by `distance` and the corners drawn out to where the sides meet, those
/// sharper than 29 degrees cut off. Outward is to the outside of most of the area, whichever way round it goes.
/// What it winds around is the larger shape: where sides pass each other their loop counts twice.
Ring offsetOutward(const Ring &outline, Lattice distance);

}  // namespace vantorel
