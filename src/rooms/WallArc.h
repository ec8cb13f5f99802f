#pragma once

#include "rooms/RoomDocument.h"
#include "rooms/Solid.h"

#include <optional>
#include <vector>

namespace vantorel {

/// A curved wall in plan: an arc in the wall's x and z on which lengths are measured as on a straight one, from its
/// left end as the room sees it. The room is on the side of the arc to which z points at its middle.
class WallArc {
 public:
  /// Nothing for a curve that cannot be built: a radius below 0.35 m, farther out than 64 m, a sweep of
  /// more than 350 degrees, a length below 1 mm or from 100 m. Throws std::runtime_error for a NaN or infinite number.
  static std::optional<WallArc> of(const Curve &curve);

  Lattice length() const { return length_; }
  /// Places along the arc so close that straight walls between them keep within 1 mm of it.
  std::vector<Lattice> joints() const;
  /// How far along is what lies at x and z, metres.
  double along(double x, double z) const;
  /// The front lies on the arc, the back `thickness` behind it.
  Column columnAt(Lattice along, double thickness) const;

 private:
  double centerX_ = 0, centerZ_ = 0, radius_ = 0;  // metres
  double start_ = 0, sweep_ = 0;                   // radians; positive with the room inside of the arc
  Lattice length_ = 0;
};

}  // namespace vantorel
