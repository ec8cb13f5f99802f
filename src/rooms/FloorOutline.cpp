#include "rooms/FloorOutline.h"

#include <cmath>
#include <cstddef>

namespace vantorel {
namespace {

struct Direction {
  double x, y;
};

/// Of unit length, to the right of the way from one corner to the other: outward when that goes counter-clockwise.
Direction rightOf(const LatticePoint &from, const LatticePoint &to) {
  const double x = static_cast<double>(to.x - from.x), y = static_cast<double>(to.y - from.y);
  const double length = std::sqrt(x * x + y * y);
  return {y / length, -x / length};
}

bool isCounterClockwise(const Ring &ring) {
  double area = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const LatticePoint &a = ring[i], &b = ring[(i + 1) % ring.size()];
    area += static_cast<double>(a.x) * static_cast<double>(b.y) -
            static_cast<double>(b.x) * static_cast<double>(a.y);
  }
  return area >= 0;
}

LatticePoint moved(const LatticePoint &point, const Direction &to, double distance) {
  return {point.x + nearest(to.x * distance), point.y + nearest(to.y * distance)};
}

void addCorner(Ring &ring, const LatticePoint &corner, const Direction &before, const Direction &after,
               double distance) {
  // Twice the square of the cosine of half the turn; the drawn-out corner lies at 1 over that cosine.
  const double cosine = 1 + before.x * after.x + before.y * after.y;
  constexpr double kMostDrawnOut = 4;
  if (cosine * kMostDrawnOut * kMostDrawnOut >= 2) {
    ring.push_back(moved(corner, {(before.x + after.x) / cosine, (before.y + after.y) / cosine}, distance));
  } else {
    ring.push_back(moved(corner, before, distance));
    ring.push_back(moved(corner, after, distance));
  }
}

}  // namespace

Ring offsetOutward(const Ring &outline, Lattice distance) {
  const double outward = static_cast<double>(isCounterClockwise(outline) ? distance : -distance);
  Ring larger;
  const std::size_t count = outline.size();
  for (std::size_t i = 0; i < count; ++i) {
    const LatticePoint &before = outline[(i + count - 1) % count], &corner = outline[i],
                       &after = outline[(i + 1) % count];
    addCorner(larger, corner, rightOf(before, corner), rightOf(corner, after), outward);
  }
  return larger;
}

}  // namespace vantorel
