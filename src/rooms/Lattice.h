// The grid on which flat shapes are cut: whole numbers, so that every machine cuts alike and no gap opens.
#pragma once

#include <cstdint>
#include <vector>

namespace vantorel {

using Lattice = std::int64_t;  ///< a length in steps of 10 micrometres
inline constexpr Lattice kStepsPerMetre = 100'000;
/// Within this distance of the origin two neighbours on the grid are two different 32-bit floats.
inline constexpr Lattice kFarthest = 100 * kStepsPerMetre;

inline constexpr Lattice kLeastSize = kStepsPerMetre / 1000;

struct LatticePoint {
  Lattice x = 0, y = 0;
  bool operator==(const LatticePoint &) const = default;
};

struct LatticeRect {
  LatticePoint low, high;
};

/// A closed outline; the last corner is joined to the first.
using Ring = std::vector<LatticePoint>;

/// The nearest place on the grid that is not farther than kFarthest. Throws std::runtime_error for a NaN or
/// infinite number.
Lattice toLattice(double metres);

/// The nearest whole number, halves away from zero; the same on every machine.
constexpr std::int64_t nearest(double value) {
  return static_cast<std::int64_t>(value < 0 ? value - 0.5 : value + 0.5);
}

/// Around one or more corners.
LatticeRect boundsOf(const Ring &ring);
/// The box made at least kLeastSize wide and high, about its middle.
LatticeRect withSize(LatticeRect box);
Ring ringAround(const LatticeRect &box);

}  // namespace vantorel
