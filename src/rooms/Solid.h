// Closed meshes: flat shapes given a thickness.
#pragma once

#include "base/Geometry.h"
#include "rooms/Strips.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantorel {

/// A place to a micrometre. Numbers are whole so that they are the same everywhere and quick to write.
struct MicroPoint {
  std::int32_t x, y, z;
  bool operator==(const MicroPoint &) const = default;
};

/// Triangles, counter-clockwise as seen from outside.
struct Mesh {
  /// A flat part: so many of the points, one after the other, share a normal. Parts share no points.
  struct Patch {
    Float3 normal;  ///< of unit length, outward
    std::size_t size;
  };
  std::vector<MicroPoint> points;
  std::vector<Patch> patches;
  std::vector<std::array<int, 3>> triangles;  ///< indices of points
};

/// What a border of the strips becomes: an upright line in front and one behind it, seen in plan. Micrometres.
struct Column {
  std::int32_t frontX, frontZ, backX, backZ;
};

/// The solid between the shape in front and the shape behind, where border i of the strips stands at columns[i] and
/// heights stay. Every edge belongs to two faces if the strips have no pinch.
Mesh solidOf(const Strips &strips, std::span<const Column> columns);

/// The same of a plain box, from one z to another, front > back.
Mesh boxSolid(const LatticeRect &box, Lattice front, Lattice back);

/// Columns that leave the shape in its plane, from one z to another. front > back.
std::vector<Column> straightColumns(const Strips &strips, Lattice front, Lattice back);

/// Where the borders and the heights of the grid lie in a mesh.
inline std::int32_t micrometres(Lattice length) { return static_cast<std::int32_t>(10 * length); }

/// The least and the greatest coordinates.
struct MeshBounds {
  MicroPoint low, high;
};
MeshBounds boundsOf(std::span<const MicroPoint> points);

}  // namespace vantorel
