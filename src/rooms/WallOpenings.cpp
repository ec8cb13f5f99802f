#include "rooms/WallOpenings.h"

#include "rooms/WallArc.h"

#include <array>
#include <set>

namespace vantorel {
namespace {

/// Lengths that all but agree become one.
class Snap {
 public:
  Snap(Lattice low, Lattice high) : taken_{low, high} {}

  Lattice operator()(Lattice value) {
    constexpr Lattice kReach = kStepsPerMetre / 10'000;
    const auto near = taken_.lower_bound(value - kReach);
    if (near != taken_.end() && *near <= value + kReach) return *near;
    return *taken_.insert(value).first;
  }

 private:
  std::set<Lattice> taken_;
};

/// In the wall's frame.
std::array<double, 3> centerOf(const Surface &opening, const Surface &wall) {
  const auto along = [&](int axis) {
    double sum = 0;
    for (int i = 0; i < 3; ++i)
      sum += (double(opening.transform.at(3, i)) - wall.transform.at(3, i)) * wall.transform.at(axis, i);
    return sum;
  };
  return {along(0), along(1), along(2)};
}

}  // namespace

std::vector<LatticeRect> wallOpenings(const Surface &wall, std::span<const Surface *const> openings,
                                      const LatticeRect &box, const WallArc *arc) {
  Snap x(box.low.x, box.high.x), y(box.low.y, box.high.y);
  std::vector<LatticeRect> holes;
  for (const Surface *opening : openings) {
    const auto [centerX, centerY, centerZ] = centerOf(*opening, wall);
    const double middle = arc ? arc->along(centerX, centerZ) : centerX;
    const double halfWidth = opening->dimensions.x / 2.0, halfHeight = opening->dimensions.y / 2.0;
    const LatticeRect hole{{x(toLattice(middle - halfWidth)), y(toLattice(centerY - halfHeight))},
                           {x(toLattice(middle + halfWidth)), y(toLattice(centerY + halfHeight))}};
    if (hole.low.x < hole.high.x && hole.low.y < hole.high.y) holes.push_back(hole);
  }
  return holes;
}

}  // namespace vantorel
