#include "rooms/Lattice.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace vantorel {

Lattice toLattice(double metres) {
  if (!std::isfinite(metres)) throw std::runtime_error("a size of the room is not a finite number");
  constexpr double kLimit = kFarthest;
  return nearest(std::clamp(metres * kStepsPerMetre, -kLimit, kLimit));
}

LatticeRect boundsOf(const Ring &ring) {
  LatticeRect box{ring.front(), ring.front()};
  for (const LatticePoint &corner : ring) {
    box.low = {std::min(box.low.x, corner.x), std::min(box.low.y, corner.y)};
    box.high = {std::max(box.high.x, corner.x), std::max(box.high.y, corner.y)};
  }
  return box;
}

LatticeRect withSize(LatticeRect box) {
  const auto widen = [](Lattice &low, Lattice &high) {
    const Lattice missing = kLeastSize - (high - low);
    if (missing <= 0) return;
    low -= missing / 2;
    high = low + kLeastSize;
  };
  widen(box.low.x, box.high.x);
  widen(box.low.y, box.high.y);
  return box;
}

Ring ringAround(const LatticeRect &box) {
  return {box.low, {box.high.x, box.low.y}, box.high, {box.low.x, box.high.y}};
}

}  // namespace vantorel
